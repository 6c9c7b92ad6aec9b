// SPDX-License-Identifier: MIT
#include "palette/windows/palette_control.h"

#include <gtest/gtest.h>

#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QTest>

#include "editor/slots.h"
#include "editor/windows/editor.h"
#include "forms/look.h"
#include "forms/windows.h"
#include "palette/palette_model.h"
#include "palette/windows/color_dialog.h"
#include "palette/windows/palette_panel.h"
#include "shell/windows/main_form.h"
#include "support/program.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

class PalettePanel : public ::testing::Test {
 protected:
  void SetUp() override {
    StartProgram();
    panel = &The<PaletteControl>();
    panel->Show();
    The<PaletteControl>().fbnPalShiftNum.SetCaption("1");
  }

  void Press(Qt::MouseButton button, QPoint at) { QTest::mousePress(&panel->picColor, button, {}, at); }

  // A press at a place between pixels or outside, as a screen with another scale sends it.
  void PressAt(QPointF at) {
    QMouseEvent press(QEvent::MouseButtonPress, at, panel->picColor.mapToGlobal(at), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&panel->picColor, &press);
  }

  std::string ColorUnder(QPoint at) {
    QTest::mouseMove(&panel->picColor, at);
    return The<MainForm>().lblColor.Text().toStdString();
  }

  void SetSide(int side) {
    PaletteSide = static_cast<std::uint8_t>(side);
    PaintPalettePanel();
  }

  // A page of index 0 on the screen.
  static void OpenBlackRom() { OpenRomFile(MakeFile("black.gb", std::string(8192, '\0'))); }

  void ExpectCells(int side) {
    const int cell = 96 / side;
    const QImage shown = panel->picColor.grab().toImage();
    for (int y = 0; y < 96; ++y) {
      for (int x = 0; x < 96; ++x) {
        const ColorValue color = Palette[y / cell * side + x / cell];
        ASSERT_EQ(panel->picColor.Canvas().GetPixel(x, y), color) << x << ',' << y;
        ASSERT_EQ(shown.pixelColor(x, y), ScreenColor(color)) << x << ',' << y;
      }
    }
  }

  void ExpectSwatch(ColorValue color) {
    Surface& swatch = panel->shpCol.Canvas();
    ASSERT_GT(swatch.Width(), 0);
    for (int y = 0; y < swatch.Height(); ++y) {
      for (int x = 0; x < swatch.Width(); ++x) ASSERT_EQ(swatch.GetPixel(x, y), color);
    }
    EXPECT_EQ(panel->shpCol.grab().toImage().pixelColor(3, 3), ScreenColor(color));
  }

  PaletteControl* panel = nullptr;
};

TEST_F(PalettePanel, HasItsCaptionTextsAndToolTips) {
  EXPECT_EQ(panel->Caption(), "Color Palette");
  EXPECT_EQ(panel->picColor.size(), QSize(96, 96));
  EXPECT_EQ(panel->picColor.toolTip(), "Left: Choose color for Paint or Fill mode | Right: Edit color");
  EXPECT_EQ(panel->lblSwitch.Text(), "256/16/4 colors");
  EXPECT_EQ(panel->lblSwitch.toolTip(), "Switch between 256, 16 and 4 colors display");
  EXPECT_EQ(panel->fbnPalShiftLeft.toolTip(), "Shift the selected number of colors to the left");
  EXPECT_EQ(panel->fbnPalShiftRight.toolTip(), "Shift the selected number of colors to the right");
  EXPECT_EQ(panel->fbnPalShiftNum.toolTip(), "Number of colors to shift");
  for (const char* name :
       {"picColor", "shpCol", "lblSwitch", "fbnPalShiftLeft", "fbnPalShiftRight", "fbnPalShiftNum"}) {
    EXPECT_EQ(FindControl(*panel, name).objectName(), name);
  }
}

TEST(PalettePanelAlone, StartsWithAShiftAmountOfOne) {
  const PaletteControl fresh;
  EXPECT_EQ(fresh.fbnPalShiftNum.Caption(), "1");
}

TEST_F(PalettePanel, FitsBetweenItsNeighboursAndAboveTheInfoPanel) {
  EXPECT_LE(panel->Width(), 131 * 15);
  EXPECT_LE(3640 + panel->Height(), 470 * 15);
}

TEST_F(PalettePanel, ShowsSixteenColorsAtTheStart) {
  EXPECT_EQ(PaletteSide, 4);
  ExpectCells(4);
  ExpectSwatch(Palette[0]);
}

TEST_F(PalettePanel, ShowsTheFirstColorsOfEachSide) {
  for (const int side : {16, 2, 4}) {
    SetSide(side);
    ExpectCells(side);
  }
}

