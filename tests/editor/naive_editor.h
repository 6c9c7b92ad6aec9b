// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "editor/drawing.h"
#include "editor/slots.h"
#include "palette/palette_model.h"

namespace brolk::test {

// The Editor's whole picture once more, as plainly as can be: each step of the painting is asked, one pixel
// at a time, whether it covers it.
struct NaiveEditor {
  EditorView view;
  EditorOverlay overlay;
  ColorValue empty;

  // The colour of a pixel of the client area; none where nothing is painted.
  [[nodiscard]] std::optional<ColorValue> PixelAt(int x, int y) const {
    const int size = view.zoom * 128;
    const int side = view.zoom * 8;
    std::optional<ColorValue> color;
    if (x >= size || y >= size) color = PackRgb(172, 172, 172);
    for (int slot = 0; slot < 256; ++slot) CoverWithCell(x, y, slot, side, color);
    if (overlay.showGrid && IsOnGrid(x + view.scrollX, y + view.scrollY, side, size))
      color = overlay.gridColor;
    if (IsOnFrame(x + view.scrollX, y + view.scrollY, side)) color = overlay.selectionColor;
    return color;
  }

  void CoverWithCell(int x, int y, int slot, int side, std::optional<ColorValue>& color) const {
    const int inX = x + view.scrollX - slot % 16 * side;
    const int inY = y + view.scrollY - slot / 16 * side;
    const EditSlot& content = EditSlots[slot];
    if (content.Address == -2 && inX >= 0 && inY >= 0 && inX <= side && inY <= side) color = empty;
    if (content.Address >= -1 && inX >= 0 && inY >= 0 && inX < side && inY < side)
      color = Palette[content.Pixels[inY / view.zoom * 8 + inX / view.zoom]];
  }

  // Lines reach to the window's edge, also left of and above the scrolled grid: only the far ends count.
  [[nodiscard]] bool IsOnGrid(int gridX, int gridY, int side, int size) const {
    const bool upright = gridX >= 0 && gridX <= size && gridX % side == 0 && gridY < size;
    const bool across = gridY >= 0 && gridY <= size && gridY % side == 0 && gridX < size;
    return upright || across;
  }

  [[nodiscard]] bool IsOnFrame(int gridX, int gridY, int side) const {
    const int inX = gridX - overlay.selColumn * side;
    const int inY = gridY - overlay.selLine * side;
    const bool inside = inX >= 0 && inY >= 0 && inX <= side && inY <= side;
    return inside && (inX == 0 || inY == 0 || inX == side || inY == side);
  }
};

}  // namespace brolk::test
