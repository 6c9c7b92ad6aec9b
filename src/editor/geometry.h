// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

// Where the grid of 16 by 16 slots lies in the Editor's window. All lengths are pixels of the client area;
// products are 16-bit and wrap, which no zoom from 2 to 30 reaches.
namespace brolk {

// What a scroll bar takes from the client area.
inline constexpr std::int16_t kScrollBarPx = 17;

// The window at one moment.
struct EditorView {
  std::int16_t zoom = 3;         // screen pixels for a tile pixel
  std::int16_t scrollX = 0;      // pixels of the grid left of the client area
  std::int16_t scrollY = 0;      // pixels of the grid above it
  std::int16_t scaleWidth = 0;   // client area
  std::int16_t scaleHeight = 0;  // client area
};

// Side of one cell and of the whole grid.
[[nodiscard]] std::int16_t CellPx(std::int16_t zoom);
[[nodiscard]] std::int16_t GridPx(std::int16_t zoom);

// A place in the grid: slot position, and pixel inside its tile from 0.
struct EditorPlace {
  std::int16_t column;
  std::int16_t line;
  std::int16_t pixelX;
  std::int16_t pixelY;

  [[nodiscard]] std::uint8_t Slot() const;
  // Index into the tile's pixels; can lie outside 0 to 63, see PlaceAt.
  [[nodiscard]] std::int16_t PixelIndex() const;
};

// Answers whether a point lies on the grid and in the client area. Each of the six tests that fails sets the
// coordinate to the bound that it names, in this order: x below 0, y below 0, x above the client width, y
// above the client height, x above the grid's last pixel, y above it. The grid's bounds do not scroll.
[[nodiscard]] bool ClampToGrid(const EditorView& view, float& x, float& y);

// The place under a point for which ClampToGrid answered true. Column and line are limited to 15, the pixel
// is not limited to 7: with one scroll bar shown and moved to its end, a point beyond the scrolled grid gives
// a larger pixel, and an index beyond 63 ends in the subscript fault. That is meant. Zoom 0 is the division
// fault.
[[nodiscard]] EditorPlace PlaceAt(const EditorView& view, float x, float y);

// The slot under a dropped tile; none when the point lies outside the client area. The column has no limit
// and the number is taken modulo 256: a drop right of the grid lands further along in slot order. That is
// meant. Zoom 0 is the division fault.
[[nodiscard]] std::optional<std::uint8_t> DropSlotAt(const EditorView& view, std::int16_t x, std::int16_t y);

// A scroll bar is needed when the client area has no room for the grid and a scroll bar's thickness. Its
// maximum lets the last pixel of the grid come up to where the other scroll bar would begin.
[[nodiscard]] bool NeedsScrollBar(std::int16_t zoom, int scalePx);
[[nodiscard]] std::int16_t ScrollMaximum(std::int16_t zoom, int scalePx);

}  // namespace brolk
