// SPDX-License-Identifier: MIT
#include "palette/windows/color_dialog.h"

#include <gtest/gtest.h>

#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>

#include "forms/look.h"
#include "forms/windows.h"
#include "palette/color_sets.h"
#include "palette/palette_model.h"
#include "palette/windows/color_set.h"
#include "palette/windows/palette_control.h"
#include "support/program.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

class ColorDialogWindow : public ::testing::Test {
 protected:
  void SetUp() override {
    StartProgram();
    dialog = &The<ColorDialog>();
  }

  // Opens the dialog on a colour, as its callers do.
  void Open(std::int16_t set, std::int16_t index, ColorValue color) {
    dialog->SetColor(set, index, color);
    dialog->Show();
  }

  // A page of index 0 on the screen.
  static void OpenBlackRom() { OpenRomFile(MakeFile("black.gb", std::string(8192, '\0'))); }

  void Confirm() { ClickControl(dialog->lblColorPreview); }

  void ExpectLabels(std::initializer_list<const char*> texts) {
    int index = 0;
    for (const char* text : texts) EXPECT_EQ(dialog->lblColorValue[index++].Text(), text) << index - 1;
  }

  [[nodiscard]] ColorValue PreviewText() const {
    return ColorValueOf(dialog->lblColorPreview.palette().color(QPalette::WindowText));
  }

  ColorDialog* dialog = nullptr;
};

TEST_F(ColorDialogWindow, HasItsCaptionTextsAndToolTips) {
  const ColorDialog fresh;
  EXPECT_EQ(fresh.Caption(), "Color");
  const char* const tips[] = {
      "This is the current 'Red' value",         "This is the current 'Green' value",
      "This is the current 'Blue' value",        "This is the current 'Red' 5 bit value",
      "This is the current 'Green' 5 bit value", "This is the current 'Blue' 5 bit value"};
  for (int index = 0; index < 6; ++index) {
    EXPECT_EQ(fresh.lblColorValue[index].Text(), index < 3 ? "255" : "31");
    EXPECT_EQ(fresh.lblColorValue[index].toolTip(), tips[index]);
  }
  for (const ScrollBar& bar : fresh.vsbColor) {
    EXPECT_EQ(bar.Min(), 0);
    EXPECT_EQ(bar.Max(), 255);
    EXPECT_EQ(bar.orientation(), Qt::Vertical);
  }
  EXPECT_EQ(fresh.lblColorPreview.Text(), "OK");
  EXPECT_EQ(fresh.lblColorPreview.toolTip(), "Confirm new color");
  EXPECT_EQ(fresh.fbnCancel.toolTip(), "Close Color Tool");
}

TEST_F(ColorDialogWindow, TintsEachValueLabelInItsOwnChannel) {
  for (int index = 0; index < 6; ++index) {
    const QPalette& colors = dialog->lblColorValue[index].palette();
    const QColor back = colors.color(QPalette::Window);
    const QColor text = colors.color(QPalette::WindowText);
    const int backChannels[] = {back.red(), back.green(), back.blue()};
    const int textChannels[] = {text.red(), text.green(), text.blue()};
    for (int other = 0; other < 3; ++other) {
      if (other == index % 3) continue;
      EXPECT_EQ(backChannels[other], 0) << index;
      EXPECT_LT(textChannels[other], textChannels[index % 3]) << index;
    }
    EXPECT_GT(backChannels[index % 3], 0);
    EXPECT_LT(back.lightness(), 80);
    EXPECT_GT(text.lightness(), 160);
    EXPECT_TRUE(dialog->lblColorValue[index].autoFillBackground());
  }
}

TEST_F(ColorDialogWindow, IsPrimedWithoutBeingShown) {
  dialog->SetColor(3, 77, 0x0A6FFF);
  EXPECT_FALSE(dialog->Visible());
  EXPECT_EQ(dialog->EditSet, 3);
  EXPECT_EQ(dialog->EditIndex, 77);
  EXPECT_EQ(dialog->vsbColor[0].Value(), 255);
  EXPECT_EQ(dialog->vsbColor[1].Value(), 111);
  EXPECT_EQ(dialog->vsbColor[2].Value(), 10);
  ExpectLabels({"255", "111", "10", "31", "13", "1"});
  EXPECT_EQ(dialog->lblColorPreview.BackColor(), 0x0A6FFF);
}

