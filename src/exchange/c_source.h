// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "editor/slots.h"

// Palette and Editor as C source for the Game Boy Advance: arrays of 16-bit words. All texts are Windows-1252
// bytes; lines end with a carriage return and a line feed.
namespace brolk {

// The size of a sprite and how many of them fit beside and below each other, as the program counts it.
struct SpriteSize {
  std::uint8_t widthPx;
  std::uint8_t heightPx;
  std::uint8_t maxRows;   // sprites across
  std::uint8_t maxLines;  // sprites down
};

inline constexpr int kSpriteSizeCount = 4;   // 8, 16, 32, 64
inline constexpr int kSpriteShapeCount = 3;  // square, wide, high

// [size][shape]. The maxima are 128 divided by width and height, but for 8 Wide and 8 High, which have them
// exchanged. That is meant: 8 Wide runs on into the next line of the grid beyond 8 rows, 8 High beyond 8
// lines runs out of the grid.
inline constexpr SpriteSize kSpriteSizes[kSpriteSizeCount][kSpriteShapeCount] = {
    {{8, 8, 16, 16}, {16, 8, 16, 8}, {8, 16, 8, 16}},
    {{16, 16, 8, 8}, {32, 8, 4, 16}, {8, 32, 16, 4}},
    {{32, 32, 4, 4}, {32, 16, 4, 8}, {16, 32, 8, 4}},
    {{64, 64, 2, 2}, {64, 32, 2, 4}, {32, 64, 4, 2}},
};

// The row of the table for two list positions; null while one of the lists has no entry chosen (-1).
[[nodiscard]] const SpriteSize* FindSpriteSize(int sizePosition, int shapePosition);

// How the 64 pixels of a tile become words.
enum class TileWords : std::uint8_t {
  // Four pixels a word, 16 words. The pixel index advances by 2 and not by 4, so that neighbouring words
  // share
  // two pixels and pixels 34 to 63 never appear. That is meant.
  Colors16,
  // Two pixels a word, 32 words.
  Colors256,
};

// What one run writes.
struct SpritePlan {
  std::string name;           // of the variables; the number of the sprite follows it
  std::uint8_t widthPx = 0;   // of a sprite
  std::uint8_t heightPx = 0;  // of a sprite
  int rows = 1;               // sprites across
  int lines = 1;              // sprites down
  int maxRows = 16;           // numbers count in it, so a sprite keeps its number when fewer rows are chosen
  TileWords words = TileWords::Colors16;
};

// The number of 8 by 8 tiles of a run.
[[nodiscard]] int TileCount(const SpritePlan& plan);

// The texts of the plan, of the run after `done` tiles, and of the result.
[[nodiscard]] std::string PlanText(const SpritePlan& plan);
[[nodiscard]] std::string ProgressText(const SpritePlan& plan, int done);
[[nodiscard]] std::string ResultText(const SpritePlan& plan);

// "const unsigned int <name>[] = {". The type word stands although the values have 16 bits.
[[nodiscard]] std::string ArrayStart(std::string_view name);

// "0x", four capital hexadecimal digits, ", ".
[[nodiscard]] std::string WordText(std::int32_t word);

// The word number `index` of a tile: 0 to 15 or 0 to 31.
[[nodiscard]] std::int32_t TileWord(const Bounded<std::uint8_t, 63>& pixels, TileWords words, int index);

// Writes the first `count` colours of Palette (1 to 256) as one array to "Palette.h" in the current folder of
// the process, through RGBToCol with `format`.
//
// The handle goes into hFile, the variable of the open file. That is meant: the file that was open there is
// lost, reads of it give nothing and writes vanish until a file is opened again. WriteSpriteSource does the
// same. A file that cannot be created goes unnoticed.
void WritePaletteSource(std::string_view name, int count, std::uint8_t format);

// Writes the sprites of the plan from EditSlots to a file (path in UTF-8), one array each. progress hears the
// number of tiles done before each tile. A slot beyond the grid is the subscript fault; the start of its
// array and the first line prefix are in the file by then.
void WriteSpriteSource(std::string_view path, const SpritePlan& plan,
                       const std::function<void(int done)>& progress);

}  // namespace brolk
