// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include "browser/browser_windows.h"
#include "browser/windows/page_view.h"
#include "editor/slots.h"
#include "editor/windows/edit.h"
#include "editor/windows/editor.h"
#include "editor/windows/tile_control.h"
#include "forms/keys.h"
#include "shell/windows/options.h"
#include "tile/modes.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

struct PagePointer : BrowserWindows {};
struct PageKeys : BrowserWindows {};
struct PageDrag : BrowserWindows {
  void SetUp() override {
    BrowserWindows::SetUp();
    The<Options>().fbnSaveWarning.SetChecked(false);
  }
};

std::string AddressStatus() {
  return The<MainForm>().lblAddress.Text().toStdString();
}
std::string PositionStatus() {
  return The<MainForm>().lblPosition.Text().toStdString();
}
std::string ColorStatus() {
  return The<MainForm>().lblColor.Text().toStdString();
}

// The bytes that a slot holds.
std::vector<std::uint8_t> PixelsOf(std::uint8_t slot) {
  const auto pixels = EditSlots[slot].Pixels.All();
  return {pixels.begin(), pixels.end()};
}

std::vector<std::uint8_t> TileAtAddress(const std::vector<std::uint8_t>& file, std::int32_t address) {
  return {file.begin() + address, file.begin() + address + 64};
}

// The name of the menu that comes up while `action` runs, empty for none.
std::string MenuDuring(const std::function<void()>& action) {
  std::string name;
  QTimer watcher;
  QObject::connect(&watcher, &QTimer::timeout, &watcher, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) return;
    name = menu->objectName().toStdString();
    menu->close();
  });
  watcher.start(0);
  action();
  return name;
}

// A point of the page in pixels of the Editor, by the outer edges of the two windows.
QPoint PagePointOver(QPoint editorPoint) {
  return editorPoint + The<Editor>().ChildFrame()->pos() - The<Browser>().ChildFrame()->pos();
}

// Selecting.

TEST_F(PagePointer, ActivationBringsTheLineBytesUpToTheMode) {
  OpenGba8();
  ChooseInList(Panel().cboMode, kListGameboy);
  Page().vsbAddress.SetValue(4);
  ASSERT_EQ(BrowserAddress, 2048);
  ClickPage(1, 1);
  EXPECT_EQ(LineBytes, 128);
  EXPECT_EQ(Line, 16);
}

TEST_F(PagePointer, APressOnTheScrollBarActivatesThePageToo) {
  OpenGba8();
  ChooseInList(Panel().cboMode, kListGameboy);
  ASSERT_EQ(LineBytes, 512);
  ClickArrowUp(Page().vsbAddress);
  EXPECT_EQ(LineBytes, 128);
}

TEST_F(PagePointer, APressOnTheActivePageLeavesTheLineBytes) {
  OpenGba8();
  ClickPage(1, 1);
  Modes[GfxMode].BytesPerTile = 32;
  ClickPage(1, 1);
  EXPECT_EQ(LineBytes, 512);
}

TEST_F(PagePointer, APressSelectsTheTileUnderIt) {
  const auto& file = OpenGba8();
  ClickPage(24 * 3 + 5, 24 * 2 + 23);
  EXPECT_EQ(SelColumn, 3);
  EXPECT_EQ(SelLine, 2);
  EXPECT_EQ(AddressBox(), std::to_string((2 * 8 + 3) * 64));
  EXPECT_EQ(Line, 2);
  EXPECT_EQ(BrowserAddress, 0) << "the address box does not navigate";
  EXPECT_EQ(ShownPage(), NaivePage(file));
}

TEST_F(PagePointer, EveryButtonButTheRightOneSelects) {
  OpenGba8();
  QTest::mouseClick(&Page(), Qt::MiddleButton, {}, {50, 50});
  EXPECT_EQ(SelColumn, 2);
  PressPage(Qt::LeftButton, 80, 10);
  EXPECT_EQ(SelColumn, 3);
  Page().Form_MouseDown(kLeftButton | kRightButton, 0, 100, 10);
  EXPECT_EQ(SelColumn, 4) << "both together are not the right one";
}

