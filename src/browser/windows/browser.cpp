// SPDX-License-Identifier: MIT
#include "browser/windows/browser.h"

#include <algorithm>

#include "browser/page_address.h"
#include "browser/page_pointer.h"
#include "browser/selection.h"
#include "browser/windows/browser_control.h"
#include "browser/windows/page_view.h"
#include "editor/slots.h"
#include "editor/windows/edit.h"
#include "editor/windows/editor.h"
#include "forms/keys.h"
#include "forms/windows.h"
#include "runtime/numbers.h"
#include "shell/windows/main_form.h"
#include "tile/modes.h"
#include "tile/shared.h"
#include "tile/tile.h"
#include "tile/windows/confirm_save.h"

namespace brolk {
namespace {

constexpr ColorValue kBackColor = 0xACACAC;
constexpr int kLargeScrollStep = 128;

struct MoveKey {
  int keyCode;
  SelectionMove move;
};

constexpr MoveKey kMoveKeys[] = {
    {kKeypad0 + 6, SelectionMove::Next},  {kKeypad0 + 4, SelectionMove::Previous},
    {kKeypad0 + 2, SelectionMove::Down},  {kKeypad0 + 8, SelectionMove::Up},
    {kKeypad0 + 7, SelectionMove::First}, {kKeypad0 + 1, SelectionMove::Last},
};

TileExtent ExtentOfTile() {
  return {MainZoom, TileWidth, TileHeight};
}

AddressStatus StatusOfPage() {
  return {Modes[GfxMode].BytesPerTile, MainRows, MainZoom, CellSize, BrowserAddress};
}

std::uint8_t SelectedSlot() {
  return WrapByte(EditSelLine * 16 + EditSelColumn);
}

void ShowSelectedAddress(std::int32_t address) {
  The<BrowserControl>().txtAddress.SetText(QString::number(address));
}

}  // namespace

Browser::Browser()
    : DrawingForm({"Browser", "Browser", FormKind::Child, FormBorder::Fixed, 3140, 5760}, kBackColor) {
  vsbAddress.setAccessibleName(QStringLiteral("Position in the file"));
  vsbAddress.SetLargeChange(kLargeScrollStep);
  vsbAddress.Change = RedrawFromScroll;
  vsbAddress.Scroll = RedrawFromScroll;
}

void Browser::Form_Activate() {
  LineBytes = LineBytesFor(Modes[GfxMode].BytesPerTile, MainRows);
  Line = LineAt(BrowserAddress, LineBytes);
}

void Browser::Form_MouseDown(int button, int, float x, float y) {
  if (button == kRightButton) {
    auto& main = The<MainForm>();
    main.UpdateToolWindows();
    PopupMenu(main.mnuBrowser, *this, QPointF(x, y).toPoint());
    return;
  }
  const TilePlace place = TileAt(x, y, ExtentOfTile());
  SelColumn = place.column;
  SelLine = place.line;
  const std::int32_t address = SelectedAddress();
  ShowSelectedAddress(address);
  Line = LineAt(address, LineBytes);
  ShowSelection();
}

void Browser::Form_MouseMove(int, int, float x, float y) {
  x = std::clamp(x, 0.0F, static_cast<float>(ScaleWidth()));
  y = std::clamp(y, 0.0F, static_cast<float>(ScaleHeight()));
  auto& main = The<MainForm>();
  main.lblAddress.SetText(QString::fromStdString(AddressStatusText(x, y, StatusOfPage())));
  main.lblPosition.SetText(QString::fromStdString(PositionStatusText(x, y, ExtentOfTile())));
  main.lblColor.SetText(QString::fromStdString(DepthStatusText(Modes[GfxMode].BitsPerPixel)));
}

void Browser::Form_MouseUp(int, int, float x, float y) {
  const bool inside =
      x >= 0 && y >= 0 && x < static_cast<float>(ScaleWidth()) && y < static_cast<float>(ScaleHeight());
  auto& editor = The<Editor>();
  if (inside || !editor.Visible()) return;
  editor.DragToEditor(CoordinateInWindow(x, Left(), editor.Left(), kTwipsPerPixel),
                      CoordinateInWindow(y, Top(), editor.Top(), kTwipsPerPixel));
}

bool Browser::Form_DblClick() {
  const std::uint8_t slot = SelectedSlot();
  ClearSlot(slot);
  AddTileToSlot(SelectedAddress(), slot);
  // The next double click fills the next slot of the line; it does not go on to the next line.
  if (EditSelColumn < 15) ++EditSelColumn;
  RedrawEditor();
  return true;
}

void Browser::DragToBrowser(std::int16_t x, std::int16_t y) {
  if (x < 0 || y < 0 || x >= ScaleWidth() || y >= ScaleHeight()) return;
  const std::int32_t address = DropAddressAt(x, y, ExtentOfTile(), StatusOfPage());
  if (!ConfirmSave()) return;
  WriteTile(hFile, address, SelectedSlot());
  ReloadPage();
}

void Browser::Form_KeyDown(int keyCode, int shift) {
  if (shift == 0 && !MoveSelectionBy(keyCode)) PressPlainKey(keyCode);
  if (shift == kControlKey) PressControlKey(keyCode);
}

bool Browser::MoveSelectionBy(int keyCode) {
  const auto* key = std::find_if(std::begin(kMoveKeys), std::end(kMoveKeys),
                                 [keyCode](const MoveKey& row) { return row.keyCode == keyCode; });
  if (key == std::end(kMoveKeys)) return false;
  const auto& panel = The<BrowserControl>();
  const PageSelection moved = MovedSelection({SelColumn, SelLine, Line}, key->move,
                                             Wrap16(panel.hsbRows.Value()), Wrap16(panel.hsbLines.Value()));
  SelColumn = moved.column;
  SelLine = moved.line;
  Line = moved.fileLine;
  ShowSelectedAddress(SelectedAddress());
  ShowSelection();
  return true;
}

void Browser::PressPlainKey(int keyCode) {
  auto& panel = The<BrowserControl>();
  switch (keyCode) {
    case kKeyEnter:
      Form_DblClick();
      break;
    case kKeySpace:
      panel.SetFocus();
      break;
    case kKeypadAdd:
      panel.fbnBrowserZoomIn_Click();
      break;
    case kKeypadSubtract:
      panel.fbnBrowserZoomOut_Click();
      break;
    default:
      break;
  }
}

void Browser::PressControlKey(int keyCode) {
  auto& panel = The<BrowserControl>();
  switch (keyCode) {
    case 'O':
      panel.fbnOpenFile_MouseDown(kLeftButton, 0, 0, 0);
      break;
    case 'C':
      panel.fbnCloseFile_Click();
      break;
    case 'G':
      // The checked state alone: the grid follows at the next click of the button itself. That is meant.
      panel.fbnGrid.SetChecked(!panel.fbnGrid.Checked());
      break;
    case 'E':
      if (The<Editor>().Visible()) The<Editor>().SetFocus();
      break;
    default:
      break;
  }
}

void Browser::ShowSelection() {
  BlitPage();
  DrawGridAndFrame();
  Refresh();
}

}  // namespace brolk
