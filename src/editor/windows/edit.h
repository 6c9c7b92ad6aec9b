// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "runtime/surface.h"

namespace brolk {

// Fill of non-copied slots, set anew by each RedrawEditor.
inline ColorValue EmptySlotColor = 0;

// Paints the whole Editor window.
void RedrawEditor();
// Paints one slot's picture at a place of the grid.
void DrawEditorCell(std::int16_t Slot, std::int16_t Column, std::int16_t Line);
// Grid lines and the selection frame.
void DrawEditorOverlay();
// Reads the tile at a file offset into a slot; the window is not redrawn.
void AddTileToSlot(std::int32_t Address, std::uint8_t Slot);
// ClearAllSlots, then RedrawEditor.
void ClearEditor();
// Makes the Editor window and the 256 surfaces.
void CreateSlotSurfaces();

}  // namespace brolk