TEST_F(PagePointer, TheRightButtonShowsTheMenuAndSelectsNothing) {
  OpenGba8();
  ClickPage(30, 30);
  Frame().fbnTile.SetChecked(false);
  ASSERT_TRUE(The<TileControl>().Visible());
  const std::string menu = MenuDuring([] { PressPage(Qt::RightButton, 100, 100); });
  EXPECT_EQ(menu, "mnuBrowser");
  EXPECT_EQ(SelColumn, 1);
  EXPECT_FALSE(The<TileControl>().Visible()) << "the tools follow their buttons first";
}

TEST_F(PagePointer, ThereIsNoRangeTest) {
  // The strip under the scroll bar belongs to it; a page of the panel's own size has no other strip.
  OpenGba8();
  Page().Form_MouseDown(kLeftButton, 0, 200, 390);
  EXPECT_EQ(SelColumn, 8);
  EXPECT_EQ(SelLine, 16);
  EXPECT_EQ(AddressBox(), std::to_string((16 * 8 + 8) * 64));
}

TEST_F(PagePointer, TheAddressOfATileFarDownWraps) {
  OpenGba8();
  Panel().hsbRows.SetValue(32);
  Panel().hsbLines.SetValue(32);
  Panel().fbnBrowserZoomOut_Click();
  ASSERT_EQ(MainZoom, 2);
  ClickPage(31 * 16, 15 * 16);
  EXPECT_EQ(AddressBox(), std::to_string(511 * 64));
  ClickPage(0, 16 * 16);
  EXPECT_EQ(AddressBox(), "-32768") << "tile 512 lies below the page's address";
  EXPECT_EQ(SelectedAddress(), -32768);
}

TEST_F(PagePointer, LineBytesOf0EndInTheDivisionFault) {
  OpenGba8();
  ClickPage(1, 1);
  LineBytes = 0;
  EXPECT_EQ(FaultOf([] { ClickPage(30, 30); }), FaultKind::DivisionByZero);
}

// Status texts.

TEST_F(PagePointer, AMoveShowsAddressPositionAndDepth) {
  ChooseInList(Panel().cboMode, kListGameboy);
  OpenBytes("game.dat", RampBytes(8192));
  Page().vsbAddress.SetValue(2);
  const std::int32_t page = BrowserAddress;
  MovePointer(24, 48);
  EXPECT_EQ(AddressStatus(), "Address: " + std::to_string(page + 272));
  EXPECT_EQ(PositionStatus(), "X: 2   Y: 3");
  EXPECT_EQ(ColorStatus(), "2 bits per pixel");
  MovePointer(10, 20);
  EXPECT_EQ(PositionStatus(), "X: 1   Y: 1");
  EXPECT_EQ(AddressStatus(), "Address: " + std::to_string(page));
}

TEST_F(PagePointer, AMoveSelectsNothing) {
  OpenGba8();
  MovePointer(100, 100);
  EXPECT_EQ(SelColumn, 0);
  PressPage(Qt::LeftButton, 30, 30);
  MovePointer(100, 100);
  EXPECT_EQ(SelColumn, 1) << "also with a button down";
  EXPECT_EQ(PositionStatus(), "X: 5   Y: 5");
}

TEST_F(PagePointer, AMoveOutsideIsHeldToTheClientArea) {
  OpenGba8();
  PressPage(Qt::LeftButton, 30, 30);
  MovePointer(-50, -50);
  EXPECT_EQ(PositionStatus(), "X: 1   Y: 1");
  MovePointer(5000, 5000);
  EXPECT_EQ(PositionStatus(), "X: 9   Y: 17") << "209 and 384 pixels, in tiles of 24";
  EXPECT_EQ(AddressStatus(), "Address: " + std::to_string(64 * (8 + 8 * 16)));
}