TEST_F(ColorDialogWindow, PrimingRunsTheHandlersOfBarsThatDoNotMove) {
  ExpectLabels({"255", "255", "255", "31", "31", "31"});
  dialog->SetColor(-1, 0, 0);
  ExpectLabels({"0", "0", "0", "0", "0", "0"});
}

TEST_F(ColorDialogWindow, FiveBitLabelsTruncate) {
  dialog->SetColor(-1, 0, 255 + 7 * 256 + 8 * 65536);
  ExpectLabels({"255", "7", "8", "31", "0", "1"});
}

TEST_F(ColorDialogWindow, TakesTheChannelsOfAColorWithATopByteByDivision) {
  dialog->SetColor(0, 0, -14326);
  ExpectLabels({"10", "201", "0", "1", "25", "0"});
  EXPECT_EQ(dialog->lblColorPreview.BackColor(), 10 + 201 * 256);
}

TEST_F(ColorDialogWindow, FollowsASliderThatTheUserMoves) {
  Open(-1, 0, 0x102030);
  QTest::keyClick(&dialog->vsbColor[1], Qt::Key_Down);
  EXPECT_EQ(dialog->vsbColor[1].Value(), 0x21);
  ExpectLabels({"48", "33", "16", "6", "4", "2"});
  EXPECT_EQ(dialog->lblColorPreview.BackColor(), 0x102130);
  QTest::keyClick(&dialog->vsbColor[2], Qt::Key_End);
  EXPECT_EQ(dialog->lblColorPreview.BackColor(), 0xFF2130);
}

TEST_F(ColorDialogWindow, FollowsTheThumbWhileItIsDragged) {
  Open(-1, 0, 0);
  ScrollBar& bar = dialog->vsbColor[0];
  QStyleOptionSlider option;
  option.initFrom(&bar);
  option.orientation = Qt::Vertical;
  option.maximum = 255;
  option.pageStep = bar.pageStep();
  option.subControls = QStyle::SC_All;
  const QPoint thumb =
      bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar).center();
  QTest::mousePress(&bar, Qt::LeftButton, {}, thumb);
  QTest::mouseMove(&bar, thumb + QPoint(0, 30));
  const int dragged = bar.Value();
  EXPECT_GT(dragged, 0);
  EXPECT_EQ(dialog->lblColorValue[0].Text(), QString::number(dragged));
  EXPECT_EQ(dialog->lblColorValue[3].Text(), QString::number(dragged / 8));
  EXPECT_EQ(dialog->lblColorPreview.BackColor(), dragged);
  QTest::mouseRelease(&bar, Qt::LeftButton, {}, thumb + QPoint(0, 30));
  EXPECT_EQ(bar.Value(), dragged);
}

TEST_F(ColorDialogWindow, ShowsTheColorItself) {
  Open(-1, 0, 0x336699);
  EXPECT_EQ(dialog->lblColorPreview.grab().toImage().pixelColor(6, 6), QColor(0x99, 0x66, 0x33));
}

TEST_F(ColorDialogWindow, TextColorInvertsRedAndGreenAndKeepsBlueZero) {
  dialog->SetColor(-1, 0, 0xFF0A64);  // red 100, green 10, blue 255
  EXPECT_EQ(PreviewText(), 155 + 245 * 256);
  dialog->SetColor(-1, 0, 0);
  EXPECT_EQ(PreviewText(), 0x00FFFF);
}

TEST_F(ColorDialogWindow, ConfirmChangesTheLivePaletteAndWhatShowsIt) {
  OpenBlackRom();
  PageBuffer[0] = 2;
  Open(-1, 2, 0x336699);
  Confirm();
  EXPECT_EQ(Palette[2], 0x336699);
  EXPECT_FALSE(dialog->Visible());
  EXPECT_EQ(The<PaletteControl>().picColor.Canvas().GetPixel(50, 5), 0x336699);
  EXPECT_EQ(BrowserSurface.GetPixel(0, 0), 0x336699);
}

