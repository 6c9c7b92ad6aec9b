// SPDX-License-Identifier: MIT
#pragma once

#include "editor/slots.h"

namespace brolk::test {

// A tile of one colour index.
inline TilePixels PlainTile(std::uint8_t colorIndex) {
  TilePixels pixels;
  pixels.fill(colorIndex);
  return pixels;
}

// The indices 0 to 63 in pixel order, each plus `first`.
inline TilePixels CountingTile(std::uint8_t first = 0) {
  TilePixels pixels;
  for (int index = 0; index < 64; ++index) pixels[index] = static_cast<std::uint8_t>(first + index);
  return pixels;
}

// Gives a slot pixels, address and the picture that belongs to them.
inline void SetSlot(std::uint8_t slot, std::int32_t address, const TilePixels& pixels) {
  EditSlots[slot].Address = address;
  EditSlots[slot].Pixels = pixels;
  RefreshSlotSurface(slot);
}

}  // namespace brolk::test
