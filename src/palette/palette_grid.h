// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "runtime/surface.h"

// The panel that shows the first side * side colours of the live palette on a square of 96 by 96 pixels, and
// the rotation of that palette. side: 16, 4 or 2 cells in a row; 0 is the division fault.
namespace brolk {

inline constexpr std::int32_t kPanelPx = 96;

[[nodiscard]] std::int32_t PanelCellPx(std::uint8_t side);

// A point of the panel in pixels, and the panel's size.
struct PanelPoint {
  float x;
  float y;
  std::int32_t widthPx;
  std::int32_t heightPx;
};

// The colour that a press at a point picks. A point outside counts as the nearest one; the last two columns
// and rows of pixels count as the second last.
[[nodiscard]] std::int32_t PressedColorIndex(const PanelPoint& point, std::uint8_t side);

// The colour under the moving pointer: its cell is the panel's width divided by side, rounded to even.
[[nodiscard]] std::int32_t ColorIndexUnderPointer(const PanelPoint& point, std::uint8_t side);

// The next number of cells in a row: 16, 2, 4, 16; any other number goes to 4.
[[nodiscard]] std::uint8_t NextPaletteSide(std::uint8_t side);

// The next caption of the shift amount: 1, 2, 4, 8, 16, 1; any other number is doubled.
[[nodiscard]] std::string NextShiftAmount(std::string_view caption);

// Moves all 256 colours of the live palette by one place, as often as the number in the caption says; the
// colour that falls out comes in at the other end.
void RotatePaletteLeft(std::string_view caption);
void RotatePaletteRight(std::string_view caption);

// Paints the cells from the live palette. Each includes its right and bottom edge, which the next cell
// covers.
void PaintPaletteCells(Surface& picture, std::uint8_t side);

}  // namespace brolk
