// SPDX-License-Identifier: MIT
#include "editor/saving.h"

#include "editor/slots.h"
#include "runtime/numbers.h"
#include "tile/modes.h"
#include "tile/shared.h"
#include "tile/tile.h"

namespace brolk {
namespace {

// The next value of a byte counter; 0 follows 255.
std::uint8_t Next(std::uint8_t counter) {
  return WrapByte(counter + 1);
}

}  // namespace

bool MayBeSaved(std::int32_t address) {
  return address >= 0 &&
         address < Wrap32(std::int64_t{FileLength} - std::int64_t{Modes[GfxMode].BytesPerTile});
}

std::uint8_t SaveAllSlots() {
  std::uint8_t saved = 0;
  for (int slot = 0; slot <= kLastSlot; slot = Next(WrapByte(slot))) {
    const std::int32_t address = EditSlots[slot].Address;
    if (!MayBeSaved(address)) continue;
    WriteTile(hFile, address, WrapByte(slot));
    saved = Next(saved);
  }
  return saved;
}

void ReloadAllSlots() {
  for (int slot = 0; slot <= kLastSlot; slot = Next(WrapByte(slot))) {
    const std::int32_t address = EditSlots[slot].Address;
    if (address >= 0) ReadSlotPixels(WrapByte(slot), address);
  }
}

}  // namespace brolk
