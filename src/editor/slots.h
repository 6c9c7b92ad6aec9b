// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "runtime/bounded.h"
#include "runtime/surface.h"

namespace brolk {

// Marks that stand in place of a file offset.
inline constexpr std::int32_t kNonCopied = -2;    // nothing was brought into the slot or painted on it
inline constexpr std::int32_t kUnaddressed = -1;  // the slot holds pixels that belong to no place in the file

inline constexpr std::int16_t kSlotsInLine = 16;
inline constexpr std::int16_t kLastSlot = 255;
inline constexpr int kTilePx = 8;

// The pixels of one tile as palette indices, pixel (x, y) at y * 8 + x.
using TilePixels = Bounded<std::uint8_t, 63>;

// One slot of the Editor: a tile as palette indices, its picture in colour, and the file offset that it came
// from. Neither graphics mode nor colours are part of it: a later save encodes the same indices in the mode
// of that moment.
struct EditSlot {
  Surface SlotSurface{kTilePx, kTilePx};  // rebuilt from Pixels and Palette by RefreshSlotSurface
  std::int32_t Address = 0;               // a mark or a file offset
  TilePixels Pixels;
};

// The 256 slots, number = line * 16 + column. They live as long as the process.
inline Bounded<EditSlot, kLastSlot> EditSlots;

enum EditTools : std::uint8_t { kSelectTool = 0, kPaintTool = 1, kFillTool = 2 };
inline std::uint8_t EditTool = kSelectTool;

// Rebuilds the 64 surface pixels of a slot from Pixels and Palette. An index beyond the palette cannot occur:
// a pixel is a byte.
void RefreshSlotSurface(std::uint8_t Slot);

// Empties one slot: kNonCopied, 64 zero pixels, surface rebuilt.
void ClearSlot(std::uint8_t Slot);

// ClearSlot for 0 to 255 in order.
void ClearAllSlots();

// Decodes the tile at a file offset, in the mode of the moment, into the pixels of a slot and rebuilds its
// surface. The slot's own address stays as it is. What the file cannot deliver reads as ReadTile gives it.
void ReadSlotPixels(std::uint8_t slot, std::int32_t address);

// Exchanges pixels and addresses of two slots and rebuilds both surfaces.
void SwapSlots(std::uint8_t first, std::uint8_t second);

// The place of a slot in the grid, from 0.
[[nodiscard]] std::int16_t ColumnOf(std::uint8_t slot);
[[nodiscard]] std::int16_t LineOf(std::uint8_t slot);

// The numbers of all slots that hold the same file offset as `slot`, itself included, in order. A slot
// without a file offset has none.
[[nodiscard]] std::vector<std::uint8_t> TwinsOf(std::uint8_t slot);

// What the tile tool is given for a slot: its number, or -1 when nothing was ever brought into it.
[[nodiscard]] std::int16_t LoadableSlot(std::uint8_t slot);

}  // namespace brolk
