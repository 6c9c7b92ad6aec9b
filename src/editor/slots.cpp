// SPDX-License-Identifier: MIT
#include "editor/slots.h"

#include <algorithm>
#include <utility>

#include "palette/palette_model.h"
#include "tile/shared.h"
#include "tile/tile.h"

namespace brolk {

void RefreshSlotSurface(std::uint8_t Slot) {
  EditSlot& slot = EditSlots[Slot];
  for (int y = 0; y < kTilePx; ++y) {
    for (int x = 0; x < kTilePx; ++x) slot.SlotSurface.SetPixel(x, y, Palette[slot.Pixels[y * kTilePx + x]]);
  }
}

void ClearSlot(std::uint8_t Slot) {
  EditSlots[Slot].Address = kNonCopied;
  EditSlots[Slot].Pixels.fill(0);
  RefreshSlotSurface(Slot);
}

void ClearAllSlots() {
  for (std::int16_t slot = 0; slot <= kLastSlot; ++slot) ClearSlot(static_cast<std::uint8_t>(slot));
}

void ReadSlotPixels(std::uint8_t slot, std::int32_t address) {
  ReadTile(hFile, address, 1);
  std::copy_n(PageBuffer.begin(), TilePixels::kSize, EditSlots[slot].Pixels.begin());
  RefreshSlotSurface(slot);
}

void SwapSlots(std::uint8_t first, std::uint8_t second) {
  std::swap(EditSlots[first].Pixels, EditSlots[second].Pixels);
  std::swap(EditSlots[first].Address, EditSlots[second].Address);
  RefreshSlotSurface(first);
  RefreshSlotSurface(second);
}

std::int16_t ColumnOf(std::uint8_t slot) {
  return static_cast<std::int16_t>(slot % kSlotsInLine);
}

std::int16_t LineOf(std::uint8_t slot) {
  return static_cast<std::int16_t>(slot / kSlotsInLine);
}

std::vector<std::uint8_t> TwinsOf(std::uint8_t slot) {
  std::vector<std::uint8_t> twins;
  const std::int32_t address = EditSlots[slot].Address;
  if (address < 0) return twins;
  for (std::int16_t other = 0; other <= kLastSlot; ++other) {
    if (EditSlots[other].Address == address) twins.push_back(static_cast<std::uint8_t>(other));
  }
  return twins;
}

std::int16_t LoadableSlot(std::uint8_t slot) {
  return EditSlots[slot].Address >= kUnaddressed ? std::int16_t{slot} : std::int16_t{-1};
}

}  // namespace brolk
