// SPDX-License-Identifier: MIT
#include <cmath>

#include "palette/palette_files_support.h"

namespace brolk::test {
namespace {

using TileLayerPalette = PaletteFilesTest;

TEST_F(TileLayerPalette, AddsSixteenColoursAndBlackensTheRest) {
  FillList(1);
  Sets[1].Colors.fill(99);
  Bytes bytes;
  for (int index = 0; index < 16; ++index) bytes.List({index, 10, 1});
  ExpectDone(Load(kTileLayer, bytes.Str()));
  EXPECT_EQ(SetCount, 2);
  EXPECT_EQ(Sets[1].Name, "Tile Layer palette");
  for (int index = 0; index < 16; ++index) {
    EXPECT_EQ(Sets[1].Colors[index], static_cast<int>(std::floor(index * 4.1)) + 41 * 256 + 4 * 65536)
        << index;
  }
  for (int index = 16; index < 256; ++index) ASSERT_EQ(Sets[1].Colors[index], 0);
}

TEST_F(TileLayerPalette, WidensSixBits) {
  EXPECT_EQ(TileLayerChannel(0), 0);
  EXPECT_EQ(TileLayerChannel(1), 4);
  EXPECT_EQ(TileLayerChannel(10), 41);
  EXPECT_EQ(TileLayerChannel(20), 82);
  EXPECT_EQ(TileLayerChannel(30), 122);
  EXPECT_EQ(TileLayerChannel(40), 164);
  EXPECT_EQ(TileLayerChannel(50), 204);
  EXPECT_EQ(TileLayerChannel(60), 245);
  EXPECT_EQ(TileLayerChannel(62), 254);
  EXPECT_EQ(TileLayerChannel(63), 255);
  EXPECT_EQ(TileLayerChannel(64), 255);
  EXPECT_EQ(TileLayerChannel(255), 255);
}

TEST_F(TileLayerPalette, PutsColoursTogetherLikeTheRiffReader) {
  // Green 40 becomes 164, so 65536 is missing from the plain pack.
  ExpectDone(Load(kTileLayer, Bytes().List({10, 40, 10}).Fill(45).Str()));
  EXPECT_EQ(Sets[0].Colors[0], 41 + 164 * 256 + 41 * 65536 - 65536);
}

TEST_F(TileLayerPalette, AcceptsAnyLength) {
  for (const std::size_t size : {48U, 49U, 1052U, 100000U}) {
    SetCount = 0;
    ExpectDone(Load(kTileLayer, std::string(size, '\1')));
    EXPECT_EQ(SetCount, 1);
    EXPECT_EQ(Sets[0].Colors[15], 4 + 4 * 256 + 4 * 65536) << size;
    EXPECT_EQ(Sets[0].Colors[16], 0) << size;
  }
}

TEST_F(TileLayerPalette, TakesARiffPaletteForItsFirst48Bytes) {
  ExpectDone(Load(kTileLayer, Sample(kRiff).bytes));
  EXPECT_EQ(Sets[0].Name, "Tile Layer palette");
  EXPECT_EQ(Sets[0].Colors[0], AssembleColor(255, 255, 255));  // "R", "I", "F" are all above 62
}

// Cut at each byte: the last byte that came serves every channel after it.
TEST_F(TileLayerPalette, TheLastByteOfACutFileServesTheRest) {
  std::string whole;
  for (int at = 0; at < 48; ++at) whole += static_cast<char>(at + 1);
  for (std::size_t kept = 1; kept <= 48; ++kept) {
    SetCount = 0;
    ExpectDone(Load(kTileLayer, Cut(whole, kept)));
    EXPECT_EQ(SetCount, 1);
    for (std::size_t index = 0; index < 16; ++index) {
      int channels[3] = {};
      for (std::size_t k = 0; k < 3; ++k) {
        const std::size_t at = std::min(index * 3 + k, kept - 1);
        channels[k] = static_cast<int>(std::floor(static_cast<double>(at + 1) * 4.1));
      }
      const int lowTwo = channels[0] + channels[1] * 256;
      const int expected = (lowTwo >= 32768 ? lowTwo - 65536 : lowTwo) + channels[2] * 65536;
      ASSERT_EQ(Sets[0].Colors[static_cast<int>(index)], expected) << kept << " " << index;
    }
  }
}

TEST_F(TileLayerPalette, AnEmptyFileGivesBlack) {
  Sets[0].Colors.fill(99);
  ExpectDone(Load(kTileLayer, ""));
  EXPECT_EQ(SetCount, 1);
  for (const ColorValue color : Sets[0].Colors) ASSERT_EQ(color, 0);
}

TEST_F(TileLayerPalette, AFullListSaysNothing) {
  FillList(255);
  const ListState before = CurrentList();
  ExpectDone(Load(kTileLayer, std::string(48, '\1')));
  EXPECT_EQ(CurrentList(), before);
}

TEST_F(TileLayerPalette, FillsTheLastPlace) {
  FillList(254);
  ExpectDone(Load(kTileLayer, std::string(48, '\1')));
  EXPECT_EQ(SetCount, 255);
  EXPECT_EQ(Sets[254].Name, "Tile Layer palette");
}

TEST_F(TileLayerPalette, SavesSixteenColoursOfTheSelectedSetByQuarters) {
  FillList(2, 0x00FFFFFF);
  SelectedSet = 1;
  for (int index = 0; index < 256; ++index) Sets[1].Colors[index] = index + 255 * 256 + 7 * 65536;
  const ListState before = CurrentList();
  SavePaletteFile(kTileLayer, PathOf("saved"));
  Bytes expected;
  for (int index = 0; index < 16; ++index) expected.List({index / 4, 63, 1});
  EXPECT_EQ(ReadFile(PathOf("saved")), expected.Str());
  EXPECT_EQ(CurrentList(), before);
}

TEST_F(TileLayerPalette, SavesTheSelectedSetOfAnEmptyList) {
  Sets[200].Colors.fill(0x00040404);
  SelectedSet = 200;
  SavePaletteFile(kTileLayer, PathOf("saved"));
  EXPECT_EQ(ReadFile(PathOf("saved")), std::string(48, '\1'));
}

TEST_F(TileLayerPalette, EmptiesAnExistingFileFirst) {
  SavePaletteFile(kTileLayer, MakeFile("saved", std::string(5000, 'x')));
  EXPECT_EQ(ReadFile(PathOf("saved")).size(), 48U);
}

}  // namespace
}  // namespace brolk::test
