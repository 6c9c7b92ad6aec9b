// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QTest>

#include "browser/windows/browser.h"
#include "editor/editor_fixture.h"

namespace brolk::test {
namespace {

struct EditorKeys : EditorFixture {
  void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    PressKey(editor(), key, modifiers);
  }
  void Keypad(int key) { Press(key, Qt::KeypadModifier); }

  void Select(std::int16_t column, std::int16_t line) {
    EditSelColumn = column;
    EditSelLine = line;
    RedrawEditor();
  }

  static void ExpectSelection(int column, int line) {
    EXPECT_EQ(EditSelColumn, column);
    EXPECT_EQ(EditSelLine, line);
  }
};

TEST_F(EditorKeys, MoveTheSelection) {
  Select(5, 5);
  Keypad(Qt::Key_6);
  ExpectSelection(6, 5);
  Keypad(Qt::Key_4);
  ExpectSelection(5, 5);
  Keypad(Qt::Key_8);
  ExpectSelection(5, 4);
  Keypad(Qt::Key_2);
  ExpectSelection(5, 5);
  Keypad(Qt::Key_7);
  ExpectSelection(0, 0);
}

TEST_F(EditorKeys, OfTheArrowsHomeAndPageUpActLikeTheKeypad) {
  Select(5, 5);
  Press(Qt::Key_Right);
  ExpectSelection(6, 5);
  Press(Qt::Key_Left);
  Press(Qt::Key_Up);
  ExpectSelection(5, 4);
  Press(Qt::Key_Down);
  ExpectSelection(5, 5);
  Press(Qt::Key_Home);
  ExpectSelection(0, 0);
}

TEST_F(EditorKeys, StopAtTheEdgesOfTheGrid) {
  Select(15, 15);
  Keypad(Qt::Key_6);
  Keypad(Qt::Key_2);
  ExpectSelection(15, 15);
  Select(0, 0);
  Keypad(Qt::Key_4);
  Keypad(Qt::Key_8);
  ExpectSelection(0, 0);
}

TEST_F(EditorKeys, LeaveTheFrameOfTheFormerSelectionBehind) {
  Select(3, 3);
  Keypad(Qt::Key_6);
  Keypad(Qt::Key_6);
  ExpectFrame(5, 3, SelectionColor);
  // The grid lines have been drawn over the old frames, their cells have not: without the grid they stand.
  ClickControl(panel().fbnEditorGrid);
  ASSERT_FALSE(panel().fbnEditorGrid.Checked());
  Select(3, 3);
  Keypad(Qt::Key_6);
  Keypad(Qt::Key_6);
  for (const int column : {3, 4, 5}) ExpectFrame(column, 3, SelectionColor);
  RedrawEditor();
  ExpectFreshPicture();
}

TEST_F(EditorKeys, FeedTheTileTool) {
  Open("rom.bin", std::vector<std::uint8_t>(4096), kSnes4);
  SetSlot(1, 640, PlainTile(1));
  SetSlot(2, -1, PlainTile(1));
  Select(0, 0);
  Keypad(Qt::Key_6);
  EXPECT_EQ(tool().LoadedSlot, 1);
  EXPECT_EQ(tool().txtAddress.Text(), "640");
  Keypad(Qt::Key_6);
  EXPECT_EQ(tool().LoadedSlot, 2);
  EXPECT_TRUE(tool().txtAddress.isEnabled());
  Keypad(Qt::Key_6);
  EXPECT_EQ(tool().LoadedSlot, -1);
  EXPECT_FALSE(tool().txtAddress.isEnabled());
}

TEST_F(EditorKeys, WithoutAnActionLoadTheTileAndDrawTheFrameToo) {
  SetSlot(0, -1, PlainTile(1));
  tool().LoadTile(-1);
  panel().fbnEditorGrid.SetChecked(false);
  editor().Canvas().Fill(0x123456);
  Press(Qt::Key_Q);
  EXPECT_EQ(tool().LoadedSlot, 0);
  ExpectFrame(0, 0, SelectionColor);
  EXPECT_EQ(editor().Canvas().GetPixel(5, 5), 0x123456) << "the cell is not drawn";
  editor().Canvas().Fill(0x123456);
  Press(Qt::Key_F5);
  ExpectFrame(0, 0, SelectionColor);
}

TEST_F(EditorKeys, WithShiftOrAltDoNothing) {
  editor().Canvas().Fill(0x123456);
  const Surface before = editor().Canvas();
  Press(Qt::Key_6, Qt::KeypadModifier | Qt::ShiftModifier);
  Press(Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
  Press(Qt::Key_D, Qt::AltModifier);
  ExpectSelection(0, 0);
  EXPECT_TRUE(panel().fbnEditorGrid.Checked());
  EXPECT_EQ(editor().Canvas(), before);
}

TEST_F(EditorKeys, FlipAndTurnTheSelectedTile) {
  Open("rom.bin", std::vector<std::uint8_t>(4096), kSnes4);
  const struct {
    int key;
    Qt::KeyboardModifier modifier;
    int first;  // what stands at the top left afterwards
  } rows[] = {{Qt::Key_Slash, Qt::KeypadModifier, 7},    {Qt::Key_Asterisk, Qt::KeypadModifier, 56},
              {Qt::Key_9, Qt::KeypadModifier, 7},        {Qt::Key_Slash, Qt::NoModifier, 7},
              {Qt::Key_Asterisk, Qt::ShiftModifier, 56}, {Qt::Key_PageUp, Qt::NoModifier, 7}};
  for (const auto& row : rows) {
    SetSlot(0, 640, CountingTile());
    mouse.Click(At(0, 0));
    mouse.Move(At(0, 0));
    Press(row.key, row.modifier);
    EXPECT_EQ(EditSlots[0].Pixels[0], row.first) << row.key;
  }
}

TEST_F(EditorKeys, SaveCopyReloadAndClearTheSelectedTile) {
  const std::string path = Open("rom.bin", std::vector<std::uint8_t>(4096), kGba8);
  SetSlot(0, 640, PlainTile(7));
  SelColumn = 1;
  mouse.Click(At(0, 0));
  mouse.Move(At(0, 0));
  WithAnswers({6}, [this] { Press(Qt::Key_S); });
  EXPECT_EQ(FileBytes(path)[640], 7);
  WithAnswers({6}, [this] { Press(Qt::Key_C); });
  EXPECT_EQ(FileBytes(path)[64], 7) << "over the tile selected in the Browser";
  tool().txtAddress.SetText("1000");
  WithAnswers({6}, [this] { Press(Qt::Key_A); });
  EXPECT_EQ(FileBytes(path)[1000], 7);
  SetSlot(0, 640, PlainTile(1));
  Press(Qt::Key_R);
  EXPECT_EQ(EditSlots[0].Pixels, PlainTile(7));
  Press(Qt::Key_D);
  EXPECT_EQ(EditSlots[0].Address, -2);
}

TEST_F(EditorKeys, ZoomWithPlusAndMinusUpTo30AndDownTo2) {
  Press(Qt::Key_Plus, Qt::KeypadModifier);
  EXPECT_EQ(MainEdZoom, 4);
  Press(Qt::Key_Minus);
  Press(Qt::Key_Minus);
  EXPECT_EQ(MainEdZoom, 2);
  Press(Qt::Key_Minus, Qt::KeypadModifier);
  EXPECT_EQ(MainEdZoom, 2);
  MainEdZoom = 30;
  Press(Qt::Key_Plus, Qt::ShiftModifier);
  EXPECT_EQ(MainEdZoom, 30);
}

TEST_F(EditorKeys, SpaceGivesTheKeyboardToThePanel) {
  Press(Qt::Key_Space);
  EXPECT_EQ(Form::Active(), &panel());
}

TEST_F(EditorKeys, ControlGInvertsTheGridButtonAndNothingElse) {
  const Surface before = editor().Canvas();
  Press(Qt::Key_G, Qt::ControlModifier);
  EXPECT_FALSE(panel().fbnEditorGrid.Checked());
  EXPECT_EQ(editor().Canvas(), before) << "the picture follows at the next repaint";
  RedrawEditor();
  ExpectFreshPicture();
  Press(Qt::Key_G, Qt::ControlModifier);
  EXPECT_TRUE(panel().fbnEditorGrid.Checked());
}

TEST_F(EditorKeys, ControlNInvertsTheNonCopiedButtonAndNothingElse) {
  const Surface before = editor().Canvas();
  const bool mark = The<MainForm>().mnuNonCopied.Checked();
  Press(Qt::Key_N, Qt::ControlModifier);
  EXPECT_TRUE(panel().fbnNonCopied.Checked());
  EXPECT_EQ(editor().Canvas(), before);
  EXPECT_EQ(The<MainForm>().mnuNonCopied.Checked(), mark) << "the mark stays";
  RedrawEditor();
  ExpectFreshPicture();
  EXPECT_EQ(EmptySlotColor, EmptyColor);
}

TEST_F(EditorKeys, ControlBGoesToTheBrowserWhenItIsVisible) {
  ASSERT_FALSE(The<Browser>().Visible());
  Press(Qt::Key_B, Qt::ControlModifier);
  EXPECT_EQ(Form::Active(), &editor());
  Open("rom.bin", std::vector<std::uint8_t>(4096), kSnes4);
  editor().SetFocus();
  Press(Qt::Key_B, Qt::ControlModifier);
  EXPECT_EQ(Form::Active(), &The<Browser>());
}

TEST_F(EditorKeys, WithControlHaveNoClosingSteps) {
  SetSlot(0, -1, PlainTile(1));
  tool().LoadTile(-1);
  const Surface before = editor().Canvas();
  Press(Qt::Key_Q, Qt::ControlModifier);
  Press(Qt::Key_G, Qt::ControlModifier);
  EXPECT_EQ(tool().LoadedSlot, -1);
  EXPECT_EQ(editor().Canvas(), before);
}

TEST_F(EditorKeys, OfLettersTakeCapitalsAndSmallLettersAlike) {
  SetSlot(0, 640, PlainTile(1));
  Open("rom.bin", std::vector<std::uint8_t>(4096), kSnes4);
  SetSlot(0, 640, PlainTile(1));
  mouse.Click(At(0, 0));
  mouse.Move(At(0, 0));
  QTest::keyClicks(&editor(), "d");
  EXPECT_EQ(EditSlots[0].Address, -2);
}

}  // namespace
}  // namespace brolk::test
