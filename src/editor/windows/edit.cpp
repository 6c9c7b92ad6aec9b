// SPDX-License-Identifier: MIT
#include "editor/windows/edit.h"

#include "editor/slots.h"

namespace brolk {

void RedrawEditor() {}
void DrawEditorCell(std::int16_t, std::int16_t, std::int16_t) {}
void DrawEditorOverlay() {}
void AddTileToSlot(std::int32_t, std::uint8_t) {}
void ClearEditor() {
  ClearAllSlots();
}
void CreateSlotSurfaces() {}

}  // namespace brolk