TEST_F(PagePointer, OneBitIsNamedInTheSingular) {
  ChooseInList(Panel().cboMode, kListOneBit);
  OpenBytes("bits.dat", RampBytes(8192));
  MovePointer(5, 5);
  EXPECT_EQ(ColorStatus(), "1 bit per pixel");
}

TEST_F(PagePointer, TheStatusCountsIn8PixelCellsAndAClickInTiles) {
  OpenGba8();
  Panel().hsbBitmapWidth.SetValue(4);
  ChooseInList(Panel().cboMode, kListBitmap);
  ASSERT_EQ(TileWidth, 4);
  LineBytes = 8;
  MovePointer(3 * 4 * 3, 0);
  EXPECT_EQ(AddressStatus(), "Address: 1") << "12 pixels are one cell of 8";
  EXPECT_EQ(PositionStatus(), "X: 4   Y: 1");
  Page().Form_MouseDown(kLeftButton, 0, 3 * 4 * 3, 0);
  EXPECT_EQ(SelectedAddress(), 3);
}

// Double click.

TEST_F(PagePointer, ADoubleClickTakesTheTileIntoTheEditor) {
  const auto& file = OpenGba8();
  DoubleClickPage(24 * 2, 24);
  EXPECT_EQ(EditSlots[0].Address, 10 * 64);
  EXPECT_EQ(PixelsOf(0), TileAtAddress(file, 10 * 64));
  EXPECT_EQ(EditSelColumn, 1) << "the next one fills the next slot";
}

TEST_F(PagePointer, TheSameTileCanBeTakenTwice) {
  OpenGba8();
  WithAnswers({}, [] {
    DoubleClickPage(5, 5);
    DoubleClickPage(5, 5);
  });
  EXPECT_EQ(EditSlots[0].Address, 0);
  EXPECT_EQ(EditSlots[1].Address, 0);
}

// Dragging to the Editor.

TEST_F(PageDrag, AReleaseOverTheEditorDropsTheTileThere) {
  const auto& file = OpenGba8();
  ASSERT_TRUE(The<Editor>().Visible());
  PressPage(Qt::LeftButton, 24 * 3 + 1, 24 * 2 + 1);
  // The Editor's slots are 24 pixels wide too: column 2, line 1.
  const QPoint over = PagePointOver({2 * 24 + 12, 24 + 12});
  MovePointer(over.x(), over.y());
  QTest::mouseRelease(&Page(), Qt::LeftButton, {}, over);
  EXPECT_EQ(EditSlots[18].Address, 19 * 64);
  EXPECT_EQ(PixelsOf(18), TileAtAddress(file, 19 * 64));
  EXPECT_EQ(EditSelColumn, 0) << "the selected slot stays";
}

TEST_F(PageDrag, FramesAndTitleBarsAreNotTakenIntoAccount) {
  OpenGba8();
  PressPage(Qt::LeftButton, 1, 1);
  // 23 pixels below the Editor's outer edge count as its line 0, although its client area starts only there.
  QTest::mouseRelease(&Page(), Qt::LeftButton, {}, PagePointOver({5, 23}));
  EXPECT_EQ(EditSlots[0].Address, 0);
}

TEST_F(PageDrag, WithTheEditorHiddenAReleaseOutsideDoesNothing) {
  OpenGba8();
  The<Editor>().Hide();
  PressPage(Qt::LeftButton, 1, 1);
  QTest::mouseRelease(&Page(), Qt::LeftButton, {}, PagePointOver({12, 12}));
  EXPECT_EQ(EditSlots[0].Address, kNonCopied);
}

