// SPDX-License-Identifier: MIT
#include "browser/windows/page_view.h"

#include <QRegularExpression>
#include <QTest>

#include "browser/browser_windows.h"
#include "editor/slots.h"
#include "palette/palette_model.h"
#include "runtime/files.h"
#include "shell/windows/options.h"
#include "tile/modes.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

struct PageView : BrowserWindows {};

void ExpectClientFitsPage() {
  auto& page = The<Browser>();
  EXPECT_EQ(page.ScaleWidth(), MainZoom * TileWidth * MainRows + 17);
  EXPECT_EQ(page.ScaleHeight(), MainZoom * TileHeight * MainLines);
  EXPECT_EQ(page.vsbAddress.geometry(), QRect(page.ScaleWidth() - 17, 0, 17, page.ScaleHeight()));
  EXPECT_EQ(page.Canvas().Width(), page.ScaleWidth());
  EXPECT_EQ(page.Canvas().Height(), page.ScaleHeight());
}

TEST_F(PageView, SurfacesAreThereAtStartAndGoAtTheEnd) {
  EXPECT_EQ(BrowserSurface.Width(), 256);
  EXPECT_EQ(BrowserSurface.Height(), 256);
  EXPECT_EQ(EditSlots[255].SlotSurface.Width(), 8);
  ReleaseSurfaces();
  EXPECT_EQ(BrowserSurface.Width(), 0);
  EXPECT_EQ(EditSlots[255].SlotSurface.Width(), 0);
  ReleaseSurfaces();
  CreateSurfaces();
  EXPECT_EQ(BrowserSurface.GetPixel(255, 255), 0) << "a new surface is black";
}

