// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

// The numbers of the free bitmap mode. position: place in the list of depths, 0 to 3 for 1, 2, 4 and 8 bits
// per pixel. Sizes are tile pixels.
namespace brolk {

// Bits per pixel at a position: 2 to its power.
[[nodiscard]] std::uint8_t BitmapDepthAt(int position);

// File bytes of one tile while any other mode is on. Depths above 8 are the division fault.
[[nodiscard]] std::int16_t BitmapTileBytes(std::int16_t width, std::int16_t height,
                                           std::uint8_t bitsPerPixel);

// File bytes of one tile at the moment the mode is entered. This formula differs from the one above, on
// purpose: a square tile gives 1 at 1 bit per pixel and 0 otherwise. A height of 0 is the division fault.
[[nodiscard]] std::int16_t EnteredBitmapTileBytes(std::int16_t width, std::int16_t height,
                                                  std::uint8_t bitsPerPixel);

// Tile width that the width bar gives: its value divided by 64, 16, 4 or 1, so that low depths bring it to 0.
[[nodiscard]] std::int16_t BitmapTileWidthAt(std::int16_t barValue, int position);

// How many tiles of a size fit side by side into the page's surface. A size of 0 is the division fault.
[[nodiscard]] std::int32_t TilesAcrossSurface(std::int16_t size);

}  // namespace brolk
