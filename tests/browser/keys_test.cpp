// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QTest>

#include "browser/browser_windows.h"
#include "browser/windows/page_view.h"
#include "editor/slots.h"
#include "editor/windows/editor.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

struct PageKeys : BrowserWindows {};

// Keys.

TEST_F(PageKeys, SixRunsThroughTheLineAndOn) {
  const auto& file = OpenGba8();
  ClickPage(24 * 6, 0);
  PressKeypad(6);
  EXPECT_EQ(SelColumn, 7);
  EXPECT_EQ(AddressBox(), std::to_string(7 * 64));
  EXPECT_EQ(Line, 0);
  PressKeypad(6);
  EXPECT_EQ(SelColumn, 0);
  EXPECT_EQ(SelLine, 1);
  EXPECT_EQ(Line, 1);
  EXPECT_EQ(ShownPage(), NaivePage(file));
}

TEST_F(PageKeys, SixAtTheLastTileMovesNothingAndRepaints) {
  const auto& file = OpenGba8();
  PressKeypad(1);
  EXPECT_EQ(SelColumn, 7);
  EXPECT_EQ(SelLine, 15);
  Page().Canvas().Fill(0);
  PressKeypad(6);
  EXPECT_EQ(SelColumn, 7);
  EXPECT_EQ(SelLine, 15);
  EXPECT_EQ(ShownPage(), NaivePage(file));
  EXPECT_EQ(BrowserAddress, 0) << "the keys do not scroll";
}

TEST_F(PageKeys, FourRunsBack) {
  OpenGba8();
  ClickPage(0, 24);
  PressKeypad(4);
  EXPECT_EQ(SelColumn, 7);
  EXPECT_EQ(SelLine, 0);
  EXPECT_EQ(Line, 0);
  PressKeypad(7);
  PressKeypad(4);
  EXPECT_EQ(SelColumn, 0);
  EXPECT_EQ(SelLine, 0);
}

TEST_F(PageKeys, TwoAndEightLeaveTheLineIndexOutOfStep) {
  OpenGba8();
  ClickPage(24 * 2, 24 * 3);
  EXPECT_EQ(Line, 3);
  PressKeypad(2);
  EXPECT_EQ(SelLine, 4);
  EXPECT_EQ(Line, 3);
  PressKeypad(8);
  PressKeypad(8);
  EXPECT_EQ(SelLine, 2);
  EXPECT_EQ(Line, 3);
  EXPECT_EQ(AddressBox(), std::to_string((2 * 8 + 2) * 64));
}

TEST_F(PageKeys, SevenAndOneGoToTheCorners) {
  OpenGba8();
  PressKeypad(1);
  EXPECT_EQ(AddressBox(), std::to_string(127 * 64));
  PressKeypad(7);
  EXPECT_EQ(AddressBox(), "0");
}

TEST_F(PageKeys, TheBarsTellTheEdgesNotThePage) {
  OpenGba8();
  MainRows = 4;
  MainLines = 4;
  ReloadPage();
  PressKeypad(1);
  EXPECT_EQ(SelColumn, 7) << "the bar of rows still stands at 8";
  EXPECT_EQ(SelLine, 15);
}

TEST_F(PageKeys, ArrowsHomeAndEndActAlike) {
  OpenGba8();
  ClickPage(1, 1);
  for (const int key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up})
    PressPageKey(key);
  EXPECT_EQ(SelColumn, 1);
  EXPECT_EQ(SelLine, 1);
  PressPageKey(Qt::Key_End);
  EXPECT_EQ(SelLine, 15);
  PressPageKey(Qt::Key_Home);
  EXPECT_EQ(SelLine, 0);
}

