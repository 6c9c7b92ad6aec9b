// SPDX-License-Identifier: MIT
#include "browser/browser_windows.h"
#include "browser/windows/page_view.h"
#include "palette/palette_model.h"
#include "tile/modes.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

enum DepthPosition { kOneBpp = 0, kTwoBpp = 1, kFourBpp = 2, kEightBpp = 3 };

struct BitmapModePanel : BrowserWindows {
  // Bitmap Mode with line bytes that divide: the former mode's stay until the page is activated.
  static const std::vector<std::uint8_t>& EnterBitmapMode(int depth) {
    const auto& file = OpenGba8();
    ChooseInList(Panel().cboBitmapMode, depth);
    ChooseInList(Panel().cboMode, kListBitmap);
    return file;
  }
};

TEST_F(BitmapModePanel, OtherModesKeepItsRecordForTiles8By8) {
  OpenGba8();
  const int bytes[] = {8, 16, 32, 64};
  for (int depth = 0; depth < 4; ++depth) {
    ChooseInList(Panel().cboBitmapMode, depth);
    ChooseInList(Panel().cboMode, kListNes);
    EXPECT_EQ(Modes[kBitmapMode].BitsPerPixel, 1 << depth);
    EXPECT_EQ(Modes[kBitmapMode].BytesPerTile, bytes[depth]);
  }
}

TEST_F(BitmapModePanel, EnteringGivesASquareTileWhateverTheHeightBarSays) {
  OpenGba8();
  Panel().hsbBitmapWidth.SetValue(16);
  EXPECT_EQ(Panel().hsbBitmapHeight.Value(), 8);
  ChooseInList(Panel().cboMode, kListBitmap);
  EXPECT_EQ(TileWidth, 16);
  EXPECT_EQ(TileHeight, 16);
  EXPECT_EQ(Panel().hsbRows.Max(), 16);
  EXPECT_EQ(Panel().hsbLines.Max(), 16);
  Panel().hsbBitmapHeight.SetValue(9);
  EXPECT_EQ(TileHeight, 9);
  EXPECT_EQ(TileWidth, 16);
}

TEST_F(BitmapModePanel, EnteringSetsTheRecordByItsOwnFormula) {
  EnterBitmapMode(kOneBpp);
  EXPECT_EQ(Modes[kBitmapMode].BitsPerPixel, 1);
  EXPECT_EQ(Modes[kBitmapMode].BytesPerTile, 1);
  EXPECT_EQ(Panel().hsbDiv.Max(), 1);
  Panel().cboBitmapMode.SetListIndex(kFourBpp);
  Panel().cboMode.SetListIndex(kListBitmap);
  EXPECT_EQ(Modes[kBitmapMode].BitsPerPixel, 4);
  EXPECT_EQ(Modes[kBitmapMode].BytesPerTile, 0);
  EXPECT_EQ(Panel().hsbDiv.Max(), 0);
}

TEST_F(BitmapModePanel, LineBytesOf0EndInTheDivisionFaultAtTheNextActivation) {
  EnterBitmapMode(kEightBpp);
  EXPECT_EQ(LineBytes, 512) << "the former mode's";
  EXPECT_EQ(FaultOf([] { ClickPage(1, 1); }), FaultKind::DivisionByZero);
  EXPECT_EQ(LineBytes, 0);
}

TEST_F(BitmapModePanel, APageSizeWithTileBytesOf0EndsInTheDivisionFault) {
  EnterBitmapMode(kEightBpp);
  EXPECT_EQ(FaultOf([] { Panel().hsbRows.SetValue(9); }), FaultKind::DivisionByZero);
}

TEST_F(BitmapModePanel, AWideTilePullsThePageSizeDownAndReloads) {
  OpenGba8();
  Panel().hsbBitmapWidth.SetValue(32);
  ChooseInList(Panel().cboMode, kListBitmap);
  EXPECT_EQ(Panel().hsbRows.Max(), 8);
  EXPECT_EQ(Panel().hsbLines.Max(), 8);
  EXPECT_EQ(Panel().hsbLines.Value(), 8);
  EXPECT_EQ(MainLines, 8);
  EXPECT_EQ(Panel().lblLines.Text(), QStringLiteral("8"));
  EXPECT_EQ(LineBytes, 8) << "the change of the page size has set them, 1 byte a tile";
}

TEST_F(BitmapModePanel, PullingThePageSizeDownCanEndInTheSubscriptFault) {
  OpenGba8();
  Panel().hsbRows.SetValue(16);
  Panel().hsbBitmapWidth.SetValue(32);
  EXPECT_EQ(FaultOf([] { ChooseInList(Panel().cboMode, kListBitmap); }), FaultKind::SubscriptOutOfRange)
      << "8 rows of 32 by 16 lines of 32 are painted before the lines come down";
}

TEST_F(BitmapModePanel, LeavingGivesBackTheRangeOf32) {
  OpenGba8();
  Panel().hsbBitmapWidth.SetValue(4);
  ChooseInList(Panel().cboMode, kListBitmap);
  EXPECT_EQ(Panel().hsbRows.Max(), 64);
  Panel().hsbRows.SetValue(40);
  EXPECT_EQ(MainRows, 40);
  ChooseInList(Panel().cboMode, kListGba8);
  EXPECT_EQ(Panel().hsbRows.Max(), 32);
  EXPECT_EQ(Panel().hsbLines.Max(), 32);
  EXPECT_EQ(Panel().hsbRows.Value(), 32) << "the lowered maximum pulls the value down";
  EXPECT_EQ(MainRows, 32);
  EXPECT_EQ(TileWidth, 8);
}

