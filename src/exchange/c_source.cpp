// SPDX-License-Identifier: MIT
#include "exchange/c_source.h"

#include "palette/palette_model.h"
#include "runtime/files.h"
#include "tile/shared.h"

namespace brolk {
namespace {

constexpr std::string_view kLinePrefix = "\r\n  ";
constexpr std::string_view kArrayEnd = "\r\n };\r\n\r\n";

// A line of words begins where the index is a multiple of this.
constexpr int kPaletteWordsPerLine = 8;

struct WordLayout {
  int words;     // of a tile
  int perLine;   // words
  int pixels;    // in a word
  int bitsEach;  // of a pixel
};

constexpr WordLayout kWordLayouts[] = {{16, 4, 4, 4}, {32, 8, 2, 8}};

// Both layouts step by two pixels; only with two pixels a word do the words not overlap.
constexpr int kPixelStep = 2;

const WordLayout& LayoutOf(TileWords words) {
  return kWordLayouts[static_cast<std::size_t>(words)];
}

void WriteText(std::string_view text) {
  _hwrite(hFile, text);
}

void WriteTileWords(int slot, TileWords words) {
  const WordLayout& layout = LayoutOf(words);
  for (int i = 0; i < layout.words; ++i) {
    if (i % layout.perLine == 0) WriteText(kLinePrefix);
    WriteText(WordText(TileWord(EditSlots[slot].Pixels, words, i)));
  }
}

// One sprite's way through the grid, its tiles in reading order.
class SpriteRun {
 public:
  SpriteRun(const SpritePlan& plan, const std::function<void(int)>& progress)
      : plan_(plan), progress_(progress), tilesAcross_(plan.widthPx / 8), tilesDown_(plan.heightPx / 8) {}

  // line and row count from 1.
  void WriteSprite(int line, int row) {
    WriteText(ArrayStart(plan_.name + std::to_string((line - 1) * plan_.maxRows + row - 1)));
    for (int ty = 1; ty <= tilesDown_; ++ty) {
      for (int tx = 1; tx <= tilesAcross_; ++tx) {
        progress_(done_++);
        WriteTileWords((tilesDown_ * (line - 1) + ty - 1) * 16 + tilesAcross_ * (row - 1) + tx - 1,
                       plan_.words);
      }
    }
    WriteText(kArrayEnd);
  }

 private:
  const SpritePlan& plan_;
  const std::function<void(int)>& progress_;
  int tilesAcross_;
  int tilesDown_;
  int done_ = 0;
};

}  // namespace

const SpriteSize* FindSpriteSize(int sizePosition, int shapePosition) {
  if (sizePosition < 0 || sizePosition >= kSpriteSizeCount) return nullptr;
  if (shapePosition < 0 || shapePosition >= kSpriteShapeCount) return nullptr;
  return &kSpriteSizes[sizePosition][shapePosition];
}

int TileCount(const SpritePlan& plan) {
  return (plan.heightPx / 8) * (plan.widthPx / 8) * plan.rows * plan.lines;
}

std::string PlanText(const SpritePlan& plan) {
  return "Convert " + std::to_string(plan.rows) + "x" + std::to_string(plan.lines) + " of " +
         std::to_string(plan.widthPx) + "x" + std::to_string(plan.heightPx) + " = " +
         std::to_string(TileCount(plan)) + " tiles";
}

std::string ProgressText(const SpritePlan& plan, int done) {
  return "Converting... " + std::to_string(done) + " of " + std::to_string(TileCount(plan)) + " tiles done.";
}

std::string ResultText(const SpritePlan& plan) {
  return "Converted " + std::to_string(TileCount(plan)) + " tiles";
}

std::string ArrayStart(std::string_view name) {
  return "const unsigned int " + std::string(name) + "[] = {";
}

std::string WordText(std::int32_t word) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text = "0x";
  for (int shift = 12; shift >= 0; shift -= 4)
    text += kDigits[static_cast<std::size_t>((word >> shift) & 15)];
  return text + ", ";
}

std::int32_t TileWord(const Bounded<std::uint8_t, 63>& pixels, TileWords words, int index) {
  const WordLayout& layout = LayoutOf(words);
  const int highest = (1 << layout.bitsEach) - 1;
  std::int32_t word = 0;
  for (int k = 0; k < layout.pixels; ++k)
    word |= (pixels[index * kPixelStep + k] & highest) << (k * layout.bitsEach);
  return word;
}

void WritePaletteSource(std::string_view name, int count, std::uint8_t format) {
  hFile = OpenFile("Palette.h", kOpenCreate);
  WriteText(ArrayStart(name));
  for (int i = 0; i < count; ++i) {
    if (i % kPaletteWordsPerLine == 0) WriteText(kLinePrefix);
    WriteText(WordText(RGBToCol(Palette[i], format)));
  }
  WriteText(kArrayEnd);
  _lclose(hFile);
}

void WriteSpriteSource(std::string_view path, const SpritePlan& plan,
                       const std::function<void(int done)>& progress) {
  hFile = OpenFile(path, kOpenCreate);
  SpriteRun run(plan, progress);
  for (int line = 1; line <= plan.lines; ++line) {
    for (int row = 1; row <= plan.rows; ++row) run.WriteSprite(line, row);
  }
  _lclose(hFile);
}

}  // namespace brolk
