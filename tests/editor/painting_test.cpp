// SPDX-License-Identifier: MIT
#include "editor/painting.h"

#include <gtest/gtest.h>

#include <random>

#include "editor/rule_fixture.h"
#include "editor/tiles.h"
#include "runtime/fault.h"

namespace brolk::test {
namespace {

using Painting = RuleFixture;

TEST_F(Painting, MakesANonCopiedSlotUnaddressed) {
  PaintPixel(4, 10, 5);
  EXPECT_EQ(EditSlots[4].Address, -1);
  for (int index = 0; index < 64; ++index) ASSERT_EQ(EditSlots[4].Pixels[index], index == 10 ? 5 : 0);
  EXPECT_EQ(EditSlots[4].SlotSurface.GetPixel(2, 1), Palette[5]);
  EXPECT_EQ(EditSlots[4].SlotSurface.GetPixel(3, 1), Palette[0]);
}

TEST_F(Painting, LeavesOtherAddressesAlone) {
  for (const std::int32_t address : {-1, 0, 4096, -700}) {
    EditSlots[4].Address = address;
    PaintPixel(4, 0, 1);
    EXPECT_EQ(EditSlots[4].Address, address);
    FillSlot(4, 1);
    EXPECT_EQ(EditSlots[4].Address, address);
  }
}

TEST_F(Painting, ChangesTwinsInPixelsAndPicture) {
  EditSlots[1].Address = EditSlots[200].Address = 32;
  PaintPixel(1, 63, 9);
  EXPECT_EQ(EditSlots[200].Pixels[63], 9);
  EXPECT_EQ(EditSlots[200].SlotSurface, EditSlots[1].SlotSurface);
}

TEST_F(Painting, GivesATwinOnePixelButTheWholePicture) {
  EditSlots[1].Address = EditSlots[2].Address = 32;
  EditSlots[1].Pixels.fill(3);
  EditSlots[2].Pixels.fill(4);
  PaintPixel(1, 0, 9);
  EXPECT_EQ(EditSlots[2].Pixels[0], 9);
  EXPECT_EQ(EditSlots[2].Pixels[1], 4) << "the other pixels of the twin stay";
  EXPECT_EQ(EditSlots[2].SlotSurface.GetPixel(1, 0), Palette[3])
      << "its picture shows those of the painted slot";
}

TEST_F(Painting, LeavesUnaddressedSlotsOfTheSameMarkAlone) {
  EditSlots[1].Address = EditSlots[2].Address = -1;
  PaintPixel(1, 0, 9);
  FillSlot(1, 8);
  EXPECT_EQ(EditSlots[2].Pixels, PlainTile(0));
}

TEST_F(Painting, OutsideTheTileIsTheSubscriptFault) {
  EXPECT_THROW(PaintPixel(0, 64, 1), Fault);
  EXPECT_THROW(PaintPixel(0, -1, 1), Fault);
}

TEST_F(Painting, FillsAllPixelsWhateverTheyWere) {
  EditSlots[7].Address = EditSlots[8].Address = 0;
  EditSlots[7].Pixels = CountingTile();
  FillSlot(7, 12);
  for (const int slot : {7, 8}) {
    EXPECT_EQ(EditSlots[slot].Pixels, PlainTile(12));
    EXPECT_EQ(EditSlots[slot].SlotSurface.GetPixel(5, 5), Palette[12]);
  }
  EXPECT_EQ(EditSlots[6].Address, -2);
}

TEST_F(Painting, FillsANonCopiedSlotToUnaddressed) {
  FillSlot(0, 0);
  EXPECT_EQ(EditSlots[0].Address, -1);
}

TEST_F(Painting, CopiesPixelsAndPictureToTwins) {
  EditSlots[7].Address = EditSlots[8].Address = 640;
  EditSlots[7].Pixels = CountingTile();
  RefreshSlotSurface(7);
  CopyToTwins(7);
  EXPECT_EQ(EditSlots[8].Pixels, CountingTile());
  EXPECT_EQ(EditSlots[8].SlotSurface, EditSlots[7].SlotSurface);
}

TEST(MovedPixels, FlipLeftToRight) {
  TilePixels pixels = CountingTile();
  FlipPixelsX(pixels);
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 8; ++x) ASSERT_EQ(pixels[y * 8 + x], y * 8 + 7 - x);
  }
}

TEST(MovedPixels, FlipTopToBottom) {
  TilePixels pixels = CountingTile();
  FlipPixelsY(pixels);
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 8; ++x) ASSERT_EQ(pixels[y * 8 + x], (7 - y) * 8 + x);
  }
}

TEST(MovedPixels, TurnCounterclockwise) {
  TilePixels pixels = CountingTile();
  RotatePixels(pixels);
  EXPECT_EQ(pixels[0], 7) << "the top right pixel goes to the top left corner";
  EXPECT_EQ(pixels[56], 0) << "the top left pixel goes to the bottom left corner";
  EXPECT_EQ(pixels[7], 63);
  EXPECT_EQ(pixels[63], 56);
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 8; ++x) ASSERT_EQ(pixels[(7 - x) * 8 + y], y * 8 + x);
  }
}

TEST(MovedPixels, ComeBackAfterTwoFlipsOrFourTurns) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE(seed);
  std::mt19937 random(seed);
  TilePixels pixels;
  for (std::uint8_t& pixel : pixels) pixel = static_cast<std::uint8_t>(random());
  const TilePixels before = pixels;
  for (int i = 0; i < 2; ++i) FlipPixelsX(pixels);
  EXPECT_EQ(pixels, before);
  for (int i = 0; i < 2; ++i) FlipPixelsY(pixels);
  EXPECT_EQ(pixels, before);
  for (int i = 0; i < 4; ++i) RotatePixels(pixels);
  EXPECT_EQ(pixels, before);
}

}  // namespace
}  // namespace brolk::test