TEST_F(BitmapModePanel, WidthIsTheBarDividedByTheSquareOfThePixelsInAByte) {
  EnterBitmapMode(kEightBpp);
  Panel().hsbBitmapWidth.SetValue(12);
  EXPECT_EQ(TileWidth, 12);
  EXPECT_EQ(Panel().lblBitmapWidth.Text(), QStringLiteral("12"));
  ChooseInList(Panel().cboBitmapMode, kFourBpp);
  EXPECT_EQ(TileWidth, 12) << "the choice of a depth moves nothing";
  Panel().hsbBitmapWidth.SetValue(30);
  EXPECT_EQ(TileWidth, 7);
  EXPECT_EQ(Panel().lblBitmapWidth.Text(), QStringLiteral("7")) << "the tile's width, not the bar's value";
  ChooseInList(Panel().cboBitmapMode, kTwoBpp);
  Panel().hsbBitmapWidth.SetValue(32);
  EXPECT_EQ(TileWidth, 2);
}

TEST_F(BitmapModePanel, AnyWidthAtOneBitEndsInTheSubscriptFault) {
  EnterBitmapMode(kOneBpp);
  EXPECT_EQ(FaultOf([] { ClickArrowUp(Panel().hsbBitmapWidth); }), FaultKind::SubscriptOutOfRange);
  EXPECT_EQ(TileWidth, 0);
}

TEST_F(BitmapModePanel, ABarResizesThePageAndKeepsTheRecord) {
  EnterBitmapMode(kEightBpp);
  const auto bytes = Modes[kBitmapMode].BytesPerTile;
  ClickArrowUp(Panel().hsbBitmapHeight);
  EXPECT_EQ(TileHeight, 9);
  EXPECT_EQ(Panel().lblBitmapHeight.Text(), QStringLiteral("9"));
  EXPECT_EQ(Page().ScaleHeight(), 9 * 16 * 3);
  EXPECT_EQ(Modes[kBitmapMode].BytesPerTile, bytes);
  EXPECT_EQ(Panel().hsbDiv.Max(), bytes);
  EXPECT_EQ(Panel().lblDiv.Text(), QStringLiteral("0"));
}

TEST_F(BitmapModePanel, ChoosingADepthChangesNoPictureUntilABarMoves) {
  const auto& file = EnterBitmapMode(kOneBpp);
  const Surface before = ShownPage();
  ChooseInList(Panel().cboBitmapMode, kEightBpp);
  EXPECT_EQ(ShownPage(), before);
  EXPECT_EQ(Modes[kBitmapMode].BitsPerPixel, 1);
  Panel().hsbBitmapHeight.SetValue(7);
  EXPECT_EQ(BrowserSurface.GetPixel(3, 0), Palette[file[3]]) << "one byte a pixel now";
  EXPECT_EQ(BrowserSurface.GetPixel(6, 0), Palette[file[6]]);
  EXPECT_EQ(Modes[kBitmapMode].BitsPerPixel, 1) << "the record waits for the next change of mode";
}

TEST_F(BitmapModePanel, ANewDepthActsAtAnyRedraw) {
  const auto& file = EnterBitmapMode(kOneBpp);
  ChooseInList(Panel().cboBitmapMode, kEightBpp);
  ReloadPage();
  EXPECT_EQ(BrowserSurface.GetPixel(5, 0), Palette[file[5]]);
}

TEST_F(BitmapModePanel, DraggingABarShowsTheSizeFromBeforeTheDrag) {
  EnterBitmapMode(kEightBpp);
  auto& bar = Panel().hsbBitmapHeight;
  PressThumb(bar);
  DragThumb(bar, 30);
  EXPECT_GT(bar.Value(), 8);
  EXPECT_EQ(Panel().lblBitmapHeight.Text(), QStringLiteral("8"));
  EXPECT_EQ(TileHeight, 8);
  ReleaseThumb(bar, 30);
  EXPECT_EQ(TileHeight, bar.Value());
  EXPECT_EQ(Panel().lblBitmapHeight.Text(), QString::number(bar.Value()));
}

TEST_F(BitmapModePanel, TheWidthBarShowsTheSizeFromBeforeTheDragToo) {
  EnterBitmapMode(kEightBpp);
  auto& bar = Panel().hsbBitmapWidth;
  PressThumb(bar);
  DragThumb(bar, 10);
  EXPECT_EQ(Panel().lblBitmapWidth.Text(), QStringLiteral("8"));
  EXPECT_EQ(TileWidth, 8);
  ReleaseThumb(bar, 10);
  EXPECT_EQ(TileWidth, bar.Value());
}

TEST_F(BitmapModePanel, InOtherModesTheBarsChangeOnlyThemselves) {
  const auto& file = OpenGba8();
  Panel().hsbBitmapWidth.SetValue(20);
  ClickArrowUp(Panel().hsbBitmapHeight);
  PressThumb(Panel().hsbBitmapHeight);
  DragThumb(Panel().hsbBitmapHeight, 20);
  ReleaseThumb(Panel().hsbBitmapHeight, 20);
  EXPECT_EQ(TileWidth, 8);
  EXPECT_EQ(TileHeight, 8);
  EXPECT_EQ(Panel().lblBitmapWidth.Text(), QStringLiteral("8"));
  EXPECT_EQ(Panel().lblBitmapHeight.Text(), QStringLiteral("8"));
  EXPECT_EQ(ShownPage(), NaivePage(file));
}

TEST_F(BitmapModePanel, AShortTileShowsTheWholeFileAsOnePicture) {
  const auto& file = EnterBitmapMode(kEightBpp);
  EXPECT_EQ(ShownPage(), NaivePage(file)) << "8 by 8 tiles at 8 bits are those of GBA 8bpp";
}

}  // namespace
}  // namespace brolk::test
