// SPDX-License-Identifier: MIT
#include "exchange/c_source.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "exchange/c_arrays.h"
#include "palette/palette_model.h"
#include "runtime/files.h"
#include "support/rule_files.h"
#include "tile/shared.h"

namespace brolk {
namespace {

using testing::ElementsAre;

TEST(SpriteSizes, AreTheTwelveRows) {
  const int rows[12][4] = {{8, 8, 16, 16}, {16, 8, 16, 8}, {8, 16, 8, 16}, {16, 16, 8, 8},
                           {32, 8, 4, 16}, {8, 32, 16, 4}, {32, 32, 4, 4}, {32, 16, 4, 8},
                           {16, 32, 8, 4}, {64, 64, 2, 2}, {64, 32, 2, 4}, {32, 64, 4, 2}};
  for (int row = 0; row < 12; ++row) {
    const SpriteSize* size = FindSpriteSize(row / 3, row % 3);
    ASSERT_NE(size, nullptr);
    EXPECT_EQ(size->widthPx, rows[row][0]) << row;
    EXPECT_EQ(size->heightPx, rows[row][1]) << row;
    EXPECT_EQ(size->maxRows, rows[row][2]) << row;
    EXPECT_EQ(size->maxLines, rows[row][3]) << row;
  }
}

TEST(SpriteSizes, FillTheGridButForTwoExchangedRows) {
  for (int row = 0; row < 12; ++row) {
    const SpriteSize& size = *FindSpriteSize(row / 3, row % 3);
    const bool exchanged = row == 1 || row == 2;
    EXPECT_EQ(exchanged ? size.maxLines : size.maxRows, 128 / size.widthPx) << row;
    EXPECT_EQ(exchanged ? size.maxRows : size.maxLines, 128 / size.heightPx) << row;
  }
}

TEST(SpriteSizes, ApplyOnlyWhenBothListsHaveAnEntry) {
  EXPECT_EQ(FindSpriteSize(-1, 0), nullptr);
  EXPECT_EQ(FindSpriteSize(0, -1), nullptr);
  EXPECT_EQ(FindSpriteSize(4, 0), nullptr);
  EXPECT_EQ(FindSpriteSize(0, 3), nullptr);
}

TEST(CTexts, AreTheStatedPieces) {
  EXPECT_EQ(ArrayStart("palette"), "const unsigned int palette[] = {");
  EXPECT_EQ(ArrayStart(""), "const unsigned int [] = {");
  EXPECT_EQ(WordText(0), "0x0000, ");
  EXPECT_EQ(WordText(0x7FFF), "0x7FFF, ");
  EXPECT_EQ(WordText(0xABCD), "0xABCD, ");
}

TEST(CTexts, TellPlanProgressAndResult) {
  SpritePlan plan{.name = "sprite", .widthPx = 8, .heightPx = 8};
  EXPECT_EQ(PlanText(plan), "Convert 1x1 of 8x8 = 1 tiles");
  EXPECT_EQ(ProgressText(plan, 0), "Converting... 0 of 1 tiles done.");
  EXPECT_EQ(ResultText(plan), "Converted 1 tiles");
  plan = {.name = "sprite", .widthPx = 32, .heightPx = 16, .rows = 4, .lines = 8};
  EXPECT_EQ(PlanText(plan), "Convert 4x8 of 32x16 = 256 tiles");
  EXPECT_EQ(ProgressText(plan, 255), "Converting... 255 of 256 tiles done.");
}

Bounded<std::uint8_t, 63> CountingPixels() {
  Bounded<std::uint8_t, 63> pixels;
  for (int i = 0; i <= 63; ++i) pixels[i] = static_cast<std::uint8_t>(i * 3);
  return pixels;
}

TEST(TileWord, SixteenColorsOverlapByTwoPixels) {
  const auto pixels = CountingPixels();
  for (int i = 0; i < 16; ++i) {
    const int expected = pixels[2 * i + 3] % 16 * 4096 + pixels[2 * i + 2] % 16 * 256 +
                         pixels[2 * i + 1] % 16 * 16 + pixels[2 * i] % 16;
    EXPECT_EQ(TileWord(pixels, TileWords::Colors16, i), expected) << i;
  }
}

TEST(TileWord, SixteenColorsShowTheFirst34PixelsOnly) {
  auto pixels = CountingPixels();
  const std::int32_t last = TileWord(pixels, TileWords::Colors16, 15);
  pixels[33] = static_cast<std::uint8_t>(pixels[33] ^ 1);
  EXPECT_NE(TileWord(pixels, TileWords::Colors16, 15), last);
  const std::int32_t changed = TileWord(pixels, TileWords::Colors16, 15);
  for (int i = 34; i <= 63; ++i) pixels[i] = 0;
  EXPECT_EQ(TileWord(pixels, TileWords::Colors16, 15), changed);
}

TEST(TileWord, ManyColorsPutTheHigherPixelIntoTheHighByte) {
  const auto pixels = CountingPixels();
  for (int i = 0; i < 32; ++i)
    EXPECT_EQ(TileWord(pixels, TileWords::Colors256, i), pixels[2 * i + 1] * 256 + pixels[2 * i]) << i;
}

// Runs in a folder of its own, because the palette goes to the current one.
class CSource : public testing::Test {
 protected:
  CSource() : folderBefore_(std::filesystem::current_path()) {
    std::filesystem::current_path(test::NativeRulePath(test::RulePath("")));
    SetDefaultPalette();
    ClearAllSlots();
    // Each slot tells its number by its first two pixels, in both modes as far as they reach.
    for (int slot = 0; slot <= 255; ++slot) {
      EditSlots[slot].Pixels[0] = static_cast<std::uint8_t>(slot);
      EditSlots[slot].Pixels[1] = static_cast<std::uint8_t>(slot / 16);
    }
    hFile = OpenFile(test::WriteRuleFile("open.rom", "0123456789"), kOpenReadWrite);
    rom_ = hFile;
  }
  ~CSource() override {
    _lclose(rom_);
    std::filesystem::current_path(folderBefore_);
  }

