// SPDX-License-Identifier: MIT
#include "browser/windows/browser_control.h"

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include "browser/browser_windows.h"
#include "browser/windows/page_view.h"
#include "filetools/windows/favorites_tool.h"
#include "filetools/windows/file_info.h"
#include "forms/look.h"
#include "palette/windows/color_set.h"
#include "palette/windows/palette_control.h"
#include "runtime/files.h"
#include "tile/modes.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

struct BrowserPanel : BrowserWindows {};

TEST_F(BrowserPanel, LoadsItsListsAndStartsWithTheFirstMode) {
  const char* const modes[] = {"Snes 4bpp",
                               "Snes 8bpp",
                               "Snes 3bpp",
                               "Nes",
                               "Gameboy",
                               "GBA 4bpp",
                               "GBA 8bpp",
                               "Virtual Boy",
                               "Sega Mega Drive",
                               "PC Engine 8x8 char",
                               "PC Engine 16x16 sprite",
                               "GG, MS, WSC",
                               "Neo Geo Pocket",
                               "1 bit per pixel",
                               "Bitmap Mode"};
  const auto& list = Panel().cboMode;
  ASSERT_EQ(list.count(), 15);
  for (int position = 0; position < 15; ++position)
    EXPECT_EQ(list.itemText(position).toStdString(), modes[position]);
  EXPECT_EQ(list.ListIndex(), 0);
  EXPECT_EQ(GfxMode, 3) << "InitDefaults has written 0; the load event has run ChangeMode";
  const auto& depths = Panel().cboBitmapMode;
  ASSERT_EQ(depths.count(), 4);
  EXPECT_EQ(depths.itemText(0), QStringLiteral("1 bpp"));
  EXPECT_EQ(depths.itemText(3), QStringLiteral("8 bpp"));
  EXPECT_EQ(depths.ListIndex(), 0);
}

TEST_F(BrowserPanel, LeavesTheShiftLabelAt0AfterTheLoad) {
  EXPECT_EQ(Panel().lblDiv.Text(), QStringLiteral("0")) << "the 8 of the design has been changed";
  EXPECT_EQ(Panel().hsbDiv.Max(), 32);
  EXPECT_EQ(Panel().hsbDiv.pageStep(), 2);
}

// Tools that need a file.

TEST_F(BrowserPanel, ToolsWithoutAFileSayThatTheyAreNotAvailable) {
  for (FlatButton* button : {&Panel().fbnFileInfo, &Panel().fbnFavorite}) {
    const auto seen = WithAnswers({1}, [&] { ClickControl(*button); });
    EXPECT_EQ(seen[0].text, "This tool is not available when no file is opened.");
    EXPECT_EQ(seen[0].title, "Brolk Plus - Tool not available");
    EXPECT_EQ(seen[0].icon, "msg-info");
  }
  EXPECT_FALSE(The<FileInfo>().Visible());
  EXPECT_FALSE(The<FavoritesTool>().Visible());
}

TEST_F(BrowserPanel, ToolsShowWithAFile) {
  const std::string path = OpenBytes("game.gb", RampBytes(4096));
  ClickControl(Panel().fbnFileInfo);
  EXPECT_TRUE(The<FileInfo>().Visible());
  EXPECT_EQ(Form::Active(), &The<FileInfo>());
  EXPECT_NE(The<FileInfo>().lblName.Text().toStdString().find("game.gb"), std::string::npos)
      << "the report is made at once";
  ClickControl(Panel().fbnFavorite);
  EXPECT_TRUE(The<FavoritesTool>().Visible());
  EXPECT_EQ(Form::Active(), &The<FavoritesTool>());
}

TEST_F(BrowserPanel, TheColourSetToolShowsWithoutAFile) {
  ClickControl(Panel().fbnColorSet);
  EXPECT_TRUE(The<ColorSet>().Visible());
  EXPECT_EQ(Form::Active(), &The<ColorSet>());
}

TEST_F(BrowserPanel, TheRecentArrowDropsTheMenuUnderItself) {
  QPoint corner;
  QString name;
  QTimer::singleShot(0, &Panel(), [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    name = menu->objectName();
    corner = menu->pos();
    menu->close();
  });
  ClickControl(Panel().fbnOpenRecent);
  EXPECT_EQ(name, QStringLiteral("mnuRecentMain"));
  EXPECT_EQ(corner, Panel().mapToGlobal(QPoint(600 / 15, (240 + 21) / 15)));
}

