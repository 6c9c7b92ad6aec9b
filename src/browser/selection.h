// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace brolk {

// The ways in which the keypad moves the selected tile.
enum class SelectionMove { Next, Previous, Down, Up, First, Last };

// The selected tile of the page, and the tile line that the window counts along.
struct PageSelection {
  std::int16_t column = 0;    // from 0
  std::int16_t line = 0;      // from 0
  std::int32_t fileLine = 0;  // index of a tile line of the file
  bool operator==(const PageSelection&) const = default;
};

// Moves the selection inside a page of rows by lines tiles; at the edges it stays. Next and Previous run on
// from line to line and are the only moves that carry fileLine along: after Down and Up it is out of step.
// That is meant.
[[nodiscard]] PageSelection MovedSelection(PageSelection selection, SelectionMove move, std::int16_t rows,
                                           std::int16_t lines);

}  // namespace brolk
