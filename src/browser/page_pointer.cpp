// SPDX-License-Identifier: MIT
#include "browser/page_pointer.h"

#include "runtime/numbers.h"

namespace brolk {
namespace {

// How many whole cells of `size` tile pixels lie before a coordinate.
double CellsBefore(float at, std::int16_t zoom, std::int16_t size) {
  return IntegerPart(DivideReals(DivideReals(at, zoom), size));
}

}  // namespace

TilePlace TileAt(float x, float y, const TileExtent& extent) {
  return {RoundToInteger(CellsBefore(x, extent.zoom, extent.width)),
          RoundToInteger(CellsBefore(y, extent.zoom, extent.height))};
}

float EdgeOf(std::int16_t index, std::int16_t size, std::int16_t zoom) {
  return static_cast<float>(std::int64_t{zoom} * index * size);
}

std::string AddressStatusText(float x, float y, const AddressStatus& status) {
  const double column = CellsBefore(x, status.zoom, status.cellSize);
  const double line = CellsBefore(y, status.zoom, status.cellSize);
  return "Address: " + NumberText(status.bytesPerTile * (column + status.rows * line) + status.pageAddress);
}

std::string PositionStatusText(float x, float y, const TileExtent& extent) {
  return "X: " + NumberText(CellsBefore(x, extent.zoom, extent.width) + 1) +
         "   Y: " + NumberText(CellsBefore(y, extent.zoom, extent.height) + 1);
}

std::string DepthStatusText(std::uint8_t bitsPerPixel) {
  if (bitsPerPixel < 2) return "1 bit per pixel";
  return NumberText(std::int32_t{bitsPerPixel}) + " bits per pixel";
}

std::int32_t DropAddressAt(std::int16_t x, std::int16_t y, const TileExtent& extent,
                           const AddressStatus& page) {
  const std::int64_t column = DivideIntegers(DivideIntegers(x, extent.zoom), extent.width);
  const std::int64_t line = DivideIntegers(DivideIntegers(y, extent.zoom), extent.height);
  const std::int16_t tile = Wrap16(column + line * page.rows);
  return Wrap32(std::int64_t{page.pageAddress} + Wrap16(page.bytesPerTile * tile));
}

std::int16_t CoordinateInWindow(float at, double fromEdgeTwips, double toEdgeTwips, double twipsPerPixel) {
  return RoundToInteger(DivideReals(twipsPerPixel * at + fromEdgeTwips - toEdgeTwips, twipsPerPixel));
}

}  // namespace brolk