TEST_F(PalettePanel, SwitchRunsThroughTheSidesAndRepaints) {
  for (const int side : {16, 2, 4}) {
    ClickControl(panel->lblSwitch);
    EXPECT_EQ(PaletteSide, side);
    ExpectCells(side);
  }
}

TEST_F(PalettePanel, SwitchKeepsACurrentColorOutsideTheCells) {
  SetSide(16);
  Press(Qt::LeftButton, {90, 90});
  ASSERT_EQ(CurrentColor, 255);
  ClickControl(panel->lblSwitch);
  EXPECT_EQ(PaletteSide, 2);
  EXPECT_EQ(CurrentColor, 255);
  ExpectSwatch(Palette[255]);
}

TEST_F(PalettePanel, LeftPressPicksTheColor) {
  Press(Qt::LeftButton, {24, 48});
  EXPECT_EQ(CurrentColor, 9);
  ExpectSwatch(Palette[9]);
  EXPECT_FALSE(The<ColorDialog>().Visible());
}

TEST_F(PalettePanel, PressesAreClampedToTheCells) {
  const struct {
    QPointF at;
    int index;
  } presses[] = {
      {{-5, -5}, 0}, {{200, 0}, 3},   {{0, 200}, 12}, {{200, 200}, 15}, {{95, 95}, 15},
      {{94, 30}, 7}, {{-0.5, 50}, 8}, {{23.4, 0}, 0}, {{23.5, 0}, 1},   {{95.5, 95.5}, 15},
  };
  for (const auto& press : presses) {
    PressAt(press.at);
    EXPECT_EQ(CurrentColor, press.index) << press.at.x() << ',' << press.at.y();
  }
}

TEST_F(PalettePanel, RightPressOpensTheColorForEditing) {
  The<ColorDialog>().SetLeft(1500);
  The<ColorDialog>().SetTop(900);
  Press(Qt::RightButton, {30, 80});  // column 1, row 3
  auto& dialog = The<ColorDialog>();
  EXPECT_TRUE(dialog.Visible());
  EXPECT_EQ(dialog.EditSet, -1);
  EXPECT_EQ(dialog.EditIndex, 13);
  EXPECT_EQ(dialog.vsbColor[0].Value(), 0);
  EXPECT_EQ(dialog.vsbColor[1].Value(), 0);
  EXPECT_EQ(dialog.vsbColor[2].Value(), 208);
  EXPECT_EQ(CurrentColor, 0) << "nothing is picked";
  EXPECT_EQ(dialog.Left(), 1500) << "it stays where it last stood";
  EXPECT_EQ(dialog.Top(), 900);
}

TEST_F(PalettePanel, RightPressAtSide2OpensOneOfFourEntries) {
  SetSide(2);
  const QPoint corners[] = {{47, 47}, {48, 47}, {47, 48}, {48, 48}};
  for (int index = 0; index < 4; ++index) {
    Press(Qt::RightButton, corners[index]);
    EXPECT_EQ(The<ColorDialog>().EditIndex, index);
  }
}

TEST_F(PalettePanel, ASecondRightPressOnlyPrimesTheDialogAnew) {
  Press(Qt::RightButton, {0, 0});
  Press(Qt::RightButton, {30, 0});
  EXPECT_TRUE(The<ColorDialog>().Visible());
  EXPECT_EQ(The<ColorDialog>().EditIndex, 1);
  EXPECT_EQ(The<ColorDialog>().vsbColor[0].Value(), 192);
}

TEST_F(PalettePanel, OtherButtonsDoNothing) {
  Press(Qt::MiddleButton, {30, 30});
  EXPECT_EQ(CurrentColor, 0);
  EXPECT_FALSE(The<ColorDialog>().Visible());
}

TEST_F(PalettePanel, TellsTheColorUnderThePointer) {
  EXPECT_EQ(ColorUnder({30, 50}), "Color 9");
  EXPECT_EQ(ColorUnder({95, 95}), "Color 15");
  SetSide(16);
  EXPECT_EQ(ColorUnder({94, 94}), "Color 255");
  EXPECT_EQ(ColorUnder({7, 1}), "Color 1");
  SetSide(2);
  EXPECT_EQ(ColorUnder({47, 48}), "Color 2");
  EXPECT_EQ(CurrentColor, 0);
}

TEST_F(PalettePanel, ClampsTheMovingPointerWhileAButtonIsHeld) {
  QMouseEvent move(QEvent::MouseMove, QPointF(-30, 500), QPointF(0, 0), Qt::NoButton, Qt::LeftButton,
                   Qt::NoModifier);
  QApplication::sendEvent(&panel->picColor, &move);
  EXPECT_EQ(The<MainForm>().lblColor.Text(), "Color 12");
}

