// SPDX-License-Identifier: MIT
#include "editor/drawing.h"

#include "runtime/numbers.h"

namespace brolk {
namespace {

// Left edge of a column, or top edge of a line, in the client area.
std::int16_t CellEdge(std::int16_t zoom, std::int32_t cell, std::int16_t scroll) {
  return Wrap16(CellPx(zoom) * cell - scroll);
}

void PaintGridLines(Surface& client, const EditorView& view, ColorValue color) {
  const std::int16_t right = Wrap16(GridPx(view.zoom) - view.scrollX);
  const std::int16_t bottom = Wrap16(GridPx(view.zoom) - view.scrollY);
  for (std::int16_t column = 0; column <= kSlotsInLine; ++column) {
    const std::int16_t x = CellEdge(view.zoom, column, view.scrollX);
    client.Line(x, 0, x, bottom, color);
  }
  for (std::int16_t line = 0; line <= kSlotsInLine; ++line) {
    const std::int16_t y = CellEdge(view.zoom, line, view.scrollY);
    client.Line(0, y, right, y, color);
  }
}

}  // namespace

void PaintOutside(Surface& client, const EditorView& view) {
  const std::int16_t size = GridPx(view.zoom);
  client.Box(size, 0, view.scaleWidth, view.scaleHeight, kOutsideColor);
  client.Box(0, size, view.scaleWidth, view.scaleHeight, kOutsideColor);
}

void PaintCell(Surface& client, const EditorView& view, const EditSlot& slot, std::int16_t column,
               std::int16_t line, ColorValue emptyColor) {
  const std::int16_t cellPx = CellPx(view.zoom);
  const std::int16_t left = CellEdge(view.zoom, column, view.scrollX);
  const std::int16_t top = CellEdge(view.zoom, line, view.scrollY);
  if (slot.Address == kNonCopied)
    client.Rectangle(left, top, left + cellPx + 1, top + cellPx + 1, emptyColor, emptyColor);
  if (slot.Address >= kUnaddressed)
    client.StretchBlt(left, top, cellPx, cellPx, slot.SlotSurface, 0, 0, kTilePx, kTilePx);
}

void PaintOverlay(Surface& client, const EditorView& view, const EditorOverlay& overlay) {
  if (overlay.showGrid) PaintGridLines(client, view, overlay.gridColor);
  client.Rectangle(CellEdge(view.zoom, overlay.selColumn, view.scrollX),
                   CellEdge(view.zoom, overlay.selLine, view.scrollY),
                   CellEdge(view.zoom, overlay.selColumn + 1, view.scrollX) + 1,
                   CellEdge(view.zoom, overlay.selLine + 1, view.scrollY) + 1, overlay.selectionColor);
}

void PaintWholeEditor(Surface& client, const EditorView& view, const EditorOverlay& overlay,
                      ColorValue emptyColor) {
  PaintOutside(client, view);
  for (std::int16_t number = 0; number <= kLastSlot; ++number) {
    const auto slot = static_cast<std::uint8_t>(number);
    PaintCell(client, view, EditSlots[slot], ColumnOf(slot), LineOf(slot), emptyColor);
  }
  PaintOverlay(client, view, overlay);
}

}  // namespace brolk
