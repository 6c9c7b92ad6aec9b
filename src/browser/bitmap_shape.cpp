// SPDX-License-Identifier: MIT
#include "browser/bitmap_shape.h"

#include <cmath>

#include "runtime/numbers.h"
#include "tile/shared.h"

namespace brolk {

std::uint8_t BitmapDepthAt(int position) {
  return RoundToByte(std::exp2(position));
}

std::int16_t BitmapTileBytes(std::int16_t width, std::int16_t height, std::uint8_t bitsPerPixel) {
  return Wrap16(DivideIntegers(Wrap16(width * height), DivideIntegers(8, bitsPerPixel)));
}

std::int16_t EnteredBitmapTileBytes(std::int16_t width, std::int16_t height, std::uint8_t bitsPerPixel) {
  return Wrap16(DivideIntegers(width, Wrap16(bitsPerPixel * height)));
}

std::int16_t BitmapTileWidthAt(std::int16_t barValue, int position) {
  const double pixelsInByte = DivideReals(8, std::exp2(position));
  return Wrap16(DivideIntegers(barValue, RoundToLong(pixelsInByte * pixelsInByte)));
}

std::int32_t TilesAcrossSurface(std::int16_t size) {
  return DivideIntegers(kPageSurfacePx, size);
}

}  // namespace brolk
