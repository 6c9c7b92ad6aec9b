// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "editor/geometry.h"
#include "runtime/surface.h"

// The procedures with which all windows change and redraw the Editor.
namespace brolk {

// Fill of non-copied slots, set anew by each RedrawEditor and by nothing else.
inline ColorValue EmptySlotColor = 0;

// Zoom, scroll bars and client area of the Editor's window at this moment.
[[nodiscard]] EditorView CurrentEditorView();

// Paints the whole Editor window and shows it.
void RedrawEditor();
// Paints one slot's picture at a place of the grid; columns and lines count from 0. A slot number outside 0
// to 255 is the subscript fault.
void DrawEditorCell(std::int16_t Slot, std::int16_t Column, std::int16_t Line);
// Paints a slot's picture at the places of all its twins.
void DrawTwinCells(std::uint8_t Slot);
// Grid lines and the selection frame.
void DrawEditorOverlay();
// Reads the tile at a file offset into a slot; the window is not redrawn. A slot that holds this very address
// is left alone, with a message. The other slots are not asked: a tile may stand in several.
void AddTileToSlot(std::int32_t Address, std::uint8_t Slot);
// ClearAllSlots, then RedrawEditor.
void ClearEditor();
// Makes the Editor's window; the slots' surfaces live in the slots.
void CreateSlotSurfaces();

}  // namespace brolk
