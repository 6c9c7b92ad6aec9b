// SPDX-License-Identifier: MIT
#include "editor/slots.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "editor/rule_fixture.h"
#include "editor/tiles.h"
#include "palette/palette_model.h"
#include "runtime/files.h"
#include "tile/modes.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Slots = RuleFixture;

TEST_F(Slots, Are256AndNoMore) {
  EXPECT_EQ(EditSlots.Size(), 256);
  EXPECT_THROW(EditSlots[256], Fault);
  EXPECT_THROW(EditSlots[-1], Fault);
  EXPECT_THROW(EditSlots[0].Pixels[64], Fault);
  EXPECT_THROW(EditSlots[0].Pixels[-1], Fault);
}

TEST_F(Slots, AreNumberedLineByLineFromTheTop) {
  EXPECT_EQ(ColumnOf(0), 0);
  EXPECT_EQ(LineOf(0), 0);
  EXPECT_EQ(ColumnOf(37), 5);
  EXPECT_EQ(LineOf(37), 2);
  EXPECT_EQ(ColumnOf(255), 15);
  EXPECT_EQ(LineOf(255), 15);
}

TEST_F(Slots, AreClearedToNonCopiedWithZeroPixelsInTheFirstColour) {
  EditSlots[9].Address = 1234;
  EditSlots[9].Pixels.fill(7);
  Palette[0] = 0x123456;
  ClearSlot(9);
  EXPECT_EQ(EditSlots[9].Address, -2);
  EXPECT_EQ(EditSlots[9].Pixels, PlainTile(0));
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 8; ++x) ASSERT_EQ(EditSlots[9].SlotSurface.GetPixel(x, y), 0x123456);
  }
}

TEST_F(Slots, AreAllClearedAtOnceButNoOtherSlotBySingleClear) {
  for (EditSlot& slot : EditSlots) slot.Address = 5;
  ClearSlot(100);
  EXPECT_EQ(
      std::count_if(EditSlots.begin(), EditSlots.end(), [](const EditSlot& s) { return s.Address == -2; }),
      1);
  ClearAllSlots();
  for (const EditSlot& slot : EditSlots) {
    ASSERT_EQ(slot.Address, -2);
    ASSERT_EQ(slot.Pixels, PlainTile(0));
  }
}

TEST_F(Slots, ShowPixelsThroughThePaletteRowByRow) {
  for (int index = 0; index < 64; ++index) EditSlots[3].Pixels[index] = static_cast<std::uint8_t>(index * 4);
  RefreshSlotSurface(3);
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 8; ++x) ASSERT_EQ(EditSlots[3].SlotSurface.GetPixel(x, y), Palette[(y * 8 + x) * 4]);
  }
}

TEST_F(Slots, FollowThePaletteOnlyWhenTheirSurfaceIsRebuilt) {
  EditSlots[3].Pixels.fill(1);
  RefreshSlotSurface(3);
  const ColorValue before = Palette[1];
  Palette[1] = before ^ 0xFFFFFF;
  EXPECT_EQ(EditSlots[3].SlotSurface.GetPixel(4, 4), before);
  RefreshSlotSurface(3);
  EXPECT_EQ(EditSlots[3].SlotSurface.GetPixel(4, 4), before ^ 0xFFFFFF);
  EXPECT_EQ(EditSlots[3].Pixels, PlainTile(1)) << "a recoloured slot keeps its indices";
}

TEST_F(Slots, TakeTheirPixelsFromTheFileAndKeepTheirAddress) {
  GfxMode = kGba8;
  std::vector<std::uint8_t> bytes(192);
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<std::uint8_t>(i + 1);
  OpenTestFile(bytes);
  EditSlots[20].Address = 77;
  ReadSlotPixels(20, 64);
  for (int index = 0; index < 64; ++index) ASSERT_EQ(EditSlots[20].Pixels[index], 65 + index);
  EXPECT_EQ(EditSlots[20].SlotSurface.GetPixel(7, 7), Palette[128]);
  EXPECT_EQ(EditSlots[20].Address, 77);
}

TEST_F(Slots, AreReadInTheModeOfTheMoment) {
  OpenTestFile(std::vector<std::uint8_t>(64, 0x12));
  GfxMode = kGba4;
  ReadSlotPixels(0, 0);
  EXPECT_EQ(EditSlots[0].Pixels[0], 2);
  EXPECT_EQ(EditSlots[0].Pixels[1], 1);
  GfxMode = kMegaDrive;
  ReadSlotPixels(0, 0);
  EXPECT_EQ(EditSlots[0].Pixels[0], 1);
  EXPECT_EQ(EditSlots[0].Pixels[1], 2);
}

TEST_F(Slots, ReadAsZerosWithoutAFile) {
  EditSlots[0].Pixels.fill(9);
  ReadSlotPixels(0, 0);
  EXPECT_EQ(EditSlots[0].Pixels, PlainTile(0));
}

TEST_F(Slots, TakeTheFirst64EntriesOfASprite) {
  GfxMode = kPcEngineSprite;
  OpenTestFile(std::vector<std::uint8_t>(128, 0xFF));
  ReadSlotPixels(0, 0);
  for (int index = 0; index < 64; ++index) ASSERT_EQ(EditSlots[0].Pixels[index], PageBuffer[index]);
}

TEST_F(Slots, ExchangePixelsAddressAndPicture) {
  EditSlots[1].Address = 100;
  EditSlots[1].Pixels.fill(1);
  EditSlots[2].Address = -1;
  EditSlots[2].Pixels.fill(2);
  SwapSlots(1, 2);
  EXPECT_EQ(EditSlots[1].Address, -1);
  EXPECT_EQ(EditSlots[1].Pixels, PlainTile(2));
  EXPECT_EQ(EditSlots[1].SlotSurface.GetPixel(0, 0), Palette[2]);
  EXPECT_EQ(EditSlots[2].Address, 100);
  EXPECT_EQ(EditSlots[2].Pixels, PlainTile(1));
  EXPECT_EQ(EditSlots[2].SlotSurface.GetPixel(0, 0), Palette[1]);
}

TEST_F(Slots, WithTheSameFileOffsetAreTwins) {
  for (const int slot : {0, 3, 255}) EditSlots[slot].Address = 640;
  EditSlots[4].Address = 641;
  EXPECT_THAT(TwinsOf(3), ElementsAre(0, 3, 255));
  EXPECT_THAT(TwinsOf(4), ElementsAre(4));
}

TEST_F(Slots, WithoutAFileOffsetHaveNoTwins) {
  for (const int slot : {1, 2}) EditSlots[slot].Address = -1;
  EXPECT_THAT(TwinsOf(1), IsEmpty());
  EXPECT_THAT(TwinsOf(10), IsEmpty()) << "non-copied";
  EditSlots[5].Address = EditSlots[6].Address = -500;
  EXPECT_THAT(TwinsOf(5), IsEmpty()) << "a wrapped selection";
}

TEST_F(Slots, AtOffset0AreTwinsToo) {
  EditSlots[8].Address = EditSlots[9].Address = 0;
  EXPECT_THAT(TwinsOf(8), ElementsAre(8, 9));
}

TEST_F(Slots, WithoutContentAreNothingForTheTileTool) {
  EditSlots[1].Address = -1;
  EditSlots[2].Address = 0;
  EditSlots[3].Address = -3;
  EXPECT_EQ(LoadableSlot(0), -1);
  EXPECT_EQ(LoadableSlot(1), 1);
  EXPECT_EQ(LoadableSlot(2), 2);
  EXPECT_EQ(LoadableSlot(3), -1);
}

}  // namespace
}  // namespace brolk::test