TEST_F(ColorDialogWindow, ConfirmTakesTheColorOfTheBars) {
  Open(-1, 5, 0x000001);
  QTest::keyClick(&dialog->vsbColor[0], Qt::Key_Down);
  Confirm();
  EXPECT_EQ(Palette[5], 2);
}

// A tile width of 0 makes the repaint of the page fault, which shows that the panel comes last.
TEST_F(ColorDialogWindow, ConfirmRepaintsThePanelLast) {
  OpenBlackRom();
  TileWidth = 0;
  Open(-1, 0, 0x336699);
  EXPECT_EQ(FaultOf([&] { Confirm(); }), FaultKind::SubscriptOutOfRange);
  EXPECT_EQ(Palette[0], 0x336699);
  EXPECT_EQ(The<PaletteControl>().picColor.Canvas().GetPixel(5, 5), 0x0080FF) << "the colour before";
  EXPECT_TRUE(dialog->Visible()) << "hiding comes after the repaint";
}

TEST_F(ColorDialogWindow, ConfirmUnseenChangesThePaletteWithoutARepaint) {
  Open(-2, 0, 0x336699);
  Confirm();
  EXPECT_EQ(Palette[0], 0x336699);
  EXPECT_EQ(The<PaletteControl>().picColor.Canvas().GetPixel(5, 5), 0x0080FF);
  EXPECT_FALSE(dialog->Visible());
}

TEST_F(ColorDialogWindow, ConfirmOnAnyOtherNegativeNumberOnlyHides) {
  const auto before = Palette;
  Open(-3, 0, 0x336699);
  Confirm();
  EXPECT_EQ(Palette, before);
  EXPECT_EQ(Sets[0].Colors[0], 0);
  EXPECT_FALSE(dialog->Visible());
}

TEST_F(ColorDialogWindow, ConfirmOnASetLeavesThePaletteUntouched) {
  ClickControl(The<ColorSet>().fbnAddSet);
  const auto before = Palette;
  Open(0, 7, 0x336699);
  Confirm();
  EXPECT_EQ(Palette, before);
  EXPECT_EQ(Sets[0].Colors[7], 0x336699);
  EXPECT_EQ(The<ColorSet>().picColor.Canvas().GetPixel(7 * 12 + 5, 5), 0x336699) << "the set is shown anew";
  EXPECT_FALSE(dialog->Visible());
  ClickControl(The<ColorSet>().fbnApplySet);
  EXPECT_EQ(Palette[7], 0x336699);
}

TEST_F(ColorDialogWindow, ConfirmOutsideTheTablesIsAFault) {
  Open(256, 0, 0);
  EXPECT_EQ(FaultOf([&] { Confirm(); }), FaultKind::SubscriptOutOfRange);
  Open(-1, 256, 0);
  EXPECT_EQ(FaultOf([&] { Confirm(); }), FaultKind::SubscriptOutOfRange);
}

TEST_F(ColorDialogWindow, ConfirmsByKeyboard) {
  Open(-1, 1, 0x336699);
  QTest::keyClick(&dialog->lblColorPreview, Qt::Key_Space);
  EXPECT_EQ(Palette[1], 0x336699);
  EXPECT_FALSE(dialog->Visible());
}

TEST_F(ColorDialogWindow, CancelHidesWithoutAChange) {
  const auto before = Palette;
  Open(-1, 1, 0x336699);
  ClickControl(dialog->fbnCancel);
  EXPECT_FALSE(dialog->Visible());
  EXPECT_EQ(Palette, before);
}

TEST_F(ColorDialogWindow, LeavesTheOtherWindowsUsable) {
  Open(-1, 1, 0x336699);
  EXPECT_FALSE(dialog->isModal());
  The<PaletteControl>().Show();
  ClickControl(The<PaletteControl>().lblSwitch);
  EXPECT_EQ(PaletteSide, 16);
  EXPECT_TRUE(dialog->Visible());
}

TEST_F(ColorDialogWindow, HidesWhenItsFrameIsClosed) {
  Open(-1, 1, 0x336699);
  dialog->close();
  EXPECT_FALSE(dialog->Visible());
  EXPECT_EQ(&The<ColorDialog>(), dialog);
}

}  // namespace
}  // namespace brolk::test
