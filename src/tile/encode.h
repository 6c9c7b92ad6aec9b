// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "tile/layout.h"

namespace brolk {

// The file bytes of one tile: at most 64, of which the first `size` count.
struct EncodedTile {
  std::array<std::uint8_t, kTilePixels> bytes{};
  std::size_t size = 0;

  [[nodiscard]] std::span<const std::uint8_t> Bytes() const { return std::span(bytes).first(size); }
};

// Encodes one tile in a mode, the inverse of its decoder; no file, no state.
// pixels: 64 colour indices, row by row from the top left. One that does not fit the mode is treated as its
// row of kTileLayouts says, on a copy. Bitmap Mode and numbers beyond the modes give no bytes: nothing is
// ever saved in them. The PC Engine sprite is the subscript fault, in every call: it takes 16 pixels for each
// of 16 rows, and the tile ends after the fourth.
[[nodiscard]] EncodedTile EncodeTile(std::uint8_t mode, std::span<const std::uint8_t, kTilePixels> pixels);

}  // namespace brolk
