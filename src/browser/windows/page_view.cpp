// SPDX-License-Identifier: MIT
#include "browser/windows/page_view.h"

#include <QString>

#include "browser/page_address.h"
#include "browser/page_paint.h"
#include "browser/page_window.h"
#include "browser/windows/browser.h"
#include "browser/windows/browser_control.h"
#include "editor/slots.h"
#include "editor/windows/edit.h"
#include "forms/keys.h"
#include "forms/screen.h"
#include "forms/windows.h"
#include "runtime/numbers.h"
#include "shell/windows/main_form.h"
#include "shell/windows/options.h"
#include "tile/modes.h"
#include "tile/shared.h"
#include "tile/tile.h"

namespace brolk {
namespace {

// Tells how long decoding and painting took.
void ShowRedrawTime(float before, float after) {
  Label& info = The<MainForm>().lblInfo;
  info.SetText(QString::fromStdString(RedrawTimeText(before, after)));
  info.Refresh();
}

}  // namespace

void CreateSurfaces() {
  The<Browser>();
  BrowserSurface = Surface(kPageSurfacePx, kPageSurfacePx);
  CreateSlotSurfaces();
}

void ReleaseSurfaces() {
  BrowserSurface = Surface();
  for (EditSlot& slot : EditSlots) slot.SlotSurface = Surface();
}

void FormatBrowser() {
  auto& browser = The<Browser>();
  const WindowExtent extent =
      PageWindowExtent({MainZoom, TileWidth, TileHeight}, MainRows, MainLines, kTwipsPerPixel);
  browser.SetWidth(static_cast<double>(extent.width));
  browser.SetHeight(static_cast<double>(extent.height));
  browser.vsbAddress.setGeometry(browser.ScaleWidth() - kPageScrollBarPx, 0, kPageScrollBarPx,
                                 browser.ScaleHeight());
  browser.Refresh();
}

void SetScrollRange() {
  const auto linesShown = Wrap16(The<BrowserControl>().hsbLines.Value());
  const ScrollRange range = ScrollRangeFor(FileLength, LineBytes, linesShown);
  ScrollScale = range.scale;
  The<Browser>().vsbAddress.SetMax(range.maximum);
}

void ReloadPage() {
  ReadTile(hFile, BrowserAddress, PageTileCount());
  FormatBrowser();
  PaintPage();
}

void RedrawFromScroll() {
  auto& browser = The<Browser>();
  BrowserAddress =
      PageAddressAt(browser.vsbAddress.Value(), {FileLength, ScrollScale, LineBytes, AddressShift});
  const float before = SecondsSinceMidnight();
  ReadTile(hFile, BrowserAddress, PageTileCount());
  PaintPage();
  if (The<Options>().fbnBenchmark.Checked()) ShowRedrawTime(before, SecondsSinceMidnight());
  // The press keeps the address box and the frame in step with the scrolled page.
  browser.Form_MouseDown(kLeftButton, 0, EdgeOf(SelColumn, TileWidth, MainZoom),
                         EdgeOf(SelLine, TileHeight, MainZoom));
}

void PaintPage() {
  TextBox& address = The<BrowserControl>().txtAddress;
  address.SetText(QString::number(BrowserAddress));
  address.Refresh();
  auto& browser = The<Browser>();
  if (!FileOpen) {
    browser.Hide();
    return;
  }
  PaintPagePixels(BrowserSurface);
  BlitPage();
  DrawGridAndFrame();
  browser.SetCaption(QString::fromStdString(PageCaption(FileName, Modes[GfxMode].Name)));
  browser.Show();
  browser.Refresh();
}

void BlitPage() {
  BlitPagePixels(The<Browser>().Canvas(), BrowserSurface);
}

void DrawGridAndFrame() {
  auto& browser = The<Browser>();
  if (ShowGrid) DrawPageGrid(browser.Canvas(), browser.Width(), browser.Height());
  DrawPageFrame(browser.Canvas());
}

}  // namespace brolk