TEST_F(PageDrag, AReleaseInsideDoesNothing) {
  OpenGba8();
  ClickPage(208, 383);
  EXPECT_EQ(EditSlots[0].Address, kNonCopied);
  // The edges of the client area: one pixel further is outside.
  PressPage(Qt::LeftButton, 1, 1);
  The<Editor>().SetLeft(Page().Left() + 209 * 15);
  QTest::mouseRelease(&Page(), Qt::LeftButton, {}, {209, 10});
  EXPECT_EQ(EditSlots[0].Address, 0);
}

TEST_F(PageDrag, AnyButtonDrops) {
  OpenGba8();
  QTest::mousePress(&Page(), Qt::MiddleButton, {}, QPoint(30, 1));
  QTest::mouseRelease(&Page(), Qt::MiddleButton, {}, PagePointOver({12, 12}));
  EXPECT_EQ(EditSlots[0].Address, 64);
}

TEST_F(PageDrag, ADropFarFromTheEditorDoesNothing) {
  OpenGba8();
  PressPage(Qt::LeftButton, 1, 1);
  QTest::mouseRelease(&Page(), Qt::LeftButton, {}, {-3000, -3000});
  for (const EditSlot& slot : EditSlots) ASSERT_EQ(slot.Address, kNonCopied);
}

// Dropping a slot on the page.

TEST_F(PageDrag, ASlotDroppedOnThePageIsWrittenAtTheTile) {
  auto file = OpenGba8();
  EditSlots[0].Address = kUnaddressed;
  EditSlots[0].Pixels.fill(77);
  Page().DragToBrowser(24 * 2 + 3, 24 + 3);
  std::fill_n(file.begin() + 10 * 64, 64, std::uint8_t{77});
  EXPECT_EQ(FileBytes(FileName), file);
  EXPECT_EQ(ShownPage(), NaivePage(file)) << "the page shows the changed file";
}

TEST_F(PageDrag, TheSelectedSlotIsTheOneWritten) {
  auto file = OpenGba8();
  EditSelColumn = 3;
  EditSelLine = 2;
  EditSlots[35].Pixels.fill(200);
  Page().vsbAddress.SetValue(1);
  Page().DragToBrowser(0, 0);
  std::fill_n(file.begin() + 512, 64, std::uint8_t{200});
  EXPECT_EQ(FileBytes(FileName), file);
}

TEST_F(PageDrag, ASlotCanBeDraggedHereWithThePointer) {
  auto file = OpenGba8();
  EditSlots[18].Address = kUnaddressed;
  EditSlots[18].Pixels.fill(55);
  QTest::mousePress(&The<Editor>(), Qt::LeftButton, {}, QPoint(2 * 24 + 5, 24 + 5));
  ASSERT_EQ(EditSelColumn, 2);
  // Column 4, line 3 of the page.
  const QPoint over =
      QPoint(4 * 24 + 5, 3 * 24 + 5) + Page().ChildFrame()->pos() - The<Editor>().ChildFrame()->pos();
  QTest::mouseRelease(&The<Editor>(), Qt::LeftButton, {}, over);
  std::fill_n(file.begin() + (3 * 8 + 4) * 64, 64, std::uint8_t{55});
  EXPECT_EQ(FileBytes(FileName), file);
}

TEST_F(PageDrag, APointOutsideWritesNothing) {
  const auto& file = OpenGba8();
  EditSlots[0].Pixels.fill(77);
  Page().DragToBrowser(-1, 5);
  Page().DragToBrowser(5, -1);
  Page().DragToBrowser(209, 5);
  Page().DragToBrowser(5, 384);
  EXPECT_EQ(FileBytes(FileName), file);
}

TEST_F(PageDrag, TheWarningCanRefuseIt) {
  const auto& file = OpenGba8();
  The<Options>().fbnSaveWarning.SetChecked(true);
  EditSlots[0].Pixels.fill(77);
  const auto seen = WithAnswers({7}, [] { Page().DragToBrowser(5, 5); });
  EXPECT_EQ(seen[0].title, "Brolk Plus - Save?");
  EXPECT_EQ(FileBytes(FileName), file);
}

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
