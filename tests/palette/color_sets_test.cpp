// SPDX-License-Identifier: MIT
#include "palette/color_sets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "palette/palette_model.h"
#include "palette/seeded_random.h"

namespace brolk {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> Names(int count) {
  std::vector<std::string> names;
  for (int index = 0; index < count; ++index) names.push_back(Sets[index].Name);
  return names;
}

bool AllColorsAre(const ColorSetRecord& set, ColorValue color) {
  for (const ColorValue each : set.Colors) {
    if (each != color) return false;
  }
  return true;
}

// A list of sets named by letters; set n is filled with the colour n + 1.
void MakeList(const std::string& letters) {
  ResetColorSets();
  for (const char letter : letters) {
    Palette.fill(SetCount + 1);
    AddEditorPalette(std::string(1, letter));
  }
}

RandomNumbers Sequence(std::vector<double> numbers) {
  return [numbers, next = std::size_t{0}]() mutable { return numbers[next++ % numbers.size()]; };
}

TEST(ColorSets, StartEmptyAndBlack) {
  EXPECT_EQ(SetCount, 0);
  EXPECT_EQ(SelectedSet, 0);
  for (int index = 0; index < 256; ++index) EXPECT_TRUE(AllColorsAre(Sets[index], 0));
}

TEST(ColorSets, ResetKeepsTheRecords) {
  MakeList("ab");
  SelectedSet = 1;
  ResetColorSets();
  EXPECT_EQ(SetCount, 0);
  EXPECT_EQ(SelectedSet, 0);
  EXPECT_THAT(Names(2), ElementsAre("a", "b"));
}

TEST(AddSet, CopiesTheLivePalette) {
  SetDefaultPalette();
  EXPECT_TRUE(AddEditorPalette("mine"));
  EXPECT_EQ(SetCount, 1);
  EXPECT_EQ(Sets[0].Name, "mine");
  EXPECT_EQ(Sets[0].Colors, Palette);
  Palette[3] = 77;
  EXPECT_NE(Sets[0].Colors[3], 77) << "the set is a copy";
}

TEST(AddSet, NamesItEditorPaletteWithoutAName) {
  AddEditorPalette("");
  EXPECT_EQ(Sets[0].Name, "Editor palette");
}

TEST(AddSet, KeepsABlankName) {
  AddEditorPalette(" ");
  EXPECT_EQ(Sets[0].Name, " ");
}

TEST(AddSet, LeavesSelectedSet) {
  MakeList("abc");
  SelectedSet = 1;
  AddEditorPalette("d");
  EXPECT_EQ(SelectedSet, 1);
}

TEST(AddSet, StopsAt255Sets) {
  for (int index = 0; index < 255; ++index) EXPECT_TRUE(AddEditorPalette("x"));
  EXPECT_EQ(SetCount, 255);
  Palette.fill(5);
  EXPECT_FALSE(AddEditorPalette("too many"));
  EXPECT_EQ(SetCount, 255);
  EXPECT_EQ(Sets[255].Name, "");
  EXPECT_TRUE(AllColorsAre(Sets[255], 0));
}

TEST(ApplySet, CopiesAllColors) {
  MakeList("ab");
  SelectedSet = 1;
  ApplySelectedSet();
  EXPECT_EQ(Palette, Sets[1].Colors);
  SelectedSet = 0;
  ApplySelectedSet();
  EXPECT_EQ(Palette[255], 1);
}

TEST(ApplySet, OfAnEmptyListTurnsThePaletteBlack) {
  SetDefaultPalette();
  ApplySelectedSet();
  for (const ColorValue color : Palette) EXPECT_EQ(color, 0);
}

TEST(ApplySet, IgnoresSetCount) {
  MakeList("abc");
  SetCount = 1;
  SelectedSet = 2;
  ApplySelectedSet();
  EXPECT_EQ(Palette[0], 3);
}

TEST(RenameSet, ChangesTheSelectedRecordAlone) {
  MakeList("abc");
  SelectedSet = 1;
  RenameSelectedSet("\xE4\x80");
  EXPECT_THAT(Names(3), ElementsAre("a", "\xE4\x80", "c"));
}

TEST(DeleteSet, DoesNothingOnAnEmptyList) {
  Sets[0].Colors.fill(9);
  DeleteSelectedSet();
  EXPECT_EQ(SetCount, 0);
  EXPECT_TRUE(AllColorsAre(Sets[0], 9));
}

TEST(DeleteSet, MovesTheRecordBehindTheRemainingOnes) {
  MakeList("abcd");
  SelectedSet = 1;
  DeleteSelectedSet();
  EXPECT_EQ(SetCount, 3);
  EXPECT_EQ(SelectedSet, 1);
  EXPECT_THAT(Names(4), ElementsAre("a", "c", "d", "b"));
  EXPECT_TRUE(AllColorsAre(Sets[1], 3));
  EXPECT_TRUE(AllColorsAre(Sets[2], 4));
  EXPECT_TRUE(AllColorsAre(Sets[3], 2));
}

TEST(DeleteSet, LeavesRecordsBehindTheListAlone) {
  MakeList("abcd");
  SetCount = 3;
  SelectedSet = 0;
  DeleteSelectedSet();
  EXPECT_THAT(Names(4), ElementsAre("b", "c", "a", "d"));
}

TEST(DeleteSet, OfTheLastLinePointsPastTheList) {
  MakeList("abc");
  SelectedSet = 2;
  DeleteSelectedSet();
  EXPECT_EQ(SetCount, 2);
  EXPECT_EQ(SelectedSet, 2);
  EXPECT_THAT(Names(3), ElementsAre("a", "b", "c"));
}

TEST(DeleteSet, PastTheListDropsTheLastLine) {
  MakeList("abc");
  SelectedSet = 200;
  DeleteSelectedSet();
  EXPECT_EQ(SetCount, 2);
  EXPECT_THAT(Names(3), ElementsAre("a", "b", "c"));
}

TEST(DeleteSet, OfTheOnlySetMakesItBlackAndKeepsItsName) {
  MakeList("a");
  DeleteSelectedSet();
  EXPECT_EQ(SetCount, 0);
  EXPECT_TRUE(AllColorsAre(Sets[0], 0));
  EXPECT_EQ(Sets[0].Name, "a");
}

TEST(DeleteSet, OfTheOnlySetWhileAnotherPlaceIsSelectedLeavesThatRecord) {
  MakeList("ab");
  SetCount = 1;
  SelectedSet = 1;
  DeleteSelectedSet();
  EXPECT_EQ(SetCount, 0);
  EXPECT_THAT(Names(2), ElementsAre("a", "b"));
  EXPECT_TRUE(AllColorsAre(Sets[1], 2));
}

TEST(DeleteSet, WorksOnAFullList) {
  for (int index = 0; index < 255; ++index) AddEditorPalette(std::to_string(index));
  SelectedSet = 0;
  DeleteSelectedSet();
  EXPECT_EQ(SetCount, 254);
  EXPECT_EQ(Sets[0].Name, "1");
  EXPECT_EQ(Sets[253].Name, "254");
  EXPECT_EQ(Sets[254].Name, "0");
}

TEST(ClearSets, EmptiesTheListAndLeavesTheSelection) {
  MakeList("abc");
  SelectedSet = 2;
  ClearColorSets();
  EXPECT_EQ(SetCount, 0);
  EXPECT_EQ(SelectedSet, 2);
  EXPECT_TRUE(AllColorsAre(Sets[0], 0));
  EXPECT_TRUE(AllColorsAre(Sets[1], 2)) << "only the first record is zeroed";
  EXPECT_THAT(Names(3), ElementsAre("a", "b", "c"));
}

TEST(RandomSet, DrawsRedGreenBlueInThisOrder) {
  AddRandomSet(Sequence({0.25, 0.5, 0.75}));
  EXPECT_EQ(SetCount, 1);
  EXPECT_EQ(Sets[0].Name, "Random palette");
  EXPECT_TRUE(AllColorsAre(Sets[0], 64 + 128 * 256 + 192 * 65536));
}

TEST(RandomSet, RoundsTiesToEvenAndPacks256As255) {
  AddRandomSet(Sequence({0.5 / 256, 1.5 / 256, 0.9999}));
  EXPECT_TRUE(AllColorsAre(Sets[0], 0 + 2 * 256 + 255 * 65536));
}

TEST(RandomSet, TakesThreeNumbersForEachOf256Colors) {
  int drawn = 0;
  AddRandomSet([&] {
    ++drawn;
    return drawn % 3 == 1 ? (drawn / 3) / 256.0 : 0;
  });
  EXPECT_EQ(drawn, 768);
  for (int index = 0; index < 256; ++index) EXPECT_EQ(Sets[0].Colors[index], index);
}

TEST(RandomSet, FillsPlace255AndWrapsTheCount) {
  for (int index = 0; index < 255; ++index) AddEditorPalette("x");
  AddRandomSet(Sequence({0.5}));
  EXPECT_EQ(SetCount, 0);
  EXPECT_EQ(Sets[255].Name, "Random palette");
  EXPECT_TRUE(AllColorsAre(Sets[255], 0x808080));
  EXPECT_EQ(Sets[0].Name, "x");
}

TEST(SeededRandom, FollowsFromItsSeed) {
  SeededRandom one(1234.5F);
  SeededRandom same(1234.5F);
  SeededRandom other(1234.75F);
  bool differs = false;
  for (int draw = 0; draw < 100; ++draw) {
    const double number = one();
    EXPECT_EQ(number, same());
    if (number != other()) differs = true;
  }
  EXPECT_TRUE(differs);
}

TEST(SeededRandom, StaysInsideZeroToOneAndUsesTheRange) {
  SeededRandom numbers(0);
  int perQuarter[4] = {};
  for (int draw = 0; draw < 10000; ++draw) {
    const double number = numbers();
    ASSERT_GE(number, 0);
    ASSERT_LT(number, 1);
    ++perQuarter[static_cast<int>(number * 4)];
  }
  for (const int count : perQuarter) EXPECT_GT(count, 2000);
}

TEST(SetColorOfASet, StoresOneColor) {
  SetColorOfSet(255, 254, -14326);
  EXPECT_EQ(Sets[255].Colors[254], -14326);
}

TEST(SetColorOfASet, FaultsOutsideTheTables) {
  EXPECT_THROW(SetColorOfSet(-1, 0, 0), Fault);
  EXPECT_THROW(SetColorOfSet(256, 0, 0), Fault);
  EXPECT_THROW(SetColorOfSet(0, -1, 0), Fault);
  EXPECT_THROW(SetColorOfSet(0, 256, 0), Fault);
  try {
    SetColorOfSet(0, 256, 0);
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::SubscriptOutOfRange);
  }
}

