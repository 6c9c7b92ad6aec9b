// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include "browser/browser_windows.h"
#include "editor/slots.h"
#include "editor/windows/tile_control.h"
#include "forms/keys.h"
#include "tile/modes.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

struct PagePointer : BrowserWindows {};

std::string AddressStatus() {
  return The<MainForm>().lblAddress.Text().toStdString();
}
std::string PositionStatus() {
  return The<MainForm>().lblPosition.Text().toStdString();
}
std::string ColorStatus() {
  return The<MainForm>().lblColor.Text().toStdString();
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

}  // namespace
}  // namespace brolk::test
