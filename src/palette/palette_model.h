// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "runtime/bounded.h"
#include "runtime/surface.h"

namespace brolk {

// The live table: every pixel index becomes a screen colour through it. The NES table stays as
// SetDefaultPalette leaves it.
inline Bounded<ColorValue, 255> Palette;
inline Bounded<ColorValue, 63> NesPalette;

// The palette index that Paint and Fill put down.
inline std::uint8_t CurrentColor = 0;

// Pow2[n] is 2 to the power n; Pow2[31] the bit pattern 0x80000000.
inline Bounded<std::int32_t, 31> Pow2;
void FillPow2();

// Fills Palette and NesPalette with their start colours.
void SetDefaultPalette();

// The channels of a colour value: value mod 256, (value \ 256) mod 256, (value \ 65536) mod 256, with
// truncating division and the remainder brought back to 0..255. So -14326 is 10, 201, 0.
[[nodiscard]] std::int32_t RedOf(ColorValue color);
[[nodiscard]] std::int32_t GreenOf(ColorValue color);
[[nodiscard]] std::int32_t BlueOf(ColorValue color);

// A 15-bit colour word of a console to a colour value. format: 0 red high, 1 red low; any other gives 0.
[[nodiscard]] ColorValue ColToRGB(std::int32_t word, std::uint8_t format);

// A colour value to a word. Not the inverse of ColToRGB: format 0 puts red low, 1 red high, 2 and any other
// give 0.
[[nodiscard]] std::int32_t RGBToCol(ColorValue color, std::uint8_t format);

// Logical right shift by 1 to 31 bits that keeps working on negative values; below 1 the value comes back,
// above 31 gives 0.
[[nodiscard]] std::int32_t ShiftRight(std::int32_t value, std::int32_t bits);

}  // namespace brolk