TEST(SetPicture, CellIsASixteenthOfTheWidthRounded) {
  EXPECT_EQ(SetCellPx(192), 12);
  EXPECT_EQ(SetCellPx(199), 12);
  EXPECT_EQ(SetCellPx(200), 12);  // 12.5
  EXPECT_EQ(SetCellPx(201), 13);
  EXPECT_EQ(SetCellPx(216), 14);  // 13.5
}

TEST(SetPicture, FindsTheCellUnderAPoint) {
  EXPECT_EQ(SetColorIndexAt(0, 0, 12), 0);
  EXPECT_EQ(SetColorIndexAt(11, 11, 12), 0);
  EXPECT_EQ(SetColorIndexAt(12, 0, 12), 1);
  EXPECT_EQ(SetColorIndexAt(0, 12, 12), 16);
  EXPECT_EQ(SetColorIndexAt(191, 191, 12), 255);
}

TEST(SetPicture, RoundsThePointFirstTiesToEven) {
  EXPECT_EQ(SetColorIndexAt(11.5F, 0, 12), 1);   // 12
  EXPECT_EQ(SetColorIndexAt(11.25F, 0, 12), 0);  // 11
  EXPECT_EQ(SetColorIndexAt(0, 22.5F, 12), 16);  // 22
  EXPECT_EQ(SetColorIndexAt(0, 23.5F, 12), 32);  // 24
}

