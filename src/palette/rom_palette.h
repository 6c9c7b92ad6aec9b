// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "runtime/bounded.h"

namespace brolk {

// A way in which consoles store a colour.
struct PaletteFormat {
  std::string Name;
  std::uint8_t BytesPerColor = 0;
};

// The index is the format number of ColToRGB and RGBToCol. Six records, the first three are used.
inline Bounded<PaletteFormat, 5> PaletteFormats;
inline constexpr std::int32_t kUsedPaletteFormats = 3;

// Fills the used records.
void FillPaletteFormats();

// The text of an address field after an action: its number in decimal.
[[nodiscard]] std::string DecimalAddress(std::string_view text);

// A run of colours in the open file.
struct RomPaletteRun {
  std::int32_t format;      // index into PaletteFormats
  std::string addressText;  // file offset as a number in a text; a fraction rounds, ties to even
  std::int32_t count;       // colours, 0 to 256
};

// Reads a run into a new set behind the last one and names it "<typeName> at <address>". A list of 255 sets
// stays as it is. What the file does not deliver leaves the bytes of the colour before in force. Under the
// NES format a byte is consumed for each colour and every colour is black; that is meant. An offset beyond 32
// bits is the overflow fault.
void LoadRomPalette(std::int16_t handle, const RomPaletteRun& run, std::string_view typeName);

// Writes the selected set over a run. For each colour the word in the file is read, its top bit kept, and the
// first two characters of the new word's decimal text are written in its place (a single digit with a zero
// byte behind it); that is meant. Answers false when the format cannot be written; nothing is written then.
// An offset beyond 32 bits is the overflow fault.
[[nodiscard]] bool WriteRomPalette(std::int16_t handle, const RomPaletteRun& run);

}  // namespace brolk
