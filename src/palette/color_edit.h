// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "runtime/surface.h"

// What the colour dialog edits and how it shows it.
namespace brolk {

// Numbers of a set that stand for the live palette.
inline constexpr std::int16_t kLivePalette = -1;
inline constexpr std::int16_t kLivePaletteUnseen = -2;

enum class ColorTarget {
  LivePalette,        // changed, and everything that shows it is painted again
  LivePaletteUnseen,  // changed, nothing is painted
  Nothing,
  ColorSet,
};

// Where a confirmed colour goes: -1, -2, any other negative number, 0 or more.
[[nodiscard]] ColorTarget TargetOf(std::int16_t editSet);

// The text colour on the preview: red and green inverted, blue always 0, whatever the colour's blue is. That
// is meant.
[[nodiscard]] ColorValue PreviewTextColor(std::int32_t red, std::int32_t green);

// A channel of 0..255 in 5 bits, truncated.
[[nodiscard]] std::int32_t FiveBits(std::int32_t channel);

}  // namespace brolk
