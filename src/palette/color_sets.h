// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "runtime/bounded.h"
#include "runtime/surface.h"

namespace brolk {

// One palette of the colour set list. Name: Windows-1252 bytes.
struct ColorSetRecord {
  Bounded<ColorValue, 255> Colors;
  std::string Name;
};

// The list. SetCount and SelectedSet are 8-bit and wrap without error; records beyond SetCount keep what they
// held.
inline Bounded<ColorSetRecord, 255> Sets;
inline std::uint8_t SetCount = 0;
inline std::uint8_t SelectedSet = 0;

}  // namespace brolk
