// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QMdiSubWindow>
#include <QTest>

#include "editor/editor_fixture.h"

namespace brolk::test {
namespace {

using EditorLayout = EditorFixture;

TEST_F(EditorLayout, FitsTheWholeGridWithoutBars) {
  editor().SetClientSize(150, 160);
  ClickControl(editor().fbnFit);
  EXPECT_EQ(editor().ScaleWidth(), 384 + 17);
  EXPECT_EQ(editor().ScaleHeight(), 384 + 17);
  EXPECT_FALSE(editor().hsbEdit.isVisible());
  EXPECT_FALSE(editor().vsbEdit.isVisible());
  ExpectFreshPicture();
}

TEST_F(EditorLayout, FitsInsideTheRealFrame) {
  EXPECT_EQ(editor().Width(), (401 + 6) * 15);
  EXPECT_EQ(editor().Height(), (401 + 26) * 15);
}

TEST_F(EditorLayout, FitsAtOtherZoomsFromTheMenu) {
  MainEdZoom = 2;
  The<MainForm>().mnuResize.trigger();
  EXPECT_EQ(editor().ScaleWidth(), 256 + 17);
  EXPECT_EQ(editor().ScaleHeight(), 256 + 17);
}

TEST_F(EditorLayout, KeepsTheFitButtonInTheLowerRightCorner) {
  editor().SetClientSize(300, 200);
  EXPECT_EQ(editor().fbnFit.geometry(), QRect(283, 183, 17, 17));
  EXPECT_TRUE(editor().fbnFit.isVisible());
}

TEST_F(EditorLayout, ShowsABarWhereGridAndBarThicknessDoNotFit) {
  editor().SetClientSize(400, 401);
  EXPECT_TRUE(editor().hsbEdit.isVisible());
  EXPECT_FALSE(editor().vsbEdit.isVisible());
  editor().SetClientSize(401, 400);
  EXPECT_FALSE(editor().hsbEdit.isVisible());
  EXPECT_TRUE(editor().vsbEdit.isVisible());
}

TEST_F(EditorLayout, PlacesTheBarsAtTheEdges) {
  editor().SetClientSize(300, 200);
  EXPECT_EQ(editor().hsbEdit.geometry(), QRect(0, 183, 283, 17));
  EXPECT_EQ(editor().vsbEdit.geometry(), QRect(283, 0, 17, 183));
  EXPECT_EQ(editor().hsbEdit.Max(), 384 - (300 - 17));
  EXPECT_EQ(editor().vsbEdit.Max(), 384 - (200 - 17));
}

TEST_F(EditorLayout, KeepsTheRangeOfABarThatIsHidden) {
  editor().SetClientSize(300, 200);
  const int before = editor().hsbEdit.Max();
  editor().SetClientSize(500, 500);
  EXPECT_EQ(editor().hsbEdit.Max(), before);
}

TEST_F(EditorLayout, ScrollsBackToTheCornerAtEveryLayout) {
  editor().SetClientSize(300, 200);
  editor().hsbEdit.SetValue(40);
  editor().vsbEdit.SetValue(50);
  editor().FormatEditScr();
  EXPECT_EQ(editor().hsbEdit.Value(), 0);
  EXPECT_EQ(editor().vsbEdit.Value(), 0);
  ExpectFreshPicture();
}

TEST_F(EditorLayout, RedrawsScrolled) {
  for (int slot = 0; slot < 256; slot += 3) SetSlot(static_cast<std::uint8_t>(slot), 0, CountingTile(7));
  editor().SetClientSize(300, 200);
  editor().hsbEdit.SetValue(41);
  editor().vsbEdit.SetValue(101);
  ExpectFreshPicture();
  EXPECT_EQ(CurrentEditorView().scrollX, 41);
  EXPECT_EQ(CurrentEditorView().scrollY, 101);
}

TEST_F(EditorLayout, RedrawsWhileAThumbIsDragged) {
  SetSlot(20, 0, CountingTile(7));
  editor().SetClientSize(300, 200);
  editor().vsbEdit.setSliderDown(true);
  editor().vsbEdit.setSliderPosition(30);
  EXPECT_EQ(editor().vsbEdit.Value(), 30);
  ExpectFreshPicture();
  editor().vsbEdit.setSliderDown(false);
  EXPECT_EQ(editor().vsbEdit.Value(), 30);
}

TEST_F(EditorLayout, SelectsAndPaintsUnderThePointerWhenScrolled) {
  editor().SetClientSize(300, 200);
  editor().hsbEdit.SetValue(24);
  editor().vsbEdit.SetValue(48);
  mouse.Click({1, 1});
  EXPECT_EQ(EditSelColumn, 1);
  EXPECT_EQ(EditSelLine, 2);
  mouse.Move({1, 1});
  The<MainForm>().ChooseTool(kPaintTool);
  mouse.Click({4, 1});
  EXPECT_EQ(EditSlots[33].Address, -1);
  ExpectFreshPicture();
}

TEST_F(EditorLayout, NeverGetsSmallerThan2000Twips) {
  editor().SetWidth(300);
  editor().SetHeight(300);
  EXPECT_EQ(editor().Width(), 133 * 15);
  EXPECT_EQ(editor().Height(), 133 * 15);
  ExpectFreshPicture();
  editor().SetWidth(2100);
  EXPECT_EQ(editor().Width(), 2100);
}

TEST_F(EditorLayout, NeverGetsSmallerWhileItIsHidden) {
  editor().Hide();
  editor().SetWidth(0);
  editor().SetHeight(0);
  EXPECT_EQ(editor().Width(), 133 * 15);
  EXPECT_EQ(editor().ScaleWidth(), 127);
  EXPECT_EQ(editor().ScaleHeight(), 107);
}

TEST_F(EditorLayout, RedrawsAndLaysOutAtEveryResize) {
  editor().hsbEdit.SetValue(0);
  editor().SetClientSize(200, 300);
  editor().hsbEdit.SetValue(50);
  editor().SetClientSize(220, 310);
  EXPECT_EQ(editor().hsbEdit.Value(), 0);
  EXPECT_EQ(editor().fbnFit.pos(), QPoint(203, 293));
  ExpectFreshPicture();
}

TEST_F(EditorLayout, StaysGreyOutsideASmallGrid) {
  MainEdZoom = 2;
  editor().SetClientSize(420, 300);
  RedrawEditor();
  EXPECT_EQ(editor().Canvas().GetPixel(300, 100), PackRgb(172, 172, 172));
  EXPECT_EQ(editor().Canvas().GetPixel(100, 280), PackRgb(172, 172, 172));
  ExpectFreshPicture();
}

TEST_F(EditorLayout, ScrollsWithTheWheel) {
  editor().SetClientSize(300, 200);
  TurnWheel(editor(), {50, 50}, true);
  EXPECT_GT(editor().vsbEdit.Value(), 0);
  EXPECT_EQ(editor().hsbEdit.Value(), 0);
  TurnWheel(editor(), {50, 50}, false);
  EXPECT_EQ(editor().vsbEdit.Value(), 0);
  TurnWheel(editor(), {50, 50}, false);
  EXPECT_EQ(editor().vsbEdit.Value(), 0);
}

TEST_F(EditorLayout, DoesNotScrollWithTheWheelWhenAllIsSeen) {
  TurnWheel(editor(), {50, 50}, true);
  EXPECT_EQ(editor().vsbEdit.Value(), 0);
}

}  // namespace
}  // namespace brolk::test