TEST_F(PalettePanel, CanBeUsedByKeyboard) {
  for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Down})
    QTest::keyClick(&panel->picColor, key);
  EXPECT_EQ(The<MainForm>().lblColor.Text(), "Color 9");
  EXPECT_EQ(CurrentColor, 0);
  QTest::keyClick(&panel->picColor, Qt::Key_Space);
  EXPECT_EQ(CurrentColor, 9);
  QTest::keyClick(&panel->picColor, Qt::Key_Right);
  QTest::keyClick(&panel->picColor, Qt::Key_Menu);
  EXPECT_TRUE(The<ColorDialog>().Visible());
  EXPECT_EQ(The<ColorDialog>().EditIndex, 10);
}

TEST_F(PalettePanel, SetCurrentColorShowsIt) {
  panel->SetCurrentColor(200);
  EXPECT_EQ(CurrentColor, 200);
  ExpectSwatch(Palette[200]);
}

TEST_F(PalettePanel, ShiftAmountRunsThroughItsNumbers) {
  for (const char* amount : {"2", "4", "8", "16", "1"}) {
    ClickControl(panel->fbnPalShiftNum);
    EXPECT_EQ(panel->fbnPalShiftNum.Caption(), amount);
  }
}

TEST_F(PalettePanel, RotatesByTheAmountInTheCaption) {
  const auto before = Palette;
  panel->fbnPalShiftNum.SetCaption("4");
  ClickControl(panel->fbnPalShiftLeft);
  for (int index = 0; index < 256; ++index) EXPECT_EQ(Palette[index], before[(index + 4) % 256]);
  ExpectCells(4);
  ExpectSwatch(Palette[0]);
  panel->fbnPalShiftNum.SetCaption("8");
  ClickControl(panel->fbnPalShiftRight);
  for (int index = 0; index < 256; ++index) EXPECT_EQ(Palette[index], before[(index + 252) % 256]);
  ExpectCells(4);
}

TEST_F(PalettePanel, AShiftOf16ThereAndBackRestoresThePalette) {
  const auto before = Palette;
  panel->fbnPalShiftNum.SetCaption("16");
  ClickControl(panel->fbnPalShiftLeft);
  EXPECT_NE(Palette, before);
  ClickControl(panel->fbnPalShiftRight);
  EXPECT_EQ(Palette, before);
}

TEST_F(PalettePanel, RotationReachesThePageAndTheSlots) {
  OpenBlackRom();
  panel->fbnPalShiftNum.SetCaption("1");
  PageBuffer[0] = 6;
  EditSlots[255].Address = -1;
  EditSlots[255].Pixels[63] = 9;
  ClickControl(panel->fbnPalShiftLeft);
  EXPECT_EQ(BrowserSurface.GetPixel(0, 0), Palette[6]);
  EXPECT_EQ(EditSlots[255].SlotSurface.GetPixel(7, 7), Palette[9]);
  EXPECT_EQ(EditSlots[0].SlotSurface.GetPixel(0, 0), Palette[0]);
}

TEST_F(PalettePanel, RotationReachesTheEditor) {
  The<Editor>().Show();
  EditSlots[0].Address = -1;
  for (int pixel = 0; pixel < 64; ++pixel) EditSlots[0].Pixels[pixel] = 9;
  ClickControl(panel->fbnPalShiftLeft);
  EXPECT_EQ(The<Editor>().Canvas().GetPixel(10, 10), Palette[9]);
}

// A tile width of 0 makes the repaint of the page fault, which shows what ran before it.
TEST_F(PalettePanel, RotationRepaintsThePanelBeforeThePage) {
  OpenBlackRom();
  TileWidth = 0;
  EXPECT_EQ(FaultOf([&] { ClickControl(panel->fbnPalShiftLeft); }), FaultKind::SubscriptOutOfRange);
  ExpectCells(4);
  EXPECT_NE(EditSlots[0].SlotSurface.GetPixel(0, 0), Palette[0]) << "the slots come after the page";
}

TEST_F(PalettePanel, RotationToTheRightRepaintsThePanelFirstToo) {
  OpenBlackRom();
  TileWidth = 0;
  EXPECT_EQ(FaultOf([&] { ClickControl(panel->fbnPalShiftRight); }), FaultKind::SubscriptOutOfRange);
  ExpectCells(4);
}

TEST_F(PalettePanel, HidesWhenItsFrameIsClosed) {
  panel->ChildFrame()->close();
  EXPECT_FALSE(panel->Visible());
  panel->Show();
  EXPECT_TRUE(panel->Visible());
  ExpectCells(4);
}

}  // namespace
}  // namespace brolk::test