  static std::string PaletteText(const std::string& name, int count, std::uint8_t format) {
    WritePaletteSource(name, count, format);
    return test::ReadRuleFile(test::RulePath("Palette.h"));
  }

  static std::string SpriteText(const SpritePlan& plan) {
    const std::string path = test::RulePath("sprites.h");
    WriteSpriteSource(path, plan, [](int) {});
    return test::ReadRuleFile(path);
  }

  // The slot numbers that an array shows with 256 colours, tile by tile.
  static std::vector<int> SlotsOf(const test::CArray& array) {
    std::vector<int> slots;
    for (std::size_t word = 0; word < array.words.size(); word += 32)
      slots.push_back(static_cast<int>(array.words[word] & 0xFF));
    return slots;
  }

  std::int16_t rom_ = -1;

 private:
  std::filesystem::path folderBefore_;
};

TEST_F(CSource, SixteenColorsByteForByte) {
  Palette.fill(0);
  Palette[0] = 0xFFFFFF;
  Palette[1] = 0x0000FF;
  Palette[15] = 0xFF0000;
  EXPECT_EQ(PaletteText("palette", 16, 1),
            "const unsigned int palette[] = {"
            "\r\n  0x7FFF, 0x7C00, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, "
            "\r\n  0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x001F, "
            "\r\n };\r\n\r\n");
}

TEST_F(CSource, RedGoesHighWithFormatOneAndLowWithFormatZero) {
  Palette[0] = 0x0000FF;
  Palette[1] = 0xFFFFFF;
  EXPECT_THAT(PaletteText("p", 16, 1), testing::HasSubstr("{\r\n  0x7C00, 0x7FFF, "));
  EXPECT_THAT(PaletteText("p", 16, 0), testing::HasSubstr("{\r\n  0x001F, 0x7FFF, "));
}

TEST_F(CSource, ColorsWithATopByteAreTakenApartByDivision) {
  Palette[0] = -14326;  // 10, 201, 0
  const auto arrays = test::ReadArrays(PaletteText("p", 16, 0));
  EXPECT_EQ(arrays[0].words[0], 25U * 32 + 1);
}

TEST_F(CSource, AllColorsMakeThirtyTwoLines) {
  const std::string text = PaletteText("all", 256, 0);
  const auto arrays = test::ReadArrays(text);
  ASSERT_EQ(arrays.size(), 1U);
  ASSERT_EQ(arrays[0].words.size(), 256U);
  for (int i = 0; i < 256; ++i)
    EXPECT_EQ(arrays[0].words[static_cast<std::size_t>(i)], static_cast<unsigned>(RGBToCol(Palette[i], 0)))
        << i;
  std::size_t lines = 0;
  for (std::size_t at = text.find("\r\n  0x"); at != std::string::npos; at = text.find("\r\n  0x", at + 1))
    ++lines;
  EXPECT_EQ(lines, 32U);
}

TEST_F(CSource, EmptyNameIsLeftEmpty) {
  EXPECT_EQ(PaletteText("", 16, 0).substr(0, 25), "const unsigned int [] = {");
}

TEST_F(CSource, PaletteReplacesAnExistingFile) {
  const std::string fresh = PaletteText("p", 16, 0);
  test::WriteRuleFile("Palette.h", std::string(9999, 'x'));
  EXPECT_EQ(PaletteText("p", 16, 0), fresh);
}

TEST_F(CSource, TheOpenFileIsLost) {
  PaletteText("p", 16, 0);
  EXPECT_NE(hFile, rom_);
  std::uint8_t byte = 0xEE;
  _llseek(hFile, 0, kFromStart);
  EXPECT_EQ(_hread(hFile, std::span(&byte, 1)), -1);
  EXPECT_EQ(_hwrite(hFile, "x"), -1);
  EXPECT_EQ(test::ReadRuleFile(test::RulePath("open.rom")), "0123456789");
  EXPECT_EQ(OpenFileLength(rom_), 10) << "the file itself stays open to the end of the process";
}

TEST_F(CSource, SpritesLoseTheOpenFileToo) {
  SpriteText({.name = "s", .widthPx = 8, .heightPx = 8});
  EXPECT_NE(hFile, rom_);
  EXPECT_EQ(_hwrite(hFile, "x"), -1);
}

TEST_F(CSource, FailedCreateGoesUnnoticed) {
  std::vector<int> heard;
  WriteSpriteSource(test::RulePath("no-such-folder/x.h"), {.name = "s", .widthPx = 8, .heightPx = 8},
                    [&](int done) { heard.push_back(done); });
  EXPECT_EQ(hFile, -1);
  EXPECT_THAT(heard, ElementsAre(0));
}

TEST_F(CSource, DefaultSpriteByteForByte) {
  for (int i = 0; i <= 63; ++i) EditSlots[0].Pixels[i] = static_cast<std::uint8_t>(i % 16);
  EXPECT_EQ(SpriteText({.name = "sprite", .widthPx = 8, .heightPx = 8}),
            "const unsigned int sprite0[] = {"
            "\r\n  0x3210, 0x5432, 0x7654, 0x9876, "
            "\r\n  0xBA98, 0xDCBA, 0xFEDC, 0x10FE, "
            "\r\n  0x3210, 0x5432, 0x7654, 0x9876, "
            "\r\n  0xBA98, 0xDCBA, 0xFEDC, 0x10FE, "
            "\r\n };\r\n\r\n");
}

TEST_F(CSource, ManyColorsByteForByte) {
  for (int i = 0; i <= 63; ++i) EditSlots[0].Pixels[i] = static_cast<std::uint8_t>(i + 0xC0);
  EXPECT_EQ(SpriteText({.name = "t", .widthPx = 8, .heightPx = 8, .words = TileWords::Colors256}),
            "const unsigned int t0[] = {"
            "\r\n  0xC1C0, 0xC3C2, 0xC5C4, 0xC7C6, 0xC9C8, 0xCBCA, 0xCDCC, 0xCFCE, "
            "\r\n  0xD1D0, 0xD3D2, 0xD5D4, 0xD7D6, 0xD9D8, 0xDBDA, 0xDDDC, 0xDFDE, "
            "\r\n  0xE1E0, 0xE3E2, 0xE5E4, 0xE7E6, 0xE9E8, 0xEBEA, 0xEDEC, 0xEFEE, "
            "\r\n  0xF1F0, 0xF3F2, 0xF5F4, 0xF7F6, 0xF9F8, 0xFBFA, 0xFDFC, 0xFFFE, "
            "\r\n };\r\n\r\n");
}

TEST_F(CSource, SmallSquaresCoverTheGridInSlotOrder) {
  const auto arrays = test::ReadArrays(SpriteText({.name = "sprite",
                                                   .widthPx = 8,
                                                   .heightPx = 8,
                                                   .rows = 16,
                                                   .lines = 16,
                                                   .words = TileWords::Colors256}));
  ASSERT_EQ(arrays.size(), 256U);
  for (int i = 0; i < 256; ++i) {
    EXPECT_EQ(arrays[static_cast<std::size_t>(i)].name, "sprite" + std::to_string(i));
    EXPECT_THAT(SlotsOf(arrays[static_cast<std::size_t>(i)]), ElementsAre(i));
  }
}

TEST_F(CSource, NumbersCountInTheMaximumAndHaveGaps) {
  const auto arrays = test::ReadArrays(SpriteText({.name = "sprite",
                                                   .widthPx = 16,
                                                   .heightPx = 16,
                                                   .rows = 2,
                                                   .lines = 2,
                                                   .maxRows = 8,
                                                   .words = TileWords::Colors256}));
  ASSERT_EQ(arrays.size(), 4U);
  EXPECT_EQ(arrays[0].name, "sprite0");
  EXPECT_EQ(arrays[1].name, "sprite1");
  EXPECT_EQ(arrays[2].name, "sprite8");
  EXPECT_EQ(arrays[3].name, "sprite9");
  EXPECT_THAT(SlotsOf(arrays[1]), ElementsAre(2, 3, 18, 19));
  EXPECT_THAT(SlotsOf(arrays[2]), ElementsAre(32, 33, 48, 49));
}

TEST_F(CSource, WideSmallSpritesRunOnIntoTheNextLine) {
  const auto arrays = test::ReadArrays(SpriteText({.name = "w",
                                                   .widthPx = 16,
                                                   .heightPx = 8,
                                                   .rows = 16,
                                                   .lines = 8,
                                                   .maxRows = 16,
                                                   .words = TileWords::Colors256}));
  ASSERT_EQ(arrays.size(), 128U);
  EXPECT_THAT(SlotsOf(arrays[7]), ElementsAre(14, 15));
  EXPECT_THAT(SlotsOf(arrays[8]), ElementsAre(16, 17));
  EXPECT_THAT(SlotsOf(arrays[127]), ElementsAre(7 * 16 + 30, 7 * 16 + 31));
}

TEST_F(CSource, HighSmallSpritesFaultBeyondEightLines) {
  const std::string path = test::RulePath("high.h");
  const SpritePlan plan{.name = "h", .widthPx = 8, .heightPx = 16, .rows = 8, .lines = 9, .maxRows = 8};
  std::vector<int> heard;
  EXPECT_EQ(
      test::RuleFaultOf([&] { WriteSpriteSource(path, plan, [&](int done) { heard.push_back(done); }); }),
      FaultKind::SubscriptOutOfRange);
  const std::string text = test::ReadRuleFile(path);
  const std::string end = "\r\n };\r\n\r\nconst unsigned int h64[] = {\r\n  ";
  ASSERT_GT(text.size(), end.size());
  EXPECT_EQ(text.substr(text.size() - end.size()), end) << "array start and line prefix are there";
  EXPECT_EQ(test::ReadArrays(text).size(), 65U);
  EXPECT_EQ(heard.back(), 128) << "the text of the tile comes before the fault";
}

TEST_F(CSource, HighSmallSpritesWithEightLinesFit) {
  EXPECT_EQ(test::ReadArrays(
                SpriteText({.name = "h", .widthPx = 8, .heightPx = 16, .rows = 8, .lines = 8, .maxRows = 8}))
                .size(),
            64U);
}

TEST_F(CSource, WideMiddleSpritesFillTheGrid) {
  const SpriteSize& size = *FindSpriteSize(2, 1);
  const auto arrays = test::ReadArrays(SpriteText({.name = "m",
                                                   .widthPx = size.widthPx,
                                                   .heightPx = size.heightPx,
                                                   .rows = size.maxRows,
                                                   .lines = size.maxLines,
                                                   .maxRows = size.maxRows,
                                                   .words = TileWords::Colors256}));
  ASSERT_EQ(arrays.size(), 32U);
  std::vector<int> seen(256);
  for (const auto& array : arrays) {
    for (const int slot : SlotsOf(array)) ++seen[static_cast<std::size_t>(slot)];
  }
  EXPECT_EQ(std::count(seen.begin(), seen.end(), 1), 256);
  EXPECT_EQ(arrays.back().name, "m31");
}

TEST_F(CSource, NonCopiedSlotsAreWrittenAsTheirZeros) {
  ClearSlot(0);
  const auto arrays = test::ReadArrays(SpriteText({.name = "z", .widthPx = 8, .heightPx = 8}));
  EXPECT_EQ(arrays[0].words, std::vector<unsigned>(16));
}

TEST_F(CSource, ProgressIsToldBeforeEachTile) {
  std::vector<int> heard;
  WriteSpriteSource(test::RulePath("progress.h"),
                    {.name = "p", .widthPx = 16, .heightPx = 8, .rows = 1, .lines = 2},
                    [&](int done) { heard.push_back(done); });
  EXPECT_THAT(heard, ElementsAre(0, 1, 2, 3));
}

TEST_F(CSource, EveryValueIsAWriteOfItsOwn) {
  const std::string whole = SpriteText({.name = "s", .widthPx = 8, .heightPx = 8});
  const std::string path = test::RulePath("full.h");
  FailFileCallsAfter(4);  // array start, line prefix, two values
  WriteSpriteSource(path, {.name = "s", .widthPx = 8, .heightPx = 8}, [](int) {});
  FailFileCallsAfter(-1);
  EXPECT_EQ(test::ReadRuleFile(path), whole.substr(0, whole.find("0x") + 16));
}

}  // namespace
}  // namespace brolk
