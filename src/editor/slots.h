// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "runtime/bounded.h"
#include "runtime/surface.h"

namespace brolk {

// Marks that stand in place of a file offset.
inline constexpr std::int32_t kNonCopied = -2;    // nothing was brought into the slot or painted on it
inline constexpr std::int32_t kUnaddressed = -1;  // the slot holds pixels that belong to no place in the file

// One slot of the Editor: a tile as palette indices, its picture in colour, and the file offset that it came
// from.
struct EditSlot {
  Surface SlotSurface{8, 8};         // rebuilt from Pixels and Palette by RefreshSlotSurface
  std::int32_t Address = 0;          // a mark or a file offset
  Bounded<std::uint8_t, 63> Pixels;  // pixel (x, y) at y * 8 + x
};

// The 256 slots, number = line * 16 + column. They live as long as the process.
inline Bounded<EditSlot, 255> EditSlots;

enum EditTools : std::uint8_t { kSelectTool = 0, kPaintTool = 1, kFillTool = 2 };
inline std::uint8_t EditTool = kSelectTool;

// Rebuilds the 64 surface pixels of a slot from Pixels and Palette. An index beyond the palette cannot occur:
// a pixel is a byte.
void RefreshSlotSurface(std::uint8_t Slot);

// Empties one slot: kNonCopied, 64 zero pixels, surface rebuilt.
void ClearSlot(std::uint8_t Slot);

// ClearSlot for 0 to 255 in order.
void ClearAllSlots();

}  // namespace brolk
