// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "palette/color_sets.h"
#include "palette/palette_files_kind.h"

// The four palette formats that are read and written. All of them work on Sets, SetCount and SelectedSet. The
// text and the old binary format hold all sets, the Riff and the Tile Layer format the selected one.
namespace brolk {

inline constexpr std::string_view kTextPaletteHeader = "Brolk Plus palette file";
inline constexpr std::string_view kOldBinaryHeader = "BXP";

// The first bytes of a Riff palette: "RIFF", 1044, "PAL data", 1032, 768 (16 bits), 256 (16 bits).
inline constexpr std::array<char, 24> RiffHeader = {82,  73, 70,  70, 20, 4, 0, 0, 80, 65, 76, 32,
                                                    100, 97, 116, 97, 8,  4, 0, 0, 0,  3,  0,  1};
inline constexpr std::int64_t kRiffPaletteBytes = 1052;

// Reads lines: header, number of sets, an empty line; for each set its name, 256 lines of red, green and blue
// in decimal, an empty line. With sets in the list it asks first, even for a file that then proves invalid,
// whether to replace the list; else the sets are added, and those beyond place 254 ignored. Faults: a count
// outside 0 to 255 (overflow), a file that ends early, a line with fewer than three numbers; SetCount is
// raised by then.
LoadOutcome LoadTextPalette(const PaletteKind& kind, const LoadRequest& request);

// Reads sets of name, zero byte and 768 bytes of colours to the end of the file, from place 0 on, with no
// question. SetCount follows each complete set in 8 bits, so 256 sets make it 0 and the next one overwrites
// place 0. The record behind the last complete set loses its name.
LoadOutcome LoadOldBinaryPalette(const PaletteKind& kind, const LoadRequest& request);

// Adds the set of a Riff palette.
LoadOutcome LoadRiffPalette(const PaletteKind& kind, const LoadRequest& request);

// Adds 16 colours of 6 bits a channel, the others black. A file that is too short lends its last byte, or 0,
// to all channels that it lacks.
LoadOutcome LoadTileLayerPalette(const PaletteKind& kind, const LoadRequest& request);

// With an empty list these two never end: the last place is SetCount - 1 in 8 bits, which is 255, and an
// 8-bit counter never passes it. That is meant. handle is open for writing on path; the text format closes it
// and makes the file again, and a path that cannot be written is the file fault.
void SaveTextPalette(std::int16_t handle, std::string_view path);
void SaveOldBinaryPalette(std::int16_t handle, std::string_view path);

// Write the selected set, whether the list holds it or not.
void SaveRiffPalette(std::int16_t handle, std::string_view path);
void SaveTileLayerPalette(std::int16_t handle, std::string_view path);

// One set as the formats hold it: lines with their ends (without the empty line that follows); name, zero
// byte and 768 bytes; 1052 bytes; 48 bytes.
[[nodiscard]] std::string TextPaletteOf(const ColorSetRecord& set);
[[nodiscard]] std::string OldBinaryPaletteOf(const ColorSetRecord& set);
[[nodiscard]] std::string RiffPaletteOf(const ColorSetRecord& set);
[[nodiscard]] std::string TileLayerPaletteOf(const ColorSetRecord& set);

// The colour of a line of the text format: the first three parts between single blanks, each rounded, above
// 255 counting as 255. Fewer than three parts are the subscript fault, a part that is no number the type
// fault; what follows the third part is ignored.
[[nodiscard]] ColorValue ColorOfLine(std::string_view line);

// A 6-bit channel widened: 255 above 62, else the integer part of value * 4.1.
[[nodiscard]] std::uint8_t TileLayerChannel(std::uint8_t value);

// The colour as the Riff and Tile Layer readers put it together: green * 256 + red is a signed 16-bit number
// before blue joins it, so a green of 128 or more takes 65536 away. That is meant, and only these two do it.
[[nodiscard]] ColorValue AssembleColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue);

}  // namespace brolk
