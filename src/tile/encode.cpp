// SPDX-License-Identifier: MIT
#include "tile/encode.h"

#include <algorithm>

#include "runtime/fault.h"
#include "tile/modes.h"

namespace brolk {
namespace {

using Pixels = std::array<std::uint8_t, kTilePixels>;

// The eight bits of one plane in a row of pixels, the leftmost pixel in the highest bit.
std::uint8_t PlaneByte(const Pixels& pixels, std::size_t y, unsigned plane) {
  unsigned byte = 0;
  for (std::size_t x = 0; x < kTileSidePx; ++x)
    byte = byte << 1 | (pixels[y * kTileSidePx + x] >> plane & 1U);
  return static_cast<std::uint8_t>(byte);
}

void EncodePlanar(const TileLayout& layout, const Pixels& pixels, EncodedTile& tile) {
  const auto places = PlanePlaces(layout);
  for (unsigned plane = 0; plane < layout.bitsPerPixel; ++plane) {
    for (std::size_t y = 0; y < kTileSidePx; ++y) {
      tile.bytes[places[plane].firstByte + places[plane].rowStep * y] = PlaneByte(pixels, y, plane);
    }
  }
}

void EncodePacked(const TileLayout& layout, const Pixels& pixels, EncodedTile& tile) {
  const unsigned bits = layout.bitsPerPixel;
  const std::size_t pixelsPerByte = 8 / bits;
  for (std::size_t i = 0; i < tile.size; ++i) {
    unsigned byte = 0;
    for (std::size_t p = 0; p < pixelsPerByte; ++p) {
      const std::size_t place = layout.leftmost == LeftmostPixel::InHighBits ? pixelsPerByte - 1 - p : p;
      byte |= static_cast<unsigned>(pixels[i * pixelsPerByte + p]) << (place * bits);
    }
    tile.bytes[layout.swappedPairs ? i ^ 1U : i] = static_cast<std::uint8_t>(byte);
  }
}

// The pixels with those that do not fit made to fit. What is left too large loses its high bits in the
// encoding.
Pixels Fitted(const TileLayout& layout, std::span<const std::uint8_t, kTilePixels> pixels) {
  Pixels fitted{};
  const auto highest = static_cast<std::uint8_t>((1U << layout.bitsPerPixel) - 1);
  const std::size_t lowNibble = layout.leftmost == LeftmostPixel::InLowBits ? 0 : 1;
  for (std::size_t i = 0; i < fitted.size(); ++i) {
    const bool limited =
        layout.misfit == Misfit::Limit || (layout.misfit == Misfit::LimitLowNibble && i % 2 == lowNibble);
    fitted[i] = limited ? std::min(pixels[i], highest) : pixels[i];
  }
  return fitted;
}

}  // namespace

EncodedTile EncodeTile(std::uint8_t mode, std::span<const std::uint8_t, kTilePixels> pixels) {
  EncodedTile tile;
  if (mode == kPcEngineSprite) throw Fault(FaultKind::SubscriptOutOfRange);
  if (mode >= kModeCount) return tile;
  const TileLayout& layout = kTileLayouts[mode];
  tile.size = layout.bytesPerTile;
  if (layout.IsPlanar()) {
    EncodePlanar(layout, Fitted(layout, pixels), tile);
  } else if (tile.size > 0) {
    EncodePacked(layout, Fitted(layout, pixels), tile);
  }
  return tile;
}

}  // namespace brolk
