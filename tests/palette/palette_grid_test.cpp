// SPDX-License-Identifier: MIT
#include "palette/palette_grid.h"

#include <gtest/gtest.h>

#include "palette/color_edit.h"
#include "palette/palette_model.h"
#include "runtime/fault.h"

namespace brolk {
namespace {

PanelPoint At(float x, float y) {
  return {x, y, 96, 96};
}

TEST(PanelCells, Are6And24And48PixelsWide) {
  EXPECT_EQ(PanelCellPx(16), 6);
  EXPECT_EQ(PanelCellPx(4), 24);
  EXPECT_EQ(PanelCellPx(2), 48);
}

TEST(PanelCells, FaultWithoutASide) {
  EXPECT_THROW(static_cast<void>(PanelCellPx(0)), Fault);
}

TEST(PanelPress, FindsEveryCellAtItsCorners) {
  for (const int side : {16, 4, 2}) {
    const int cell = 96 / side;
    for (int index = 0; index < side * side; ++index) {
      const auto left = static_cast<float>(index % side * cell);
      const auto top = static_cast<float>(index / side * cell);
      const auto last = static_cast<float>(cell - 1);
      const auto cells = static_cast<std::uint8_t>(side);
      EXPECT_EQ(PressedColorIndex(At(left, top), cells), index);
      EXPECT_EQ(PressedColorIndex(At(left + last, top + last), cells), index);
      EXPECT_EQ(ColorIndexUnderPointer(At(left, top), cells), index);
      EXPECT_EQ(ColorIndexUnderPointer(At(left + last, top + last), cells), index);
    }
  }
}

TEST(PanelPress, ClampsOutsidePoints) {
  for (const auto& find : {PressedColorIndex, ColorIndexUnderPointer}) {
    EXPECT_EQ(find(At(-50, -1), 16), 0);
    EXPECT_EQ(find(At(500, 0), 16), 15);
    EXPECT_EQ(find(At(0, 500), 16), 240);
    EXPECT_EQ(find(At(96, 96), 16), 255);
    EXPECT_EQ(find(At(-1, 95), 4), 12);
    EXPECT_EQ(find(At(94, 94), 2), 3);
  }
}

TEST(PanelPress, ClampsToTheSizeOfThePictureMinusTwo) {
  EXPECT_EQ(PressedColorIndex({300, 300, 50, 26}, 4), 2 + 4 * 1) << "x 48 and y 24 in cells of 24";
  EXPECT_EQ(PressedColorIndex({300, 300, 49, 25}, 4), 1 + 4 * 0) << "x 47 and y 23";
  EXPECT_EQ(PressedColorIndex({48, 24, 49, 25}, 4), 1 + 4 * 0) << "the last pixel counts as the one before";
}

TEST(PanelPress, RoundsBeforeItDivides) {
  EXPECT_EQ(PressedColorIndex(At(23.4F, 0), 4), 0);
  EXPECT_EQ(PressedColorIndex(At(23.5F, 0), 4), 1) << "24, the even neighbour";
  EXPECT_EQ(PressedColorIndex(At(0, 5.5F), 16), 16) << "6, the even neighbour";
  EXPECT_EQ(PressedColorIndex(At(0.5F, 0), 16), 0) << "0, the even neighbour";
}

TEST(PanelPointer, UsesTheRoundedQuotientOfItsOwnWidth) {
  EXPECT_EQ(ColorIndexUnderPointer({25, 0, 100, 100}, 4), 1) << "cell 25";
  EXPECT_EQ(ColorIndexUnderPointer({24, 0, 98, 98}, 4), 1) << "24.5 rounds to the even 24";
  EXPECT_EQ(ColorIndexUnderPointer({25, 0, 102, 102}, 4), 0) << "25.5 rounds to the even 26";
}

TEST(PaletteSideCycle, Runs16To2To4To16) {
  EXPECT_EQ(NextPaletteSide(16), 2);
  EXPECT_EQ(NextPaletteSide(2), 4);
  EXPECT_EQ(NextPaletteSide(4), 16);
}

TEST(PaletteSideCycle, SendsAnyOtherNumberTo4) {
  for (const int side : {0, 1, 3, 8, 255}) EXPECT_EQ(NextPaletteSide(static_cast<std::uint8_t>(side)), 4);
}

TEST(PaletteSideCycle, ComesBackAfterThreeSteps) {
  for (const int side : {16, 4, 2}) {
    const auto start = static_cast<std::uint8_t>(side);
    EXPECT_EQ(NextPaletteSide(NextPaletteSide(NextPaletteSide(start))), start);
  }
}

TEST(ShiftAmount, Runs1To16AndBack) {
  EXPECT_EQ(NextShiftAmount("1"), "2");
  EXPECT_EQ(NextShiftAmount("2"), "4");
  EXPECT_EQ(NextShiftAmount("4"), "8");
  EXPECT_EQ(NextShiftAmount("8"), "16");
  EXPECT_EQ(NextShiftAmount("16"), "1");
}

TEST(ShiftAmount, DoublesAnyOtherNumber) {
  EXPECT_EQ(NextShiftAmount("256"), "512");
  EXPECT_EQ(NextShiftAmount("0"), "0");
}

void NumberPalette() {
  for (int index = 0; index < 256; ++index) Palette[index] = index;
}

TEST(Rotation, LeftBringsTheFirstColorToTheEnd) {
  NumberPalette();
  RotatePaletteLeft("1");
  for (int index = 0; index < 255; ++index) EXPECT_EQ(Palette[index], index + 1);
  EXPECT_EQ(Palette[255], 0);
}

TEST(Rotation, RightBringsTheLastColorToTheFront) {
  NumberPalette();
  RotatePaletteRight("1");
  EXPECT_EQ(Palette[0], 255);
  for (int index = 1; index < 256; ++index) EXPECT_EQ(Palette[index], index - 1);
}

TEST(Rotation, MovesByTheAmount) {
  for (const int amount : {2, 4, 8, 16}) {
    NumberPalette();
    RotatePaletteLeft(std::to_string(amount));
    for (int index = 0; index < 256; ++index) EXPECT_EQ(Palette[index], (index + amount) % 256);
    NumberPalette();
    RotatePaletteRight(std::to_string(amount));
    for (int index = 0; index < 256; ++index) EXPECT_EQ(Palette[index], (index + 256 - amount) % 256);
  }
}

TEST(Rotation, By16ThereAndBackRestoresThePalette) {
  NumberPalette();
  RotatePaletteLeft("16");
  RotatePaletteRight("16");
  for (int index = 0; index < 256; ++index) EXPECT_EQ(Palette[index], index);
}

TEST(Rotation, ByZeroOrLessChangesNothing) {
  NumberPalette();
  RotatePaletteLeft("0");
  RotatePaletteRight("-3");
  EXPECT_EQ(Palette[0], 0);
}

TEST(PanelPicture, ShowsTheFirstColorsRowByRow) {
  for (int index = 0; index < 256; ++index) Palette[index] = 0x010101 * index;
  for (const int side : {16, 4, 2}) {
    Surface picture(96, 96);
    PaintPaletteCells(picture, static_cast<std::uint8_t>(side));
    const int cell = 96 / side;
    for (int y = 0; y < 96; ++y) {
      for (int x = 0; x < 96; ++x)
        ASSERT_EQ(picture.GetPixel(x, y), Palette[y / cell * side + x / cell])
            << side << ':' << x << ',' << y;
    }
  }
}

TEST(PanelPicture, BoxesIncludeTheirRightAndBottomEdge) {
  Palette.fill(0x00FF00);
  Surface picture(100, 100);
  picture.Fill(0xFFFFFF);
  PaintPaletteCells(picture, 2);
  EXPECT_EQ(picture.GetPixel(96, 96), 0x00FF00);
  EXPECT_EQ(picture.GetPixel(97, 0), 0xFFFFFF);
  EXPECT_EQ(picture.GetPixel(0, 97), 0xFFFFFF);
}

TEST(ColorEdit, KnowsWhereAColorGoes) {
  EXPECT_EQ(TargetOf(-1), ColorTarget::LivePalette);
  EXPECT_EQ(TargetOf(-2), ColorTarget::LivePaletteUnseen);
  EXPECT_EQ(TargetOf(-3), ColorTarget::Nothing);
  EXPECT_EQ(TargetOf(INT16_MIN), ColorTarget::Nothing);
  EXPECT_EQ(TargetOf(0), ColorTarget::ColorSet);
  EXPECT_EQ(TargetOf(255), ColorTarget::ColorSet);
  EXPECT_EQ(TargetOf(INT16_MAX), ColorTarget::ColorSet);
}

TEST(ColorEdit, InvertsRedAndGreenForTheTextAndLeavesBlueZero) {
  EXPECT_EQ(PreviewTextColor(0, 0), 0x00FFFF);
  EXPECT_EQ(PreviewTextColor(255, 255), 0);
  EXPECT_EQ(PreviewTextColor(10, 200), 245 + 55 * 256);
}

TEST(ColorEdit, TruncatesToFiveBits) {
  EXPECT_EQ(FiveBits(255), 31);
  EXPECT_EQ(FiveBits(7), 0);
  EXPECT_EQ(FiveBits(8), 1);
  EXPECT_EQ(FiveBits(0), 0);
}

}  // namespace
}  // namespace brolk