// Zoom and grid.

TEST_F(BrowserPanel, ZoomRunsFrom2To13) {
  OpenGba8();
  for (int press = 0; press < 15; ++press) ClickControl(Panel().fbnBrowserZoomIn);
  EXPECT_EQ(MainZoom, 13);
  for (int press = 0; press < 15; ++press) ClickControl(Panel().fbnBrowserZoomOut);
  EXPECT_EQ(MainZoom, 2);
}

TEST_F(BrowserPanel, ZoomAtItsLimitRedrawsAllTheSame) {
  OpenGba8();
  MainZoom = 13;
  auto calls = FileReadCalls();
  ClickControl(Panel().fbnBrowserZoomIn);
  EXPECT_EQ(MainZoom, 13);
  EXPECT_GT(FileReadCalls(), calls);
  MainZoom = 2;
  calls = FileReadCalls();
  ClickControl(Panel().fbnBrowserZoomOut);
  EXPECT_EQ(MainZoom, 2);
  EXPECT_GT(FileReadCalls(), calls);
}

TEST_F(BrowserPanel, TheGridButtonTurnsTheGridOffAndOn) {
  const auto& file = OpenGba8();
  ClickControl(Panel().fbnGrid);
  EXPECT_FALSE(ShowGrid);
  EXPECT_EQ(ShownPage(), NaivePage(file));
  ClickControl(Panel().fbnGrid);
  EXPECT_TRUE(ShowGrid);
  EXPECT_EQ(ShownPage(), NaivePage(file));
}

TEST_F(BrowserPanel, AssigningTheGridButtonChangesNothingElse) {
  OpenGba8();
  Panel().fbnGrid.SetChecked(false);
  EXPECT_TRUE(ShowGrid);
}

// Go to address.

TEST_F(BrowserPanel, GoesToATypedAddress) {
  const auto& file = OpenGba8();
  ClickPage(100, 100);
  TypeAddress("5000");
  EXPECT_EQ(BrowserAddress, 5000 / 512 * 512);
  EXPECT_EQ(AddressBox(), "4608");
  EXPECT_EQ(SelColumn, 0);
  EXPECT_EQ(SelLine, 0);
  EXPECT_EQ(Page().vsbAddress.Value(), 9);
  EXPECT_EQ(Line, 9);
  EXPECT_EQ(ShownPage(), NaivePage(EntriesFrom(file, 4608)));
}

TEST_F(BrowserPanel, AnAddressBeyondTheEndLandsOnTheLastFullPage) {
  OpenGba8();
  TypeAddress("99999999");
  EXPECT_EQ(BrowserAddress, 65536 - 8192);
  TypeAddress("999999999999999999");
  EXPECT_EQ(BrowserAddress, 65536 - 8192);
}

TEST_F(BrowserPanel, ANegativeAddressGoesToTheShift) {
  OpenGba8();
  Panel().hsbDiv.SetValue(5);
  TypeAddress("-300");
  EXPECT_EQ(BrowserAddress, 5);
  EXPECT_EQ(AddressBox(), "5");
}

TEST_F(BrowserPanel, TheShiftIsAddedToTheLine) {
  OpenGba8();
  Panel().hsbDiv.SetValue(5);
  TypeAddress("2000");
  EXPECT_EQ(BrowserAddress % 512, 5);
  EXPECT_EQ(BrowserAddress, 1536 + 5);
}

TEST_F(BrowserPanel, ReadsHexadecimalAndOctalAndTheNumberAtTheHead) {
  ChooseInList(Panel().cboMode, kListOneBit);
  OpenBytes("small.dat", RampBytes(8192));
  Panel().hsbRows.SetValue(2);
  Panel().hsbLines.SetValue(6);
  const std::pair<const char*, const char*> expected[] = {
      {"&H100", "256"}, {"&o40", "32"}, {"  64 bytes", "64"}, {"1e3", "0"},
      {"abc", "0"},     {"", "0"},      {"+48", "48"}};
  for (const auto& [typed, shown] : expected) {
    TypeAddress(typed);
    EXPECT_EQ(AddressBox(), shown) << typed;
  }
}

