// SPDX-License-Identifier: MIT
#include "editor/slots.h"

#include "palette/palette_model.h"

namespace brolk {

void RefreshSlotSurface(std::uint8_t Slot) {
  EditSlot& slot = EditSlots[Slot];
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 8; ++x) slot.SlotSurface.SetPixel(x, y, Palette[slot.Pixels[y * 8 + x]]);
  }
}

void ClearSlot(std::uint8_t Slot) {
  EditSlots[Slot].Address = kNonCopied;
  EditSlots[Slot].Pixels.fill(0);
  RefreshSlotSurface(Slot);
}

void ClearAllSlots() {
  for (int slot = 0; slot <= 255; ++slot) ClearSlot(static_cast<std::uint8_t>(slot));
}

}  // namespace brolk
