// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMouseEvent>

#include "browser/windows/browser.h"
#include "editor/editor_fixture.h"
#include "palette/palette_model.h"
#include "palette/windows/palette_control.h"
#include "runtime/fault.h"

namespace brolk::test {
namespace {

struct EditorPointer : EditorFixture {};

// --- The status line

TEST_F(EditorPointer, TellsPositionInTheTileFrom1) {
  mouse.Move(At(3, 4, 0, 0));
  EXPECT_EQ(PositionStatus(), "X: 1   Y: 1");
  mouse.Move(At(9, 15, 7, 7));
  EXPECT_EQ(PositionStatus(), "X: 8   Y: 8");
  mouse.Move(At(0, 0, 2, 5));
  EXPECT_EQ(PositionStatus(), "X: 3   Y: 6");
}

TEST_F(EditorPointer, TellsTheColourIndexUnderIt) {
  SetSlot(1, 0, CountingTile(100));
  mouse.Move(At(1, 0, 3, 2));
  EXPECT_EQ(ColorStatus(), "Color 119");
  mouse.Move(At(2, 0, 3, 2));
  EXPECT_EQ(ColorStatus(), "Color 0") << "non-copied slots have a status too";
}

TEST_F(EditorPointer, TellsTheStatusInEveryToolAndWithEveryButton) {
  SetSlot(1, 0, PlainTile(44));
  for (const EditTools toolNumber : {kSelectTool, kPaintTool, kFillTool}) {
    The<MainForm>().ChooseTool(toolNumber);
    mouse.Move(At(0, 0));
    mouse.Move(At(1, 0, 6, 6));
    EXPECT_EQ(ColorStatus(), "Color 44");
    EXPECT_EQ(PositionStatus(), "X: 7   Y: 7");
  }
  The<MainForm>().ChooseTool(kSelectTool);
  mouse.Press(At(1, 0, 1, 1), Qt::MiddleButton);
  EXPECT_EQ(PositionStatus(), "X: 2   Y: 2");
}

TEST_F(EditorPointer, LeavesTheAddressLabelAlone) {
  The<MainForm>().lblAddress.SetText("kept");
  mouse.Click(At(3, 3));
  EXPECT_EQ(The<MainForm>().lblAddress.Text(), "kept");
}

TEST_F(EditorPointer, SaysAndDoesNothingOutsideTheGrid) {
  The<MainForm>().ChooseTool(kFillTool);
  CurrentColor = 5;
  The<MainForm>().lblPosition.SetText("kept");
  const QPoint outside[] = {{390, 10}, {10, 390}, {384, 0}, {0, 384}};
  for (const QPoint at : outside) {
    mouse.Click(at);
    EXPECT_EQ(PositionStatus(), "kept") << at.x() << ", " << at.y();
  }
  for (const EditSlot& slot : EditSlots) ASSERT_EQ(slot.Address, -2);
}

TEST_F(EditorPointer, KeepsFractionsOfItsPosition) {
  // 2.9 is still the first tile pixel at zoom 3, 3.1 the second.
  const auto moveTo = [this](QPointF at) {
    QMouseEvent move(QEvent::MouseMove, at, editor().mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&editor(), &move);
  };
  moveTo({2.9, 3.1});
  EXPECT_EQ(PositionStatus(), "X: 1   Y: 2");
  moveTo({383.0, 383.0});
  EXPECT_EQ(PositionStatus(), "X: 8   Y: 8");
  moveTo({383.25, 10});
  EXPECT_EQ(PositionStatus(), "X: 8   Y: 8") << "beyond the last pixel: no status";
}

TEST_F(EditorPointer, BeyondAScrolledGridRunsOnInTheTileAndThenIntoTheFault) {
  // One bar, moved to its end: the cell is limited to the last column, the pixel is not.
  editor().SetClientSize(300, 401);
  EXPECT_TRUE(editor().hsbEdit.isVisible());
  EXPECT_FALSE(editor().vsbEdit.isVisible());
  editor().hsbEdit.SetValue(editor().hsbEdit.Max());
  EditSlots[15].Pixels = CountingTile();
  mouse.Move({298, 4});
  EXPECT_EQ(PositionStatus(), "X: 14   Y: 2");
  EXPECT_EQ(ColorStatus(), "Color 21");
  EXPECT_EQ(FaultOf([this] { mouse.Move({298, 22}); }), FaultKind::SubscriptOutOfRange);
}

// --- Select

TEST_F(EditorPointer, SelectsTheSlotUnderAPress) {
  mouse.Press(At(3, 2));
  EXPECT_EQ(EditSelColumn, 3);
  EXPECT_EQ(EditSelLine, 2);
  EXPECT_EQ(editor().SlotDragging, -1);
  ExpectFrame(3, 2, SelectionColor);
}

TEST_F(EditorPointer, WipesTheOldFrameByDrawingItsCell) {
  mouse.Click(At(3, 2));
  mouse.Move(At(3, 2));
  mouse.Click(At(8, 8));
  ExpectFreshPicture();
}

TEST_F(EditorPointer, WipesTheWholeFrameOfANonCopiedCellAlsoWithoutTheGrid) {
  ClickControl(panel().fbnEditorGrid);
  mouse.Click(At(3, 2));
  mouse.Move(At(3, 2));
  mouse.Click(At(8, 8));
  ExpectFreshPicture();
}

TEST_F(EditorPointer, LeavesTheFarEdgesOfAFilledCellsFrameWithoutTheGrid) {
  // A filled cell is one pixel smaller than its frame to the right and below.
  ClickControl(panel().fbnEditorGrid);
  SetSlot(35, -1, PlainTile(40));
  mouse.Click(At(3, 2));
  mouse.Move(At(3, 2));
  mouse.Click(At(8, 8));
  EXPECT_EQ(editor().Canvas().GetPixel(3 * 24, 2 * 24 + 5), Palette[40]);
  EXPECT_EQ(editor().Canvas().GetPixel(3 * 24 + 5, 2 * 24), Palette[40]);
  EXPECT_EQ(editor().Canvas().GetPixel(4 * 24, 2 * 24 + 5), SelectionColor);
  EXPECT_EQ(editor().Canvas().GetPixel(3 * 24 + 5, 3 * 24), SelectionColor);
}

TEST_F(EditorPointer, FeedsTheTileToolBySelecting) {
  Open("rom.bin", std::vector<std::uint8_t>(4096), kSnes4);
  SetSlot(1, -1, PlainTile(1));
  SetSlot(2, 640, PlainTile(1));
  SetSlot(3, -77, PlainTile(1));
  const struct {
    int column;
    const char* text;
    bool enabled;
    int slot;
  } rows[] = {{2, "640", true, 2}, {0, "n/a", false, -1}, {1, "n/a", true, 1}, {3, "n/a", false, -1}};
  for (const auto& row : rows) {
    mouse.Click(At(row.column, 0));
    mouse.Move(At(row.column, 0));
    EXPECT_EQ(tool().txtAddress.Text(), row.text);
    EXPECT_EQ(tool().txtAddress.isEnabled(), row.enabled);
    EXPECT_EQ(tool().LoadedSlot, row.slot);
  }
}

TEST_F(EditorPointer, OnlyTellsTheStatusWhileTheButtonStaysDown) {
  mouse.Press(At(3, 2));
  mouse.Move(At(5, 5, 4, 4));
  EXPECT_EQ(PositionStatus(), "X: 5   Y: 5");
  EXPECT_EQ(EditSelColumn, 3);
  EXPECT_EQ(EditSelLine, 2);
  mouse.Press(At(6, 6), Qt::RightButton);
  EXPECT_EQ(EditSelColumn, 3) << "a second button changes nothing while the slot is dragged";
}

// --- Swap by dragging

TEST_F(EditorPointer, SwapsAtTheFirstMoveAfterTheRelease) {
  SetSlot(0, 100, PlainTile(1));
  SetSlot(17, -1, PlainTile(2));
  mouse.Drag(At(0, 0), At(1, 1));
  EXPECT_EQ(EditSlots[0].Address, 100) << "nothing happens at the release";
  EXPECT_EQ(editor().SlotDragging, -1);
  mouse.Move(At(1, 1));
  EXPECT_EQ(EditSlots[0].Address, -1);
  EXPECT_EQ(EditSlots[0].Pixels, PlainTile(2));
  EXPECT_EQ(EditSlots[17].Address, 100);
  EXPECT_EQ(EditSlots[17].Pixels, PlainTile(1));
  EXPECT_EQ(editor().SlotDragging, 0);
  EXPECT_EQ(EditSelColumn, 0) << "the selection does not follow";
  EXPECT_EQ(EditSelLine, 0);
  ExpectFreshPicture();
}

TEST_F(EditorPointer, SwapsWithTheSlotOfThatMoveAndNotOfTheRelease) {
  SetSlot(0, 100, PlainTile(1));
  mouse.Drag(At(0, 0), At(1, 1));
  mouse.Move(At(7, 0));
  EXPECT_EQ(EditSlots[7].Address, 100);
  EXPECT_EQ(EditSlots[17].Address, -2);
}

TEST_F(EditorPointer, LeavesTheTileToolOnTheSourceOfASwap) {
  Open("rom.bin", std::vector<std::uint8_t>(4096), kSnes4);
  SetSlot(0, 96, PlainTile(1));
  SetSlot(1, 640, PlainTile(2));
  mouse.Drag(At(0, 0), At(1, 0));
  mouse.Move(At(1, 0));
  EXPECT_EQ(tool().LoadedSlot, 0);
  EXPECT_EQ(tool().LoadedAddress, 96);
  EXPECT_EQ(tool().txtAddress.Text(), "96");
  EXPECT_EQ(EditSlots[0].Address, 640);
}

TEST_F(EditorPointer, DoesNotSwapASlotWithItself) {
  SetSlot(0, 100, CountingTile());
  mouse.Click(At(0, 0));
  mouse.Move(At(0, 0, 5, 5));
  EXPECT_EQ(editor().SlotDragging, 0);
  EXPECT_EQ(EditSlots[0].Address, 100);
  EXPECT_EQ(EditSlots[0].Pixels, CountingTile());
}

TEST_F(EditorPointer, DoesNotSwapAfterItHasLeftTheGrid) {
  SetSlot(0, 100, PlainTile(1));
  mouse.Press(At(0, 0));
  mouse.Move({390, 5});
  EXPECT_EQ(editor().SlotDragging, 0);
  mouse.Move(At(1, 1));
  EXPECT_EQ(editor().SlotDragging, -1) << "back with the button down it selects anew";
  EXPECT_EQ(EditSelColumn, 1);
  mouse.Move({390, 5});
  mouse.Release({390, 5});
  mouse.Move(At(2, 2));
  EXPECT_EQ(EditSlots[0].Address, 100);
  EXPECT_EQ(EditSlots[34].Address, -2);
}

TEST_F(EditorPointer, DoesNotSwapWhileAnotherButtonIsDown) {
  SetSlot(0, 100, PlainTile(1));
  mouse.Press(At(0, 0));
  mouse.Press(At(1, 1), Qt::MiddleButton);
  mouse.Release(At(1, 1));
  mouse.Move(At(1, 1));
  EXPECT_EQ(EditSlots[0].Address, 100);
  EXPECT_EQ(editor().SlotDragging, -1);
  mouse.Release(At(1, 1), Qt::MiddleButton);
  mouse.Move(At(1, 1));
  EXPECT_EQ(EditSlots[17].Address, 100);
}

TEST_F(EditorPointer, SwapsInWhicheverToolIsChosenMeanwhile) {
  SetSlot(0, 100, PlainTile(1));
  mouse.Drag(At(0, 0), At(1, 1));
  The<MainForm>().ChooseTool(kPaintTool);
  mouse.Move(At(1, 1));
  EXPECT_EQ(EditSlots[17].Address, 100);
}

TEST_F(EditorPointer, MakesTwoPressesOfADoubleClickInPaint) {
  // The Editor has no double click of its own; the second press counts as a press.
  The<MainForm>().ChooseTool(kPaintTool);
  CurrentColor = 3;
  const QPointF at = At(0, 0, 4, 4);
  QMouseEvent twice(QEvent::MouseButtonDblClick, at, editor().mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                    Qt::NoModifier);
  QCoreApplication::sendEvent(&editor(), &twice);
  EXPECT_EQ(EditSlots[0].Pixels[36], 3);
}

// --- Paint

struct EditorPaint : EditorPointer {
  void SetUp() override {
    EditorPointer::SetUp();
    ClickControl(panel().fbnPaint);
    CurrentColor = 9;
  }
};

TEST_F(EditorPaint, PutsTheColourDownOnePixel) {
  SetSlot(18, 640, CountingTile());
  mouse.Click(At(2, 1, 3, 4));
  TilePixels expected = CountingTile();
  expected[4 * 8 + 3] = 9;
  EXPECT_EQ(EditSlots[18].Pixels, expected);
  EXPECT_EQ(EditSlots[18].Address, 640);
  ExpectFreshPicture();
}

TEST_F(EditorPaint, MakesANonCopiedSlotUnaddressedAndShowsItsSurface) {
  Palette[0] = 0x00FFFF;
  ClearAllSlots();
  mouse.Click(At(5, 0, 1, 1));
  EXPECT_EQ(EditSlots[5].Address, -1);
  ExpectCellShows(5, 0, EditSlots[5]);
  EXPECT_EQ(editor().Canvas().GetPixel(At(5, 0, 1, 1).x(), At(5, 0, 1, 1).y()), Palette[9]);
  EXPECT_EQ(editor().Canvas().GetPixel(At(5, 0, 2, 1).x(), At(5, 0, 2, 1).y()), 0x00FFFF);
}

TEST_F(EditorPaint, PaintsWhereEventsArriveAndNothingBetween) {
  mouse.Press(At(0, 0, 0, 0));
  mouse.Move(At(0, 0, 7, 0));
  mouse.Release(At(0, 0, 7, 0));
  for (int x = 0; x < 8; ++x) EXPECT_EQ(EditSlots[0].Pixels[x], x == 0 || x == 7 ? 9 : 0) << x;
}

TEST_F(EditorPaint, DoesNotSelect) {
  mouse.Click(At(5, 5));
  EXPECT_EQ(EditSelColumn, 0);
  EXPECT_EQ(EditSelLine, 0);
  EXPECT_EQ(editor().SlotDragging, 0);
  ExpectFrame(0, 0, SelectionColor);
}

TEST_F(EditorPaint, ChangesTwinsOnScreenAndInPixels) {
  SetSlot(0, 640, PlainTile(1));
  SetSlot(200, 640, PlainTile(1));
  SetSlot(201, 641, PlainTile(1));
  RedrawEditor();
  mouse.Click(At(0, 0, 7, 7));
  EXPECT_EQ(EditSlots[200].Pixels[63], 9);
  EXPECT_EQ(EditSlots[201].Pixels[63], 1);
  ExpectFreshPicture();
}

TEST_F(EditorPaint, ShowsTheSameOnATwinWhoseOtherPixelsDiffer) {
  SetSlot(0, 640, PlainTile(1));
  SetSlot(35, 640, PlainTile(2));
  mouse.Click(At(0, 0, 7, 7));
  EXPECT_EQ(EditSlots[35].Pixels[0], 2);
  ExpectCellShows(3, 2, EditSlots[0]);
}

TEST_F(EditorPaint, PaintsNothingWhileNonCopiedTilesStandOut) {
  SetSlot(0, 640, PlainTile(1));
  ClickControl(panel().fbnNonCopied);
  ASSERT_TRUE(panel().fbnNonCopied.Checked());
  mouse.Click(At(0, 0));
  mouse.Click(At(1, 0));
  EXPECT_EQ(EditSlots[0].Pixels, PlainTile(1));
  EXPECT_EQ(EditSlots[1].Address, -2);
}

TEST_F(EditorPaint, DrawsTheFrameOverAPaintedCell) {
  mouse.Click(At(0, 0, 0, 0));
  ExpectFrame(0, 0, SelectionColor);
}

// --- Fill

struct EditorFill : EditorPointer {
  void SetUp() override {
    EditorPointer::SetUp();
    ClickControl(panel().fbnFill);
    CurrentColor = 200;
  }
};

TEST_F(EditorFill, SetsAllPixelsOfTheCellAndNoOther) {
  SetSlot(17, 640, CountingTile());
  SetSlot(18, 700, CountingTile());
  mouse.Click(At(1, 1, 3, 3));
  EXPECT_EQ(EditSlots[17].Pixels, PlainTile(200));
  EXPECT_EQ(EditSlots[18].Pixels, CountingTile());
  RedrawEditor();
  ExpectFreshPicture();
}

TEST_F(EditorFill, ShowsTheFilledCellAtOnce) {
  SetSlot(17, 640, CountingTile());
  RedrawEditor();
  mouse.Press(At(1, 1, 3, 3));
  ExpectFreshPicture();
}

TEST_F(EditorFill, MakesANonCopiedSlotUnaddressedAndFillsTwins) {
  SetSlot(30, 640, PlainTile(1));
  SetSlot(31, 640, PlainTile(2));
  mouse.Click(At(0, 0));
  mouse.Click(At(14, 1));
  EXPECT_EQ(EditSlots[0].Address, -1);
  EXPECT_EQ(EditSlots[31].Pixels, PlainTile(200));
  ExpectFreshPicture();
}

TEST_F(EditorFill, WorksWhileNonCopiedTilesStandOut) {
  ClickControl(panel().fbnNonCopied);
  mouse.Click(At(1, 0));
  EXPECT_EQ(EditSlots[1].Address, -1);
  EXPECT_EQ(EditSlots[1].Pixels, PlainTile(200));
  ExpectFreshPicture();
}

TEST_F(EditorFill, FillsEachCellThatTheHeldPointerTouches) {
  mouse.Press(At(0, 0));
  mouse.Move(At(1, 0));
  mouse.Move(At(3, 0));
  mouse.Release(At(3, 0));
  mouse.Move(At(4, 0));
  for (const int slot : {0, 1, 3}) EXPECT_EQ(EditSlots[slot].Pixels, PlainTile(200)) << slot;
  for (const int slot : {2, 4}) EXPECT_EQ(EditSlots[slot].Address, -2) << slot;
}

// --- The right button

TEST_F(EditorPaint, PicksAColourWithTheRightButton) {
  SetSlot(0, 640, CountingTile(64));
  RedrawEditor();
  const Surface before = editor().Canvas();
  mouse.Click(At(0, 0, 2, 1), Qt::RightButton);
  EXPECT_EQ(CurrentColor, 74);
  EXPECT_EQ(EditSlots[0].Pixels, CountingTile(64));
  EXPECT_EQ(editor().Canvas(), before) << "nothing is drawn";
  EXPECT_EQ(The<PaletteControl>().shpCol.Canvas().GetPixel(3, 3), Palette[74] & 0xFFFFFF);
}

TEST_F(EditorFill, PicksAColourAlsoWhileTheRightButtonMoves) {
  SetSlot(0, 640, CountingTile());
  mouse.Press(At(0, 0, 2, 1), Qt::RightButton);
  mouse.Move(At(0, 0, 7, 7));
  EXPECT_EQ(CurrentColor, 63);
}

TEST_F(EditorPaint, LetsTheLeftButtonWinOverTheRight) {
  SetSlot(0, 640, PlainTile(1));
  mouse.Press(At(0, 0), Qt::RightButton);
  EXPECT_EQ(CurrentColor, 1);
  CurrentColor = 9;
  mouse.Press(At(0, 0, 5, 5), Qt::LeftButton);
  EXPECT_EQ(EditSlots[0].Pixels[45], 9);
  EXPECT_EQ(CurrentColor, 9);
}

TEST_F(EditorPaint, DoesNothingWithTheMiddleButton) {
  SetSlot(0, 640, PlainTile(1));
  mouse.Click(At(0, 0), Qt::MiddleButton);
  EXPECT_EQ(CurrentColor, 9);
  EXPECT_EQ(EditSlots[0].Pixels, PlainTile(1));
}

TEST_F(EditorPointer, ShowsTheEditorMenuOnceForARightPressInSelect) {
  const auto menus = WithMenusClosed([this] {
    mouse.Press(At(4, 4), Qt::RightButton);
    mouse.Move(At(4, 5));
    mouse.Move(At(4, 6));
  });
  ASSERT_EQ(menus.size(), 1U);
  EXPECT_EQ(menus[0], The<MainForm>().mnuEditor.title().toStdString());
  EXPECT_EQ(CurrentColor, 0) << "it does not pick a colour";
  EXPECT_EQ(EditSelColumn, 0) << "nor select";
  mouse.Release(At(4, 6), Qt::RightButton);
  EXPECT_EQ(WithMenusClosed([this] { mouse.Press(At(4, 4), Qt::RightButton); }).size(), 1U);
}

TEST_F(EditorPointer, ShowsTheToolWindowsThatAreOnAfterTheMenu) {
  The<TileControl>().Hide();
  WithMenusClosed([this] { mouse.Press(At(4, 4), Qt::RightButton); });
  EXPECT_TRUE(The<TileControl>().Visible());
}

}  // namespace
}  // namespace brolk::test