TEST_F(PageView, TheWindowHasOneControlAtItsRightEdge) {
  EXPECT_EQ(Page().vsbAddress.Min(), 0);
  EXPECT_EQ(Page().vsbAddress.pageStep(), 128);
  EXPECT_EQ(Page().findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
}

TEST_F(PageView, TheWindowIsSizedBeforeAFileIsOpen) {
  ExpectClientFitsPage();
  EXPECT_FALSE(Page().Visible());
}

TEST_F(PageView, TheClientAreaFitsThePageAndTheBarAtEveryZoom) {
  OpenGba8();
  ExpectClientFitsPage();
  EXPECT_EQ(Page().Width(), 215 * 15) << "192 + 350 twips, to the nearest pixel";
  EXPECT_EQ(Page().Height(), (384 + 26) * 15);
  for (MainZoom = 2; MainZoom <= 13; ++MainZoom) {
    FormatBrowser();
    ExpectClientFitsPage();
  }
}

TEST_F(PageView, TheClientAreaFollowsThePageSize) {
  OpenGba8();
  for (const auto& [rows, lines] : {std::pair<int, int>{2, 6}, {32, 6}, {2, 32}, {32, 32}, {17, 9}}) {
    Panel().hsbRows.SetValue(rows);
    Panel().hsbLines.SetValue(lines);
    ExpectClientFitsPage();
  }
}

TEST_F(PageView, ShowsThePageGridAndFramePixelByPixel) {
  const auto& file = OpenGba8();
  EXPECT_EQ(ShownPage(), NaivePage(file));
}

TEST_F(PageView, TheScreenShowsWhatWasDrawn) {
  OpenGba8();
  const QImage screen = Page().grab().toImage();
  const Surface page = ShownPage();
  for (int y = 0; y < page.Height(); y += 5) {
    for (int x = 0; x < page.Width(); x += 3) {
      const auto color = static_cast<unsigned int>(page.GetPixel(x, y));
      ASSERT_EQ(screen.pixelColor(x, y),
                QColor(static_cast<int>(color & 255), static_cast<int>(color >> 8 & 255),
                       static_cast<int>(color >> 16)));
    }
  }
}

TEST_F(PageView, ShowsThePageAtEveryZoomWithAndWithoutGrid) {
  const auto& file = OpenGba8();
  while (MainZoom > 2) ClickControl(Panel().fbnBrowserZoomOut);
  for (int zoom = 2; zoom <= 13; ++zoom) {
    ASSERT_EQ(MainZoom, zoom);
    EXPECT_EQ(ShownPage(), NaivePage(file)) << "zoom " << zoom;
    ClickControl(Panel().fbnGrid);
    EXPECT_EQ(ShownPage(), NaivePage(file)) << "zoom " << zoom << ", grid " << ShowGrid;
    ClickControl(Panel().fbnBrowserZoomIn);
  }
}

TEST_F(PageView, TheGridHasItsColourAndTheFrameStaysWhite) {
  const auto& file = OpenGba8();
  GridColor = 0x1122EE;
  PaintPage();
  EXPECT_EQ(Page().Canvas().GetPixel(48, 5), 0x1122EE);
  EXPECT_EQ(Page().Canvas().GetPixel(24, 5), 0xFFFFFF) << "the frame of the first tile lies over the grid";
  EXPECT_EQ(ShownPage(), NaivePage(file));
}

TEST_F(PageView, GridLinesRunPastThePageUnderTheBarAndNoneClosesThePage) {
  OpenGba8();
  const Surface& canvas = Page().Canvas();
  EXPECT_EQ(canvas.GetPixel(200, 24), 0x000000) << "a line of the grid, right of the page";
  EXPECT_EQ(canvas.GetPixel(200, 25), 0xACACAC) << "the back colour between the lines";
  EXPECT_EQ(canvas.GetPixel(192, 100), 0xACACAC) << "no line closes the page at the right";
}

TEST_F(PageView, TheFrameOfATileReachesOnePixelBeyondIt) {
  OpenGba8();
  ClickPage(24 * 2 + 1, 24 * 3 + 1);
  const Surface& canvas = Page().Canvas();
  for (int at = 0; at <= 24; ++at) {
    EXPECT_EQ(canvas.GetPixel(48 + at, 72), 0xFFFFFF);
    EXPECT_EQ(canvas.GetPixel(48 + at, 96), 0xFFFFFF);
    EXPECT_EQ(canvas.GetPixel(48, 72 + at), 0xFFFFFF);
    EXPECT_EQ(canvas.GetPixel(72, 72 + at), 0xFFFFFF);
  }
  EXPECT_NE(canvas.GetPixel(49, 73), 0xFFFFFF) << "only the outline is seen";
}

TEST_F(PageView, ASelectionRedrawsWithoutReadingTheFile) {
  const auto& file = OpenGba8();
  const auto calls = FileReadCalls();
  ClickPage(100, 200);
  PressKeypad(6);
  PressKeypad(2);
  EXPECT_EQ(FileReadCalls(), calls);
  EXPECT_EQ(ShownPage(), NaivePage(file));
}

TEST_F(PageView, FollowsTheScrollBar) {
  const auto& file = OpenGba8();
  Page().vsbAddress.SetValue(3);
  EXPECT_EQ(BrowserAddress, 3 * 512);
  EXPECT_EQ(ShownPage(), NaivePage(EntriesFrom(file, 3 * 512)));
}

TEST_F(PageView, ScrollsByTheArrowAndByTheTroughAndByDragging) {
  const auto& file = OpenGba8();
  ClickArrowUp(Page().vsbAddress);
  EXPECT_EQ(BrowserAddress, 512);
  PressThumb(Page().vsbAddress);
  DragThumb(Page().vsbAddress, 60);
  const int dragged = Page().vsbAddress.Value();
  EXPECT_GT(dragged, 1);
  EXPECT_EQ(BrowserAddress, dragged * 512) << "the page follows the thumb while it is dragged";
  EXPECT_EQ(ShownPage(), NaivePage(EntriesFrom(file, dragged * 512)));
  ReleaseThumb(Page().vsbAddress, 60);
  EXPECT_EQ(BrowserAddress, dragged * 512);
}

TEST_F(PageView, TheWheelScrollsByOneLineOverTheBarAndOverThePage) {
  OpenGba8();
  TurnWheel(Page().vsbAddress, -3);
  EXPECT_EQ(BrowserAddress, 3 * 512);
  TurnWheel(Page().vsbAddress, 1);
  EXPECT_EQ(BrowserAddress, 2 * 512);
  TurnWheel(Page(), -1);
  EXPECT_EQ(BrowserAddress, 3 * 512);
}

TEST_F(PageView, TheSelectionStaysInPlaceWhileThePageScrolls) {
  OpenGba8();
  ClickPage(24 * 2, 24);
  EXPECT_EQ(AddressBox(), std::to_string((8 + 2) * 64));
  Page().vsbAddress.SetValue(5);
  EXPECT_EQ(SelColumn, 2);
  EXPECT_EQ(SelLine, 1);
  EXPECT_EQ(AddressBox(), std::to_string(5 * 512 + (8 + 2) * 64))
      << "the last step shows the selected address";
  EXPECT_EQ(Line, 6);
}

TEST_F(PageView, AReloadShowsThePageAddressAndDoesNotMove) {
  OpenGba8();
  ClickPage(24 * 2, 24);
  Page().vsbAddress.SetValue(5);
  ReloadPage();
  EXPECT_EQ(BrowserAddress, 5 * 512);
  EXPECT_EQ(AddressBox(), "2560");
}

TEST_F(PageView, AReloadShowsTheChangedFile) {
  auto file = OpenGba8();
  for (std::size_t at = 0; at < 64; ++at) file[at] = 9;
  MakeFile("page.dat", file);
  ReloadPage();
  EXPECT_EQ(ShownPage(), NaivePage(file));
}

TEST_F(PageView, WithNoFileTheWindowIsHidden) {
  OpenGba8();
  EXPECT_TRUE(Page().Visible());
  FileOpen = false;
  PaintPage();
  EXPECT_FALSE(Page().Visible());
  EXPECT_EQ(AddressBox(), "0") << "the address is shown all the same";
}

TEST_F(PageView, ARedrawWithoutAFileReadsNothingAndHides) {
  ReloadPage();
  RedrawFromScroll();
  EXPECT_FALSE(Page().Visible());
  EXPECT_EQ(BrowserAddress, 0);
}

TEST_F(PageView, TheCaptionNamesFileAndMode) {
  const std::string path = OpenBytes("Some game.dat", RampBytes(8192));
  EXPECT_EQ(Page().Caption().toStdString(), "Browser - '" + path + "' in Snes 4bpp mode");
  ChooseInList(Panel().cboMode, kListNes);
  EXPECT_EQ(Page().Caption().toStdString(), "Browser - '" + path + "' in Nes mode");
}

TEST_F(PageView, TheScrollRangeIsTheLinesOfTheFileLessThoseShown) {
  OpenGba8();
  EXPECT_EQ(ScrollScale, 128);
  EXPECT_EQ(Page().vsbAddress.Max(), 112);
}

TEST_F(PageView, AShortFileHasANegativeMaximumAndDoesNotScroll) {
  OpenBytes("short.dat", RampBytes(300));
  EXPECT_EQ(ScrollScale, 1);
  EXPECT_EQ(Page().vsbAddress.Max(), -15);
  EXPECT_EQ(Page().vsbAddress.Value(), 0);
  ClickArrowUp(Page().vsbAddress);
  EXPECT_EQ(Page().vsbAddress.Value(), 0);
}

TEST_F(PageView, SixteenMegabytesOfGameboyScrollIn512Bytes) {
  ChooseInList(Panel().cboMode, kListGameboy);
  OpenBytes("large.dat", std::vector<std::uint8_t>(16 * 1024 * 1024));
  ChooseInList(Panel().cboMode, kListGameboy);
  EXPECT_EQ(LineBytes, 128);
  EXPECT_EQ(ScrollScale, 32767);
  Page().vsbAddress.SetValue(1);
  EXPECT_EQ(BrowserAddress, 512);
  Panel().hsbDiv.SetValue(3);
  Page().vsbAddress.SetValue(32751);
  EXPECT_EQ(BrowserAddress, 512 * 32751 + 3);
}

TEST_F(PageView, TheEndOfTheFileLeavesTheLinesShownAsMargin) {
  OpenGba8();
  Page().vsbAddress.SetValue(Page().vsbAddress.Max());
  EXPECT_EQ(BrowserAddress, 65536 - 16 * 512);
  Panel().hsbDiv.SetValue(64);
  EXPECT_EQ(BrowserAddress, 65536 - 16 * 512 + 64) << "the shift moves beyond that";
}

TEST_F(PageView, BeyondTheEndThePageRepeatsTheLastByte) {
  const auto& file = OpenGba8();
  Page().vsbAddress.SetValue(Page().vsbAddress.Max());
  Panel().hsbDiv.SetValue(64);
  auto entries = EntriesFrom(file, BrowserAddress);
  entries.resize(8192, file.back());
  EXPECT_EQ(ShownPage(), NaivePage(entries));
}

TEST_F(PageView, ThePageSizeMovesTheLineGrid) {
  OpenGba8();
  Panel().hsbRows.SetValue(10);
  EXPECT_EQ(LineBytes, 640);
  for (int value = 0; value < 40; ++value) {
    Page().vsbAddress.SetValue(value);
    EXPECT_EQ(BrowserAddress % 640, 0);
  }
}

TEST_F(PageView, AZoomAloneLeavesThePageAsItWasRead) {
  const auto& file = OpenGba8();
  ClickControl(Panel().fbnBrowserZoomIn);
  EXPECT_EQ(MainZoom, 4);
  EXPECT_EQ(BrowserAddress, 0);
  EXPECT_EQ(ShownPage(), NaivePage(file));
}

TEST_F(PageView, TheBenchmarkTellsTheTimeOfARedraw) {
  OpenGba8();
  Frame().lblInfo.SetText(QStringLiteral("untouched"));
  Page().vsbAddress.SetValue(1);
  EXPECT_EQ(Info(), "untouched") << "the option is off";
  The<Options>().fbnBenchmark.SetChecked(true);
  Page().vsbAddress.SetValue(2);
  EXPECT_TRUE(QString::fromStdString(Info()).contains(
      QRegularExpression(QStringLiteral("^The last redraw took about -?[0-9]+(\\.[0-9]{1,3})? seconds\\.$"))))
      << Info();
  Frame().lblInfo.SetText(QStringLiteral("untouched"));
  ReloadPage();
  EXPECT_EQ(Info(), "untouched") << "a reload is not measured";
}

TEST_F(PageView, LineBytesOfZeroEndInTheDivisionFault) {
  OpenGba8();
  LineBytes = 0;
  EXPECT_EQ(FaultOf([] { RedrawFromScroll(); }), FaultKind::DivisionByZero);
  EXPECT_EQ(FaultOf([] { SetScrollRange(); }), FaultKind::DivisionByZero);
  ScrollScale = 0;
  LineBytes = 512;
  EXPECT_EQ(FaultOf([] { RedrawFromScroll(); }), FaultKind::DivisionByZero);
}

TEST_F(PageView, APageSizeBeyondAnyScreenDoesNotExhaustTheMemory) {
  // As a settings file put together by hand can ask for.
  MainRows = 4000;
  MainLines = 4000;
  FormatBrowser();
  EXPECT_EQ(Page().ScaleWidth(), 3 * 32000 + 17);
  EXPECT_EQ(Page().ScaleHeight(), 3 * 32000);
  EXPECT_LE(static_cast<std::int64_t>(Page().Canvas().Width()) * Page().Canvas().Height(), 1 << 26);
}

TEST_F(PageView, AFullPageOf32By32IsShown) {
  const auto& file = OpenGba8();
  Panel().hsbRows.SetValue(32);
  Panel().hsbLines.SetValue(32);
  EXPECT_EQ(ShownPage(), NaivePage(file));
}

TEST_F(PageView, ATileThatIsNotSquareLiesTransposed) {
  const auto& file = OpenGba8();
  ChooseInList(Panel().cboBitmapMode, 3);
  LineBytes = 256;
  ChooseInList(Panel().cboMode, kListBitmap);
  const Surface before = BrowserSurface;
  Panel().hsbBitmapWidth.SetValue(16);
  ASSERT_EQ(TileWidth, 16);
  ASSERT_EQ(TileHeight, 8);
  const auto entries = EntriesFrom(file, BrowserAddress);
  EXPECT_EQ(Page().ScaleWidth(), 16 * 8 * 3 + 17);
  EXPECT_EQ(Page().Canvas().GetPixel(300, 100), 0xACACAC) << "the window grows after the page was drawn";
  ClickControl(Panel().fbnGrid);
  EXPECT_EQ(ShownPage(), NaivePage(entries, before)) << "gaps show what was painted before";
  // The first tile is 8 pixels across and 16 down: entry 8 starts its second row. The tile below covers the
  // rows from 8 on.
  EXPECT_EQ(BrowserSurface.GetPixel(0, 1), Palette[entries[8]]);
  EXPECT_EQ(BrowserSurface.GetPixel(0, 8), Palette[entries[8 * 128]]);
}

}  // namespace
}  // namespace brolk::test