TEST(SetPicture, RunsOnIntoTheNextRowBeyondColumn15) {
  EXPECT_EQ(SetColorIndexAt(192, 0, 12), 16);
  EXPECT_EQ(SetColorIndexAt(192, 191, 12), 256);
}

TEST(SetPicture, ShowsEveryColorInItsCell) {
  ColorSetRecord set;
  for (int index = 0; index < 256; ++index) set.Colors[index] = index * 0x010307;
  Surface picture(192, 192);
  PaintSet(picture, set, 12);
  for (int y = 0; y < 192; ++y) {
    for (int x = 0; x < 192; ++x)
      ASSERT_EQ(picture.GetPixel(x, y), set.Colors[y / 12 * 16 + x / 12] & 0xFFFFFF) << x << ',' << y;
  }
}

TEST(SetPicture, BoxesIncludeTheirRightAndBottomEdge) {
  ColorSetRecord set;
  set.Colors.fill(0x112233);
  Surface picture(20, 20);
  picture.Fill(0xFFFFFF);
  PaintSet(picture, set, 1);
  EXPECT_EQ(picture.GetPixel(16, 16), 0x112233);
  EXPECT_EQ(picture.GetPixel(17, 16), 0xFFFFFF);
  EXPECT_EQ(picture.GetPixel(16, 17), 0xFFFFFF);
}

TEST(SetPicture, ShowsTheLowThreeBytesOfAColor) {
  ColorSetRecord set;
  set.Colors.fill(-14326);
  Surface picture(16, 16);
  PaintSet(picture, set, 1);
  EXPECT_EQ(picture.GetPixel(0, 0), 0xFFC80A);
}

}  // namespace
}  // namespace brolk
