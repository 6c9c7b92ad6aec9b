// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

#include "runtime/bounded.h"

namespace brolk {

inline constexpr int kModeCount = 15;

// The indices of Modes.
enum GraphicsMode : std::uint8_t {
  kGameboy = 0,
  kNes = 1,
  kNeoGeoPocket = 2,
  kSnes4 = 3,
  kOneBit = 4,
  kVirtualBoy = 5,
  kMegaDrive = 6,
  kGameGear = 7,
  kSnes3 = 8,
  kGba4 = 9,
  kGba8 = 10,
  kSnes8 = 11,
  kBitmapMode = 12,
  kPcEngineChar = 13,
  kPcEngineSprite = 14,
};

// One graphics mode. The bit layout is code (decode.h, encode.h); the record carries what addresses and texts
// need.
struct GraphicsModeRecord {
  const char* Name = "";
  std::int16_t BytesPerTile = 0;  // file bytes of one tile, the unit of address arithmetic
  std::uint8_t BitsPerPixel = 0;
};

inline Bounded<GraphicsModeRecord, kModeCount - 1> Modes;

// The modes in the order of the list cboMode, as indices of Modes. 16 entries, the last unused.
inline constexpr std::array<std::uint8_t, 16> kModeMap = {3, 11, 8,  1, 0, 9, 10, 5,
                                                          6, 13, 14, 7, 2, 4, 12, 0};

// Fills Modes with its start values.
void FillModes();

}  // namespace brolk