TEST_F(BrowserPanel, SettingTheBoxDoesNotNavigate) {
  OpenGba8();
  Panel().txtAddress.SetText(QStringLiteral("5000"));
  EXPECT_EQ(BrowserAddress, 0);
}

TEST_F(BrowserPanel, GoingToAnAddressInAnEmptyFileIsTheDivisionFault) {
  EXPECT_EQ(FaultOf([] { TypeAddress("0"); }), FaultKind::DivisionByZero);
}

TEST_F(BrowserPanel, GoingToAnAddressHasNoGuardOnAnOpenFile) {
  OpenGba8();
  WithAnswers({6}, [] { ClickControl(Panel().fbnCloseFile); });
  TypeAddress("5000");
  EXPECT_EQ(BrowserAddress, 4608) << "the length of the closed file still counts";
  EXPECT_FALSE(Page().Visible());
}

TEST_F(BrowserPanel, GoingNearTheEndOfALongFileReachesBeyondTheScrollRange) {
  // 40000 lines of 16 bytes in 32767 positions.
  ChooseInList(Panel().cboMode, kListOneBit);
  Panel().hsbRows.SetValue(2);
  OpenBytes("long.dat", RampBytes(640000));
  ChooseInList(Panel().cboMode, kListOneBit);
  ASSERT_EQ(ScrollScale, 32767);
  ASSERT_EQ(Page().vsbAddress.Max(), 32767 - 16);
  TypeAddress("640000");
  EXPECT_EQ(Page().vsbAddress.Value(), 32754) << "39984 lines in steps of 40000 / 32767";
  EXPECT_GT(Page().vsbAddress.Value(), Page().vsbAddress.Max());
  EXPECT_EQ(BrowserAddress, 640000 / 32767 * 32754 / 16 * 16);
  Panel().hsbLines.SetValue(17);
  EXPECT_EQ(Page().vsbAddress.Value(), 32767 - 17) << "a lowered maximum pulls the value down";
}

// Address shift.

TEST_F(BrowserPanel, TheShiftMovesThePageByBytes) {
  const auto& file = OpenGba8();
  EXPECT_EQ(Panel().hsbDiv.Max(), 64);
  ClickArrowUp(Panel().hsbDiv);
  EXPECT_EQ(AddressShift, 1);
  EXPECT_EQ(BrowserAddress, 1);
  EXPECT_EQ(Panel().lblDiv.Text(), QStringLiteral("1"));
  EXPECT_EQ(ShownPage(), NaivePage(EntriesFrom(file, 1)));
}

TEST_F(BrowserPanel, DraggingTheShiftChangesOnlyItsLabelUntilTheRelease) {
  OpenGba8();
  auto& bar = Panel().hsbDiv;
  PressThumb(bar);
  DragThumb(bar, 30);
  const int dragged = bar.Value();
  EXPECT_GT(dragged, 0);
  EXPECT_EQ(Panel().lblDiv.Text(), QString::number(dragged));
  EXPECT_EQ(AddressShift, 0);
  EXPECT_EQ(BrowserAddress, 0);
  ReleaseThumb(bar, 30);
  EXPECT_EQ(AddressShift, dragged);
  EXPECT_EQ(BrowserAddress, dragged);
}

// Page size.

TEST_F(BrowserPanel, RowsChangeTheWidthOfThePage) {
  const auto& file = OpenGba8();
  ClickArrowUp(Panel().hsbRows);
  EXPECT_EQ(MainRows, 9);
  EXPECT_EQ(Panel().lblRows.Text(), QStringLiteral("9"));
  EXPECT_EQ(LineBytes, 9 * 64);
  EXPECT_EQ(Page().ScaleWidth(), 9 * 24 + 17);
  EXPECT_EQ(ShownPage(), NaivePage(file));
  EXPECT_EQ(ScrollScale, 128) << "the range was set with the former line bytes";
}

TEST_F(BrowserPanel, LinesChangeTheHeightOfThePage) {
  const auto& file = OpenGba8();
  ClickArrowUp(Panel().hsbLines);
  EXPECT_EQ(MainLines, 17);
  EXPECT_EQ(Panel().lblLines.Text(), QStringLiteral("17"));
  EXPECT_EQ(Page().ScaleHeight(), 17 * 24);
  EXPECT_EQ(Page().vsbAddress.Max(), 128 - 17);
  EXPECT_EQ(ShownPage(), NaivePage(file));
}