TEST_F(PageKeys, KeysWithShiftOrAltDoNothing) {
  OpenGba8();
  ClickPage(1, 1);
  PressPageKey(Qt::Key_Right, Qt::ShiftModifier);
  PressPageKey(Qt::Key_Right, Qt::AltModifier);
  PressPageKey(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(SelColumn, 0);
}

TEST_F(PageKeys, EnterTakesTheTileIntoTheEditor) {
  const auto& file = OpenGba8();
  ClickPage(24 * 2, 24);
  PressPageKey(Qt::Key_Return);
  EXPECT_EQ(PixelsOf(0), TileAtAddress(file, 640));
  PressPageKey(Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(EditSlots[1].Address, 640);
  EXPECT_EQ(EditSelColumn, 2);
}

TEST_F(PageKeys, EnterAtTheLastSlotOfALineFillsItAgain) {
  OpenGba8();
  EditSelColumn = 15;
  EditSelLine = 1;
  PressPageKey(Qt::Key_Return);
  ClickPage(24, 0);
  PressPageKey(Qt::Key_Return);
  EXPECT_EQ(EditSelColumn, 15);
  EXPECT_EQ(EditSelLine, 1);
  EXPECT_EQ(EditSlots[31].Address, 64);
  EXPECT_EQ(EditSlots[32].Address, kNonCopied);
}

TEST_F(PageKeys, SpaceGivesTheFocusToThePanel) {
  OpenGba8();
  ClickPage(1, 1);
  PressPageKey(Qt::Key_Space);
  EXPECT_EQ(Form::Active(), &Panel());
  EXPECT_TRUE(Panel().isAncestorOf(QApplication::focusWidget()) || QApplication::focusWidget() == &Panel());
}

TEST_F(PageKeys, PlusAndMinusZoom) {
  OpenGba8();
  PressPageKey(Qt::Key_Plus, Qt::KeypadModifier);
  EXPECT_EQ(MainZoom, 4);
  PressPageKey(Qt::Key_Plus, Qt::ShiftModifier);
  EXPECT_EQ(MainZoom, 5);
  PressPageKey(Qt::Key_Minus);
  EXPECT_EQ(MainZoom, 4);
}

TEST_F(PageKeys, ControlGTurnsTheButtonAlone) {
  OpenGba8();
  PressPageKey(Qt::Key_G, Qt::ControlModifier);
  EXPECT_FALSE(Panel().fbnGrid.Checked());
  EXPECT_TRUE(ShowGrid) << "the grid follows at the next click of the button itself";
  ClickControl(Panel().fbnGrid);
  EXPECT_TRUE(ShowGrid);
}

TEST_F(PageKeys, ControlEGivesTheFocusToTheEditorIfItShows) {
  OpenGba8();
  ClickPage(1, 1);
  PressPageKey(Qt::Key_E, Qt::ControlModifier);
  EXPECT_EQ(Form::Active(), &The<Editor>());
  ClickPage(1, 1);
  The<Editor>().Hide();
  PressPageKey(Qt::Key_E, Qt::ControlModifier);
  EXPECT_EQ(Form::Active(), &Page());
}

TEST_F(PageKeys, ControlCAsksAndCloses) {
  OpenGba8();
  const auto seen = WithAnswers({6}, [] { PressPageKey(Qt::Key_C, Qt::ControlModifier); });
  EXPECT_EQ(seen[0].title, "Brolk Plus - Close file?");
  EXPECT_FALSE(FileOpen);
}

TEST_F(PageKeys, ControlOAsksAndOpens) {
  OpenGba8();
  const std::string next = MakeFile("next.dat", RampBytes(4096));
  AnswerFileDialog(next);
  WithAnswers({6}, [] { PressPageKey(Qt::Key_O, Qt::ControlModifier); });
  EXPECT_EQ(FileName, next);
}

TEST_F(PageKeys, ControlOActsInThePanelWithNoFileOpen) {
  const std::string path = MakeFile("next.dat", RampBytes(4096));
  for (QWidget* focus : {static_cast<QWidget*>(&Panel()), static_cast<QWidget*>(&Panel().txtAddress),
                         static_cast<QWidget*>(&Panel().cboMode), static_cast<QWidget*>(&Panel().hsbRows),
                         static_cast<QWidget*>(&Panel().fbnGrid)}) {
    FileOpen = false;
    FileName.clear();
    AnswerFileDialog(path);
    focus->setFocus();
    QTest::keyClick(focus, Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(FileName, path) << focus->objectName().toStdString();
  }
}

}  // namespace
}  // namespace brolk::test
