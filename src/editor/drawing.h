// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "editor/geometry.h"
#include "editor/slots.h"
#include "runtime/surface.h"

// The Editor's picture, drawn on the surface of its client area. Nothing is wiped first: what a step does not
// paint shows what stood there before.
namespace brolk {

// RGB 172, 172, 172, around the grid.
inline constexpr ColorValue kOutsideColor = 0xACACAC;

// What is drawn over the cells.
struct EditorOverlay {
  bool showGrid = true;
  ColorValue gridColor = 0;
  ColorValue selectionColor = 0;
  std::int16_t selColumn = 0;  // 0 to 15
  std::int16_t selLine = 0;
};

// Paints the client area right of and below the grid. The bounds ignore the scroll position.
void PaintOutside(Surface& client, const EditorView& view);

// Paints a slot's picture at a place of the grid. A non-copied slot is a box of emptyColor, one pixel larger
// to the right and below than its cell. A slot with an address below kNonCopied, which a wrapped selection
// can bring in, paints nothing.
void PaintCell(Surface& client, const EditorView& view, const EditSlot& slot, std::int16_t column,
               std::int16_t line, ColorValue emptyColor);

// Grid lines, if they are on, then the selection frame. The lines start at the window's edge and not at the
// scrolled origin, and end at the scrolled end of the grid, end point excluded. That is meant.
void PaintOverlay(Surface& client, const EditorView& view, const EditorOverlay& overlay);

// Outside, all 256 cells in slot order (visible or not), overlay.
void PaintWholeEditor(Surface& client, const EditorView& view, const EditorOverlay& overlay,
                      ColorValue emptyColor);

}  // namespace brolk
