// SPDX-License-Identifier: MIT
#include "palette/color_set_tool.h"

#include <gmock/gmock.h>

#include "palette/windows/color_dialog.h"
#include "palette/windows/palette_control.h"
#include "shell/windows/main_form.h"

namespace brolk::test {
namespace {

using ::testing::ElementsAre;

TEST_F(ColorSetTool, PictureIsAMultipleOf16Wide) {
  EXPECT_EQ(tool->picColor.width() % 16, 0);
  EXPECT_EQ(tool->picColor.width(), tool->picColor.height());
}

TEST_F(ColorSetTool, SetColorStoresAndShows) {
  Add("one", 1);
  tool->SetColor(0, 255, 0x778899);
  EXPECT_EQ(Sets[0].Colors[255], 0x778899);
  ExpectPictureOf(0);
  EXPECT_EQ(FaultOf([&] { tool->SetColor(-1, 0, 0); }), FaultKind::SubscriptOutOfRange);
  EXPECT_EQ(FaultOf([&] { tool->SetColor(256, 0, 0); }), FaultKind::SubscriptOutOfRange);
  EXPECT_EQ(FaultOf([&] { tool->SetColor(0, 256, 0); }), FaultKind::SubscriptOutOfRange);
}

TEST_F(ColorSetTool, APressOnThePictureOpensThatColor) {
  Add("one", 1);
  Add("two", 2);
  PressLine(1);
  Sets[1].Colors[2 + 16 * 5] = 0x336699;
  Press(Qt::LeftButton, {2 * 12 + 3, 5 * 12 + 11});
  auto& dialog = The<ColorDialog>();
  EXPECT_TRUE(dialog.Visible());
  EXPECT_EQ(dialog.EditSet, 1);
  EXPECT_EQ(dialog.EditIndex, 82);
  EXPECT_EQ(dialog.vsbColor[0].Value(), 0x99);
  EXPECT_EQ(dialog.vsbColor[1].Value(), 0x66);
  EXPECT_EQ(dialog.vsbColor[2].Value(), 0x33);
  EXPECT_EQ(dialog.Left(), tool->Left() + 75);
  EXPECT_EQ(dialog.Top(), tool->Top() + 300);
}

TEST_F(ColorSetTool, AnyButtonOpensTheColorOnThePress) {
  Add("one", 1);
  int index = 0;
  for (const auto button : {Qt::RightButton, Qt::MiddleButton, Qt::LeftButton}) {
    ++index;
    Press(button, QPointF(index * 12, 0));
    EXPECT_EQ(The<ColorDialog>().EditIndex, index);
  }
}

TEST_F(ColorSetTool, EveryCellOfThePictureCanBeReached) {
  Add("one", 1);
  for (int index = 0; index < 256; ++index) {
    Press(Qt::LeftButton, QPointF(index % 16 * 12 + 11, index / 16 * 12 + 11));
    EXPECT_EQ(The<ColorDialog>().EditIndex, index);
  }
}

TEST_F(ColorSetTool, TheLastHalfPixelOfAScaledScreenIsTheLastCell) {
  Add("one", 1);
  Press(Qt::LeftButton, {191.5, 191.5});
  EXPECT_EQ(The<ColorDialog>().EditIndex, 255);
}

TEST_F(ColorSetTool, ThePictureCanBeUsedByKeyboard) {
  Add("one", 1);
  for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Space})
    QTest::keyClick(&tool->picColor, key);
  EXPECT_TRUE(The<ColorDialog>().Visible());
  EXPECT_EQ(The<ColorDialog>().EditIndex, 17);
}

TEST_F(ColorSetTool, APressBeyondColumn15RunsOnIntoTheNextRow) {
  Add("one", 1);
  Press(Qt::LeftButton, {192, 0});
  EXPECT_EQ(The<ColorDialog>().EditIndex, 16);
}

TEST_F(ColorSetTool, APressBelowTheCellsIsAFault) {
  Add("one", 1);
  EXPECT_EQ(FaultOf([&] { Press(Qt::LeftButton, QPointF(0, 192)); }), FaultKind::SubscriptOutOfRange);
}

TEST_F(ColorSetTool, APressOnThePictureOfAnEmptyListDoesNothing) {
  Press(Qt::LeftButton, {5, 5});
  Press(Qt::LeftButton, {0, 500});
  EXPECT_FALSE(The<ColorDialog>().Visible());
}

TEST_F(ColorSetTool, ConfirmingAColorShowsItInThePicture) {
  Add("one", 1);
  Press(Qt::LeftButton, {0, 0});
  QTest::keyClick(&The<ColorDialog>().vsbColor[0], Qt::Key_End);
  ClickControl(The<ColorDialog>().lblColorPreview);
  EXPECT_EQ(Sets[0].Colors[0], 255);
  EXPECT_EQ(tool->picColor.Canvas().GetPixel(3, 3), 255);
  EXPECT_EQ(tool->picColor.grab().toImage().pixelColor(3, 3), QColor(255, 0, 0));
  EXPECT_EQ(Palette[0], 1) << "the live palette waits until the set is applied";
}

TEST_F(ColorSetTool, ActivationShowsTheSelectedSet) {
  Add("one", 1);
  Sets[0].Colors.fill(0x654321);
  Sets[0].Name = "changed";
  The<MainForm>().SetFocus();
  tool->Form_Activate();
  EXPECT_EQ(tool->picColor.Canvas().GetPixel(0, 0), 0x654321);
  EXPECT_EQ(tool->txtName.Text(), "changed");
}

TEST_F(ColorSetTool, ShowingItAgainActivatesIt) {
  Add("one", 1);
  tool->Hide();
  The<PaletteControl>().Show();
  The<PaletteControl>().SetFocus();
  Sets[0].Name = "changed";
  tool->Show();
  EXPECT_EQ(tool->txtName.Text(), "changed");
}

TEST_F(ColorSetTool, CloseHidesAndKeepsTheList) {
  Add("one", 1);
  ClickControl(tool->fbnClose);
  EXPECT_FALSE(tool->Visible());
  tool->Show();
  EXPECT_THAT(Lines(), ElementsAre("one"));
  tool->close();
  EXPECT_FALSE(tool->Visible());
  EXPECT_EQ(&The<ColorSet>(), tool);
  EXPECT_EQ(SetCount, 1);
}

}  // namespace
}  // namespace brolk::test
