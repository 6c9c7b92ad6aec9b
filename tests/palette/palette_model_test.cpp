// SPDX-License-Identifier: MIT
#include "palette/palette_model.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace brolk {
namespace {

constexpr std::int32_t kSignBit = INT32_MIN;

// The default entries as the eye of a reader sees them: index, red, green, blue.
struct Entry {
  int index, red, green, blue;
};

ColorValue Value(int red, int green, int blue) {
  return red + green * 256 + blue * 65536;
}

TEST(DefaultPalette, HasSixteenFixedColors) {
  SetDefaultPalette();
  const Entry entries[] = {
      {0, 255, 128, 0}, {4, 255, 0, 0}, {8, 0, 255, 0},  {12, 0, 0, 255},  //
      {1, 192, 64, 0},  {5, 208, 0, 0}, {9, 0, 208, 0},  {13, 0, 0, 208},  //
      {2, 128, 0, 0},   {6, 160, 0, 0}, {10, 0, 160, 0}, {14, 0, 0, 160},  //
      {3, 96, 0, 0},    {7, 112, 0, 0}, {11, 0, 112, 0}, {15, 0, 0, 112},
  };
  for (const Entry& entry : entries) {
    EXPECT_EQ(Palette[entry.index], Value(entry.red, entry.green, entry.blue)) << entry.index;
  }
}

TEST(DefaultPalette, RampStartsAndEndsAsStated) {
  SetDefaultPalette();
  EXPECT_EQ(Palette[16], Value(255, 191, 64));
  EXPECT_EQ(Palette[255], Value(16, 12, 4));
}

TEST(DefaultPalette, RampRoundsTiesToEven) {
  SetDefaultPalette();
  EXPECT_EQ(Palette[17], Value(254, 190, 64));  // 190.5 and 63.5
  EXPECT_EQ(Palette[19], Value(252, 189, 63));  // 189 and 63
  EXPECT_EQ(Palette[21], Value(250, 188, 62));  // 187.5 and 62.5
  EXPECT_EQ(Palette[22], Value(249, 187, 62));  // 186.75 and 62.25
}

// Halves are counted as integers here: n quarters, rounded by hand.
int QuartersToNearest(int quarters) {
  const int whole = quarters / 4;
  const int rest = quarters % 4;
  if (rest == 2) return whole + whole % 2;
  return rest > 2 ? whole + 1 : whole;
}

TEST(DefaultPalette, EveryRampEntryFollowsItsFormula) {
  SetDefaultPalette();
  for (int index = 16; index <= 255; ++index) {
    const int v = 271 - index;
    EXPECT_EQ(Palette[index], Value(v, QuartersToNearest(3 * v), QuartersToNearest(v))) << index;
  }
}

TEST(DefaultPalette, HoldsTheNesColors) {
  SetDefaultPalette();
  const std::string rows[] = {
      "7F7F7F FF0000 BF0000 BF2B47 870097 2300AB 0013AB 00178B 003053 007800 006B00 005B00 584300 000000 "
      "000000 000000 ",
      "BFBFBF F87800 F85800 FF476B CD00DB 5B00E7 0038F8 135FE7 007FAF 00B800 00AB00 47AB00 8B8B00 000000 "
      "000000 000000 ",
      "F8F8F8 FFBF3F FF886B F87898 F878F8 9858F8 5878F8 47A3FF 00B8F8 18F8B8 57DB5B 98F858 DBEB00 787878 "
      "000000 000000 ",
      "FFFFFF FFE7A7 F8B8B8 F8B8D8 F8B8F8 C3A7FB B0D0F0 ABE3FF 7BDBFB 78F8D8 B8F8B8 D8F8B8 FFFF00 F8D8F8 "
      "000000 000000 ",
  };
  int index = 0;
  for (const std::string& row : rows) {
    ASSERT_EQ(row.size(), 16U * 7U);
    for (std::size_t at = 0; at < row.size(); at += 7, ++index)
      EXPECT_EQ(NesPalette[index], std::stol(row.substr(at, 6), nullptr, 16)) << index;
  }
  EXPECT_EQ(index, 64);
}

TEST(PaletteModel, BoundsAreFaults) {
  EXPECT_THROW(static_cast<void>(Palette[256]), Fault);
  EXPECT_THROW(static_cast<void>(Palette[-1]), Fault);
  EXPECT_THROW(static_cast<void>(NesPalette[64]), Fault);
  EXPECT_THROW(static_cast<void>(Pow2[32]), Fault);
}

TEST(PaletteModel, StartsWithColorZero) {
  EXPECT_EQ(CurrentColor, 0);
}

TEST(Channels, ComeFromTheirBytes) {
  EXPECT_EQ(RedOf(0x00112233), 0x33);
  EXPECT_EQ(GreenOf(0x00112233), 0x22);
  EXPECT_EQ(BlueOf(0x00112233), 0x11);
}

TEST(Channels, OfANegativeValueAreBroughtBackInto0To255) {
  EXPECT_EQ(RedOf(-14326), 10);
  EXPECT_EQ(GreenOf(-14326), 201);
  EXPECT_EQ(BlueOf(-14326), 0);
  EXPECT_EQ(RedOf(-1), 255);
  EXPECT_EQ(GreenOf(-1), 0);
  EXPECT_EQ(BlueOf(-65536), 255);
  EXPECT_EQ(BlueOf(kSignBit), 0);
}

TEST(Channels, IgnoreAPositiveTopByte) {
  EXPECT_EQ(RedOf(0x7F112233), 0x33);
  EXPECT_EQ(GreenOf(0x7F112233), 0x22);
  EXPECT_EQ(BlueOf(0x7F112233), 0x11);
}

TEST(ColorWord, FiveBitsBecome248) {
  EXPECT_EQ(ColToRGB(0x7FFF, 0), Value(248, 248, 248));
  EXPECT_EQ(ColToRGB(0xFFFF, 1), Value(248, 248, 248));
}

TEST(ColorWord, LowFieldIsBlueInFormat0AndRedInFormat1) {
  EXPECT_EQ(ColToRGB(0x001F, 0), Value(0, 0, 248));
  EXPECT_EQ(ColToRGB(0x001F, 1), Value(248, 0, 0));
}

TEST(ColorWord, HighFieldIsRedInFormat0AndBlueInFormat1) {
  EXPECT_EQ(ColToRGB(0x7C00, 0), Value(248, 0, 0));
  EXPECT_EQ(ColToRGB(0x7C00, 1), Value(0, 0, 248));
}

TEST(ColorWord, MiddleFieldIsGreen) {
  EXPECT_EQ(ColToRGB(0x03E0, 0), Value(0, 248, 0));
  EXPECT_EQ(ColToRGB(0x03E0, 1), Value(0, 248, 0));
}

TEST(ColorWord, Bit15AndHigherBitsPlayNoPart) {
  for (const std::int32_t word : {0x0000, 0x1234, 0x7FFF}) {
    EXPECT_EQ(ColToRGB(word | 0x8000, 0), ColToRGB(word, 0));
    EXPECT_EQ(ColToRGB(word | 0x12348000, 1), ColToRGB(word, 1));
  }
}

TEST(ColorWord, OtherFormatsGiveNoColor) {
  for (const int format : {2, 3, 255}) EXPECT_EQ(ColToRGB(0x7FFF, static_cast<std::uint8_t>(format)), 0);
}

TEST(ColorWord, EachFieldIsMultipliedByEight) {
  for (std::int32_t field = 0; field < 32; ++field)
    EXPECT_EQ(ColToRGB(field * (1 + 32 + 1024), 0), Value(field * 8, field * 8, field * 8));
}

TEST(WordOfColor, PureRedIsLowInFormat0AndHighInFormat1) {
  EXPECT_EQ(RGBToCol(Value(255, 0, 0), 0), 31);
  EXPECT_EQ(RGBToCol(Value(255, 0, 0), 1), 31744);
}

TEST(WordOfColor, PureBlueIsHighInFormat0AndLowInFormat1) {
  EXPECT_EQ(RGBToCol(Value(0, 0, 255), 0), 31744);
  EXPECT_EQ(RGBToCol(Value(0, 0, 255), 1), 31);
}

TEST(WordOfColor, GreenIsInTheMiddle) {
  EXPECT_EQ(RGBToCol(Value(0, 8, 0), 0), 32);
  EXPECT_EQ(RGBToCol(Value(0, 255, 0), 1), 992);
}

TEST(WordOfColor, DropsTheLowThreeBits) {
  EXPECT_EQ(RGBToCol(Value(7, 7, 7), 0), 0);
  EXPECT_EQ(RGBToCol(Value(8, 15, 16), 0), 2 * 1024 + 1 * 32 + 1);
}

TEST(WordOfColor, WhiteFillsFifteenBits) {
  EXPECT_EQ(RGBToCol(0xFFFFFF, 0), 32767);
  EXPECT_EQ(RGBToCol(0xFFFFFF, 1), 32767);
}

TEST(WordOfColor, NesSearchAlwaysAnswersZero) {
  SetDefaultPalette();
  for (const ColorValue color : NesPalette) EXPECT_EQ(RGBToCol(color, 2), 0);
  EXPECT_EQ(RGBToCol(0xFFFFFF, 2), 0);
  EXPECT_EQ(RGBToCol(-14326, 2), 0);
}

TEST(WordOfColor, UnknownFormatGivesNothing) {
  for (const int format : {3, 4, 255}) EXPECT_EQ(RGBToCol(0xFFFFFF, static_cast<std::uint8_t>(format)), 0);
}

TEST(WordOfColor, TakesTheChannelsOfANonZeroTopByteAsTheyAre) {
  EXPECT_EQ(RGBToCol(-14326, 0), 0 * 1024 + (201 / 8) * 32 + 10 / 8);
}

TEST(WordOfColor, ReadAndWrittenUnderOneFormatExchangesRedAndBlue) {
  for (std::int32_t word = 0; word < 0x8000; word += 37) {
    const std::int32_t exchanged = (word % 32) * 1024 + (word / 32 % 32) * 32 + word / 1024;
    EXPECT_EQ(RGBToCol(ColToRGB(word, 0), 0), exchanged);
    EXPECT_EQ(RGBToCol(ColToRGB(word, 1), 1), exchanged);
  }
}

TEST(Pow2, HoldsThePowersOfTwo) {
  FillPow2();
  for (int bit = 0; bit < 31; ++bit) EXPECT_EQ(Pow2[bit], 1 << bit);
  EXPECT_EQ(Pow2[31], kSignBit);
}

TEST(ShiftRight, LeavesTheValueBelowOneBit) {
  FillPow2();
  EXPECT_EQ(ShiftRight(-5, 0), -5);
  EXPECT_EQ(ShiftRight(77, -3), 77);
}

TEST(ShiftRight, GivesZeroAbove31Bits) {
  FillPow2();
  EXPECT_EQ(ShiftRight(-1, 32), 0);
  EXPECT_EQ(ShiftRight(-1, 1000), 0);
}

TEST(ShiftRight, IsLogicalForEveryValue) {
  FillPow2();
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE(seed);
  std::mt19937 random(seed);
  for (int round = 0; round < 2000; ++round) {
    const auto pattern = static_cast<std::uint32_t>(random());
    const int bits = 1 + static_cast<int>(random() % 31);
    EXPECT_EQ(static_cast<std::uint32_t>(ShiftRight(static_cast<std::int32_t>(pattern), bits)),
              pattern >> bits);
  }
  EXPECT_EQ(ShiftRight(kSignBit, 31), 1);
  EXPECT_EQ(ShiftRight(INT32_MAX, 31), 0);
}

}  // namespace
}  // namespace brolk
