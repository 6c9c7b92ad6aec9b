// SPDX-License-Identifier: MIT
#include "browser/windows/browser_control.h"

#include "browser/bitmap_shape.h"
#include "browser/go_to_address.h"
#include "browser/page_address.h"
#include "browser/page_paint.h"
#include "browser/windows/browser.h"
#include "browser/windows/open_rom.h"
#include "browser/windows/page_view.h"
#include "filetools/windows/favorites_tool.h"
#include "filetools/windows/file_info.h"
#include "forms/keys.h"
#include "forms/windows.h"
#include "palette/windows/color_set.h"
#include "palette/windows/palette_control.h"
#include "palette/windows/palette_panel.h"
#include "runtime/files.h"
#include "runtime/numbers.h"
#include "shell/windows/main_form.h"
#include "shell/windows/msg_box.h"
#include "tile/modes.h"
#include "tile/shared.h"
#include "tile/tile.h"

namespace brolk {
namespace {

constexpr std::int16_t kLowestZoom = 2;
constexpr std::int16_t kHighestZoom = 13;
// Outside Bitmap Mode 32 tiles of 8 pixels fill the page's surface.
constexpr int kMostTilesAcross = 32;
constexpr int kRecentMenuDropTwips = 21;

void ShowNumber(Label& label, int number) {
  label.SetText(QString::number(number));
}

// What follows every change of the page size.
void FollowPageSize() {
  SetScrollRange();
  ReloadPage();
  LineBytes = LineBytesFor(Modes[GfxMode].BytesPerTile, MainRows);
  Line = LineAt(BrowserAddress, LineBytes);
}

}  // namespace

BrowserControl::BrowserControl()
    : Form({"BrowserControl", "Browser Control", FormKind::Child, FormBorder::Fixed, 2550, 6495}) {
  LayOut();
  Dress();
  ConnectFile();
  ConnectPage();
  ConnectBitmap();
}

void BrowserControl::ConnectFile() {
  fbnOpenFile.MouseDown = [this](int button, int shift, float x, float y) {
    fbnOpenFile_MouseDown(button, shift, x, y);
  };
  fbnOpenRecent.Click = [this] { fbnOpenRecent_Click(); };
  fbnCloseFile.Click = [this] { fbnCloseFile_Click(); };
  fbnFileInfo.Click = [this] { fbnFileInfo_Click(); };
  fbnFavorite.Click = [this] { fbnFavorite_Click(); };
}

void BrowserControl::ConnectPage() {
  fbnBrowserZoomIn.Click = [this] { fbnBrowserZoomIn_Click(); };
  fbnBrowserZoomOut.Click = [this] { fbnBrowserZoomOut_Click(); };
  fbnGrid.Click = [this] { fbnGrid_Click(); };
  fbnColorSet.Click = [this] { fbnColorSet_Click(); };
  fbnGoToAddress.Click = [this] { fbnGoToAddress_Click(); };
  cboMode.Click = [this] { ChangeMode(); };
  hsbDiv.Change = [this] { hsbDiv_Change(); };
  hsbDiv.Scroll = [this] { ShowNumber(lblDiv, hsbDiv.Value()); };
  hsbRows.Change = [this] { hsbRows_Change(); };
  hsbRows.Scroll = [this] { ShowNumber(lblRows, hsbRows.Value()); };
  hsbLines.Change = [this] { hsbLines_Change(); };
  hsbLines.Scroll = [this] { ShowNumber(lblLines, hsbLines.Value()); };
}

void BrowserControl::ConnectBitmap() {
  // The decoder asks for the position tile by tile; nothing is redrawn at the moment of the choice.
  cboBitmapMode.Click = [this] { BitmapModePosition = Wrap16(cboBitmapMode.ListIndex()); };
  hsbBitmapWidth.Change = [this] { hsbBitmapWidth_Change(); };
  hsbBitmapHeight.Change = [this] { hsbBitmapHeight_Change(); };
  // A drag shows the size from before it, not the thumb's. That is meant.
  hsbBitmapWidth.Scroll = [this] {
    if (GfxMode != kBitmapMode) return;
    ShowNumber(lblBitmapWidth, TileWidth);
    lblBitmapWidth.Refresh();
  };
  hsbBitmapHeight.Scroll = [this] {
    if (GfxMode != kBitmapMode) return;
    ShowNumber(lblBitmapHeight, TileHeight);
    lblBitmapHeight.Refresh();
  };
}

void BrowserControl::Form_Load() {
  cboMode.Clear();
  for (int position = 0; position < kModeCount; ++position) {
    cboMode.AddItem(QString::fromUtf8(Modes[kModeMap[static_cast<std::size_t>(position)]].Name));
  }
  cboBitmapMode.SetListIndex(0);
  cboMode.SetListIndex(0);
}

void BrowserControl::Form_KeyDown(int keyCode, int shift) {
  if (keyCode == 'O' && shift == kControlKey) fbnOpenFile_MouseDown(kLeftButton, 0, 0, 0);
}

void BrowserControl::fbnOpenFile_MouseDown(int button, int, float, float) {
  if (button == kLeftButton) OpenRom(0);
  if (button == kRightButton) OpenRom(1);
}

void BrowserControl::fbnOpenRecent_Click() {
  PopupMenu(The<MainForm>().mnuRecentMain, *this,
            fbnOpenRecent.pos() + QPoint(0, PixelsFromTwips(kRecentMenuDropTwips)));
}

void BrowserControl::fbnCloseFile_Click() {
  if (!FileOpen) return;
  const auto answer = ShowMsgBox(QStringLiteral("Are you sure you want to close the opened file?"),
                                 kMsgYesNo | kMsgQuestion, QStringLiteral("Close file?"));
  if (answer != kAnswerYes) return;
  FileOpen = false;
  _lclose(hFile);
  The<MainForm>().lblInfo.SetText(QStringLiteral("Closed file ") + QString::fromStdString(FileName));
  FileName.clear();
  ReloadPage();
}

void BrowserControl::fbnFileInfo_Click() {
  if (!FileOpen) {
    The<MainForm>().ToolNotAvailable();
    return;
  }
  The<FileInfo>().Show();
  The<FileInfo>().DoReport();
  The<FileInfo>().SetFocus();
}

void BrowserControl::fbnFavorite_Click() {
  if (!FileOpen) {
    The<MainForm>().ToolNotAvailable();
    return;
  }
  The<FavoritesTool>().Show();
  The<FavoritesTool>().SetFocus();
}

void BrowserControl::fbnBrowserZoomIn_Click() {
  if (MainZoom < kHighestZoom) ++MainZoom;
  ReloadPage();
}

// Not the mirror of the zoom in: the window is sized here as well as by the reload. That is meant.
void BrowserControl::fbnBrowserZoomOut_Click() {
  if (MainZoom > kLowestZoom) --MainZoom;
  FormatBrowser();
  ReloadPage();
}

void BrowserControl::fbnGrid_Click() {
  ShowGrid = fbnGrid.Checked();
  PaintPage();
  DrawGridAndFrame();
}

void BrowserControl::fbnColorSet_Click() {
  The<ColorSet>().Show();
  The<ColorSet>().SetFocus();
}

void BrowserControl::fbnGoToAddress_Click() {
  auto& browser = The<Browser>();
  const AddressJump jump = JumpTo(Val(txtAddress.Text().toStdString()),
                                  PageBytesFor(Modes[GfxMode].BytesPerTile, MainLines, MainRows),
                                  {FileLength, ScrollScale, LineBytes, AddressShift});
  browser.vsbAddress.SetValue(jump.scrollValue);
  Line = jump.scrollValue;
  SelColumn = 0;
  SelLine = 0;
  RedrawFromScroll();
  txtAddress.SetText(QString::number(BrowserAddress));
  ReadTile(hFile, BrowserAddress, PageTileCount());
  PaintPage();
  BlitPage();
  DrawGridAndFrame();
  browser.Refresh();
}

void BrowserControl::hsbDiv_Change() {
  AddressShift = WrapByte(hsbDiv.Value());
  ShowNumber(lblDiv, hsbDiv.Value());
  lblDiv.Refresh();
  RedrawFromScroll();
}

void BrowserControl::hsbRows_Change() {
  MainRows = Wrap16(hsbRows.Value());
  ShowNumber(lblRows, hsbRows.Value());
  FollowPageSize();
}

void BrowserControl::hsbLines_Change() {
  MainLines = Wrap16(hsbLines.Value());
  ShowNumber(lblLines, hsbLines.Value());
  FollowPageSize();
}

void BrowserControl::ChangeMode() {
  GfxMode = kModeMap[static_cast<std::size_t>(cboMode.ListIndex())];
  AddressShift = 0;
  hsbDiv.SetValue(0);
  if (GfxMode == kBitmapMode) {
    FormatBitmapMode();
  } else {
    TileHeight = 8;
    TileWidth = 8;
    CalculateBitmapMode();
    hsbRows.SetMax(kMostTilesAcross);
    hsbLines.SetMax(kMostTilesAcross);
  }
  const GraphicsModeRecord& mode = Modes[GfxMode];
  const int shiftStep = mode.BitsPerPixel <= 4 ? 1 << mode.BitsPerPixel : 16;
  The<PaletteControl>().fbnPalShiftNum.SetCaption(QString::number(shiftStep));
  hsbDiv.SetMax(mode.BytesPerTile);
  ShowNumber(lblDiv, hsbDiv.Value());
  PaintPalettePanel();
  RedrawFromScroll();
  FormatBrowser();
  SetScrollRange();
  The<Browser>().Refresh();
}

void BrowserControl::CalculateBitmapMode() {
  GraphicsModeRecord& record = Modes[kBitmapMode];
  record.BitsPerPixel = BitmapDepthAt(cboBitmapMode.ListIndex());
  record.BytesPerTile = BitmapTileBytes(TileWidth, TileHeight, record.BitsPerPixel);
}

void BrowserControl::FormatBitmapMode() {
  TileWidth = Wrap16(hsbBitmapWidth.Value());
  // The width bar for both: the height bar acts when it is moved. That is meant.
  TileHeight = Wrap16(hsbBitmapWidth.Value());
  GraphicsModeRecord& record = Modes[kBitmapMode];
  record.BitsPerPixel = BitmapDepthAt(cboBitmapMode.ListIndex());
  record.BytesPerTile = EnteredBitmapTileBytes(TileWidth, TileHeight, record.BitsPerPixel);
  hsbRows.SetMax(TilesAcrossSurface(TileWidth));
  hsbLines.SetMax(TilesAcrossSurface(TileHeight));
}

void BrowserControl::hsbBitmapWidth_Change() {
  if (GfxMode != kBitmapMode) return;
  TileWidth = BitmapTileWidthAt(Wrap16(hsbBitmapWidth.Value()), cboBitmapMode.ListIndex());
  ShowNumber(lblBitmapWidth, TileWidth);
  lblBitmapWidth.Refresh();
  cboBitmapMode_Change();
}

void BrowserControl::hsbBitmapHeight_Change() {
  if (GfxMode != kBitmapMode) return;
  TileHeight = Wrap16(hsbBitmapHeight.Value());
  ShowNumber(lblBitmapHeight, TileHeight);
  lblBitmapHeight.Refresh();
  cboBitmapMode_Change();
}

void BrowserControl::cboBitmapMode_Change() {
  hsbDiv.SetMax(Modes[GfxMode].BytesPerTile);
  ShowNumber(lblDiv, hsbDiv.Value());
  PaintPalettePanel();
  RedrawFromScroll();
  FormatBrowser();
}

}  // namespace brolk
