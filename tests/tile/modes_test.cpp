// SPDX-License-Identifier: MIT
#include "tile/modes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "runtime/fault.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

TEST(Modes, HoldTheirNamesAndNumbers) {
  struct Row {
    std::string name;
    int bytes;
    int bits;
  };
  const std::vector<Row> rows = {
      {"Gameboy", 16, 2},
      {"Nes", 16, 2},
      {"Neo Geo Pocket", 16, 2},
      {"Snes 4bpp", 32, 4},
      {"1 bit per pixel", 8, 1},
      {"Virtual Boy", 16, 2},
      {"Sega Mega Drive", 32, 4},
      {"GG, MS, WSC", 32, 4},
      {"Snes 3bpp", 24, 3},
      {"GBA 4bpp", 32, 4},
      {"GBA 8bpp", 64, 8},
      {"Snes 8bpp", 64, 8},
      {"Bitmap Mode", 8, 1},
      {"PC Engine 8x8 char", 32, 4},
      {"PC Engine 16x16 sprite", 32, 4},
  };
  FillModes();
  ASSERT_EQ(static_cast<int>(rows.size()), kModeCount);
  for (int mode = 0; mode < kModeCount; ++mode) {
    const Row& row = rows[static_cast<std::size_t>(mode)];
    EXPECT_EQ(Modes[mode].Name, row.name);
    EXPECT_EQ(Modes[mode].BytesPerTile, row.bytes) << row.name;
    EXPECT_EQ(Modes[mode].BitsPerPixel, row.bits) << row.name;
  }
}

TEST(Modes, EndAtFourteen) {
  EXPECT_THROW(static_cast<void>(Modes[15]), Fault);
  EXPECT_THROW(static_cast<void>(Modes[-1]), Fault);
}

TEST(Modes, StandInTheOrderOfTheList) {
  FillModes();
  const std::vector<std::string> names = {"Snes 4bpp",
                                          "Snes 8bpp",
                                          "Snes 3bpp",
                                          "Nes",
                                          "Gameboy",
                                          "GBA 4bpp",
                                          "GBA 8bpp",
                                          "Virtual Boy",
                                          "Sega Mega Drive",
                                          "PC Engine 8x8 char",
                                          "PC Engine 16x16 sprite",
                                          "GG, MS, WSC",
                                          "Neo Geo Pocket",
                                          "1 bit per pixel",
                                          "Bitmap Mode"};
  for (std::size_t position = 0; position < names.size(); ++position) {
    EXPECT_EQ(Modes[kModeMap[position]].Name, names[position]);
  }
}

TEST(PageBuffer, HasEntriesUpTo65536) {
  PageBuffer[65536] = 7;
  EXPECT_EQ(PageBuffer[65536], 7);
  EXPECT_THROW(PageBuffer[65537] = 1, Fault);
  EXPECT_THROW(PageBuffer[-1] = 1, Fault);
}

class SelectedTile : public ::testing::Test {
 protected:
  void SetUp() override {
    FillModes();
    GfxMode = kGameboy;
    BrowserAddress = 1000;
    MainRows = 8;
  }
  static std::int32_t At(int column, int line) {
    SelColumn = static_cast<std::int16_t>(column);
    SelLine = static_cast<std::int16_t>(line);
    return SelectedAddress();
  }
};

TEST_F(SelectedTile, StandsItsNumberOfTilesBehindThePage) {
  EXPECT_EQ(At(0, 0), 1000);
  EXPECT_EQ(At(3, 0), 1000 + 3 * 16);
  EXPECT_EQ(At(3, 2), 1000 + 19 * 16);
}

TEST_F(SelectedTile, CountsTheSpriteWith32Bytes) {
  GfxMode = kPcEngineSprite;
  EXPECT_EQ(At(1, 0), 1032);
}

TEST_F(SelectedTile, LiesBelowThePageFromTile512OnAt64Bytes) {
  GfxMode = kGba8;
  MainRows = 32;
  EXPECT_EQ(At(31, 15), 1000 + 511 * 64);
  EXPECT_EQ(At(0, 16), 1000 - 32768);
  EXPECT_EQ(At(31, 31), 1000 + 1023 * 64 - 65536);
}

TEST_F(SelectedTile, WrapsItsNumberAt16BitsToo) {
  GfxMode = kOneBit;
  MainRows = 32767;
  EXPECT_EQ(At(5, 2), 1000 + (65534 + 5 - 65536) * 8);
}

TEST_F(SelectedTile, WrapsTheAddressAt32Bits) {
  BrowserAddress = 2147483647;
  EXPECT_EQ(At(1, 0), -2147483647 - 1 + 15);
}

TEST_F(SelectedTile, FaultsInAModeBeyondTheTable) {
  GfxMode = 15;
  EXPECT_THROW(static_cast<void>(SelectedAddress()), Fault);
}

}  // namespace
}  // namespace brolk::test