TEST_F(BrowserPanel, ThePageSizeSetsTheLineIndex) {
  OpenGba8();
  Page().vsbAddress.SetValue(20);
  Panel().hsbRows.SetValue(16);
  EXPECT_EQ(LineBytes, 1024);
  EXPECT_EQ(BrowserAddress, 20 * 512) << "the reload does not move the page";
  EXPECT_EQ(Line, 10);
}

TEST_F(BrowserPanel, DraggingAPageSizeChangesOnlyItsLabelUntilTheRelease) {
  OpenGba8();
  auto& bar = Panel().hsbRows;
  PressThumb(bar);
  DragThumb(bar, 25);
  const int dragged = bar.Value();
  EXPECT_GT(dragged, 8);
  EXPECT_EQ(Panel().lblRows.Text(), QString::number(dragged));
  EXPECT_EQ(MainRows, 8);
  ReleaseThumb(bar, 25);
  EXPECT_EQ(MainRows, dragged);
  auto& lines = Panel().hsbLines;
  PressThumb(lines);
  DragThumb(lines, -20);
  EXPECT_EQ(Panel().lblLines.Text(), QString::number(lines.Value()));
  EXPECT_EQ(MainLines, 16);
  ReleaseThumb(lines, -20);
  EXPECT_EQ(MainLines, lines.Value());
}

TEST_F(BrowserPanel, MoreLinesPullTheScrollBarBack) {
  OpenGba8();
  Page().vsbAddress.SetValue(112);
  Panel().hsbLines.SetValue(32);
  EXPECT_EQ(Page().vsbAddress.Max(), 96);
  EXPECT_EQ(Page().vsbAddress.Value(), 96);
  EXPECT_EQ(BrowserAddress, 96 * 512);
}

// Modes.

TEST_F(BrowserPanel, EveryModeShowsItsPaletteStepAndItsShiftRange) {
  OpenBytes("any.dat", RampBytes(65536));
  for (int position = 0; position < 14; ++position) {
    ChooseInList(Panel().cboMode, position);
    EXPECT_EQ(GfxMode, kModeMap[static_cast<std::size_t>(position)]);
    const auto& mode = Modes[GfxMode];
    const char* const step[] = {"", "2", "4", "8", "16", "16", "16", "16", "16"};
    EXPECT_EQ(The<PaletteControl>().fbnPalShiftNum.Caption().toStdString(), step[mode.BitsPerPixel])
        << mode.Name;
    EXPECT_EQ(Panel().hsbDiv.Max(), mode.BytesPerTile);
    EXPECT_EQ(TileWidth, 8);
    EXPECT_EQ(TileHeight, 8);
  }
}

TEST_F(BrowserPanel, AModeResetsTheShift) {
  OpenGba8();
  Panel().hsbDiv.SetValue(17);
  ChooseInList(Panel().cboMode, kListSnes8);
  EXPECT_EQ(Panel().hsbDiv.Value(), 0);
  EXPECT_EQ(AddressShift, 0);
  EXPECT_EQ(Panel().lblDiv.Text(), QStringLiteral("0"));
  EXPECT_EQ(BrowserAddress, 0);
}

TEST_F(BrowserPanel, AModeKeepsTheLineBytesUntilThePageIsActivated) {
  OpenGba8();
  ASSERT_EQ(LineBytes, 512);
  ChooseInList(Panel().cboMode, kListGameboy);
  EXPECT_EQ(LineBytes, 512);
  EXPECT_EQ(ScrollScale, 128) << "the scroll range still uses the former value";
  ClickPage(1, 1);
  EXPECT_EQ(LineBytes, 128);
}

TEST_F(BrowserPanel, ChoosingTheModeThatStandsRunsItAgain) {
  OpenGba8();
  Panel().hsbDiv.SetValue(9);
  ChooseInList(Panel().cboMode, kListGba8);
  EXPECT_EQ(AddressShift, 0);
}

TEST_F(BrowserPanel, AModeCanBeChosenWithTheKeyboard) {
  OpenGba8();
  auto& list = Panel().cboMode;
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Up);
  EXPECT_EQ(list.ListIndex(), kListGba4);
  EXPECT_EQ(GfxMode, kGba4);
}

}  // namespace
}  // namespace brolk::test
