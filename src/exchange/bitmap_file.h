// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "editor/slots.h"
#include "palette/palette_model.h"
#include "runtime/byte_reader.h"

// The Editor's 16 by 16 slots as one picture: 128 by 128 pixels, an uncompressed Windows bitmap of 8 bits.
namespace brolk {

inline constexpr int kBmpSidePx = 128;
inline constexpr int kBmpPixelBytes = kBmpSidePx * kBmpSidePx;
inline constexpr int kBmpColorBytes = 256 * 4;  // blue, green, red, one unused
inline constexpr int kBmpHeadBytes = 54;
inline constexpr int kBmpFileBytes = kBmpHeadBytes + kBmpColorBytes + kBmpPixelBytes;
static_assert(kBmpFileBytes == 17462);

// The fixed start of the file, one character a byte. Import compares a file with the first string; the second
// is only written.
inline std::string BmpHeadBytes;  // bytes 0 to 31
inline std::string BmpTailBytes;  // bytes 32 to 53

// Builds the two strings; the start-up calls it once.
void InitBmpHeader();

// Where a pixel of the picture stands among the slots.
struct SlotPixel {
  std::uint8_t slot;   // 0 to 255
  std::uint8_t pixel;  // 0 to 63
};

// The slot pixel of file row `row` (0 is the first row in the file, the bottom of the picture) and column
// `column`, both 0 to 127.
[[nodiscard]] SlotPixel PlaceInSlots(int row, int column);

using PaletteTable = Bounded<ColorValue, 255>;
using SlotTable = Bounded<EditSlot, 255>;

// The whole file: both header strings, the colours, the pixels of all slots whatever their addresses.
[[nodiscard]] std::string EncodeBmp(const PaletteTable& palette, const SlotTable& slots);

// The part of the file behind its header, kBmpColorBytes and kBmpPixelBytes long: replaces all 256 colours
// and the pixels of all slots. A slot with a pixel that is not zero becomes unaddressed, the others
// non-copied.
void DecodeBmp(std::string_view body, PaletteTable& palette, SlotTable& slots);

enum class BmpImport { Done, WrongSize, WrongHeader };

// Reads a picture into Palette and EditSlots and rebuilds the slot surfaces. A file that is not there has the
// wrong size. A refused file changes nothing.
[[nodiscard]] BmpImport ImportBmpFile(const FileSource& file);

// Writes Palette and EditSlots as a picture over whatever stands there. A file that cannot be created or
// written goes unnoticed.
void ExportBmpFile(std::string_view path);

}  // namespace brolk
