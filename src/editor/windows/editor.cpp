// SPDX-License-Identifier: MIT
#include "editor/windows/editor.h"

#include <QMdiSubWindow>

#include "browser/windows/browser.h"
#include "editor/drawing.h"
#include "editor/painting.h"
#include "editor/slots.h"
#include "editor/windows/edit.h"
#include "editor/windows/editor_control.h"
#include "editor/windows/editor_keys.h"
#include "editor/windows/tile_control.h"
#include "forms/keys.h"
#include "forms/menu.h"
#include "forms/windows.h"
#include "palette/palette_model.h"
#include "palette/windows/palette_panel.h"
#include "runtime/numbers.h"
#include "shell/windows/main_form.h"
#include "tile/shared.h"

namespace brolk {
namespace {

// The smallest outer size.
constexpr double kMinimumTwips = 2000;

// Steps of the scroll bars, whose values are pixels.
constexpr int kSmallStepPx = 8;
constexpr int kLargeStepPx = 64;

std::uint8_t SelectedSlot() {
  return WrapByte(EditSelLine * kSlotsInLine + EditSelColumn);
}

}  // namespace

Editor::Editor()
    : DrawingForm({"Editor", "Editor", FormKind::Child, FormBorder::Sizable, 3900, 3195}, kOutsideColor) {
  if (ChildFrame() != nullptr)
    ChildFrame()->setMinimumSize(PixelsFromTwips(kMinimumTwips), PixelsFromTwips(kMinimumTwips));
  fbnFit.resize(kScrollBarPx, kScrollBarPx);
  fbnFit.setAutoFillBackground(true);
  hsbEdit.resize(kScrollBarPx, kScrollBarPx);
  vsbEdit.resize(kScrollBarPx, kScrollBarPx);
  for (ScrollBar* bar : {&hsbEdit, &vsbEdit}) {
    bar->setCursor(Qt::ArrowCursor);
    bar->setSingleStep(kSmallStepPx);
    bar->SetLargeChange(kLargeStepPx);
    bar->Change = RedrawEditor;
    bar->Scroll = RedrawEditor;
  }
  fbnFit.Click = [this] { fbnFit_Click(); };
}

void Editor::DragToEditor(std::int16_t x, std::int16_t y) {
  const std::optional<std::uint8_t> slot = DropSlotAt(CurrentEditorView(), x, y);
  if (!slot) return;
  ClearSlot(*slot);
  AddTileToSlot(SelectedAddress(), *slot);
  RedrawEditor();
}

void Editor::FormatEditScr() {
  fbnFit.move(ScaleWidth() - fbnFit.width(), ScaleHeight() - fbnFit.height());
  hsbEdit.SetValue(0);
  vsbEdit.SetValue(0);
  const bool across = NeedsScrollBar(MainEdZoom, ScaleWidth());
  const bool down = NeedsScrollBar(MainEdZoom, ScaleHeight());
  hsbEdit.setVisible(across);
  vsbEdit.setVisible(down);
  hsbEdit.setGeometry(0, ScaleHeight() - hsbEdit.height(), ScaleWidth() - vsbEdit.width(), hsbEdit.height());
  if (across) hsbEdit.SetMax(ScrollMaximum(MainEdZoom, ScaleWidth()));
  vsbEdit.setGeometry(ScaleWidth() - vsbEdit.width(), 0, vsbEdit.width(), ScaleHeight() - hsbEdit.height());
  if (down) vsbEdit.SetMax(ScrollMaximum(MainEdZoom, ScaleHeight()));
}

void Editor::fbnFit_Click() {
  const int sidePx = GridPx(MainEdZoom) + kScrollBarPx;
  SetClientSize(sidePx, sidePx);
  FormatEditScr();
}

void Editor::Form_Resize() {
  RedrawEditor();
  FormatEditScr();
}

void Editor::Form_MouseDown(int button, int, float x, float y) {
  menuShown_ = false;
  PointerEvent(button, x, y);
}

void Editor::Form_MouseMove(int button, int, float x, float y) {
  if ((button & kRightButton) == 0) menuShown_ = false;
  PointerEvent(button, x, y);
}

void Editor::PointerEvent(int button, float x, float y) {
  const EditorView view = CurrentEditorView();
  if (!ClampToGrid(view, x, y)) {
    SlotDragging = 0;
    return;
  }
  const EditorPlace place = PlaceAt(view, x, y);
  ShowStatus(place);
  if (button == 0 && SlotDragging != 0) DropDraggedSlot(place);
  if ((button & kLeftButton) != 0) {
    UseTool(place);
    Refresh();
  } else if ((button & kRightButton) != 0) {
    RightButton(place, x, y);
  }
}

void Editor::ShowStatus(const EditorPlace& place) {
  MainForm& frame = The<MainForm>();
  const int color = EditSlots[place.Slot()].Pixels[place.PixelIndex()];
  frame.lblColor.SetText(QStringLiteral("Color %1").arg(color));
  frame.lblPosition.SetText(QStringLiteral("X: %1   Y: %2").arg(place.pixelX + 1).arg(place.pixelY + 1));
}

// The button has been let go already: the swap takes place at the first move after the release. The selection
// stays where it is, on the other tile now.
void Editor::DropDraggedSlot(const EditorPlace& place) {
  SlotDragging = 0;
  if (SelectedSlot() == place.Slot()) return;
  SwapSlots(SelectedSlot(), place.Slot());
  RedrawEditor();
}

void Editor::UseTool(const EditorPlace& place) {
  switch (EditTool) {
    case kSelectTool:
      SelectAt(place);
      break;
    case kPaintTool:
      PaintAt(place);
      break;
    case kFillTool:
      FillAt(place);
      break;
    default:
      break;
  }
}

void Editor::SelectAt(const EditorPlace& place) {
  if (SlotDragging != 0) return;
  SlotDragging = -1;
  DrawEditorCell(SelectedSlot(), EditSelColumn, EditSelLine);
  EditSelColumn = place.column;
  EditSelLine = place.line;
  The<TileControl>().LoadTile(LoadableSlot(place.Slot()));
  DrawEditorOverlay();
}

void Editor::PaintAt(const EditorPlace& place) {
  // Shown non-copied slots block Paint on every slot, and Paint alone. That is meant.
  if (The<EditorControl>().fbnNonCopied.Checked()) return;
  PaintPixel(place.Slot(), place.PixelIndex(), CurrentColor);
  DrawEdited(place);
}

void Editor::FillAt(const EditorPlace& place) {
  FillSlot(place.Slot(), CurrentColor);
  DrawEdited(place);
}

void Editor::DrawEdited(const EditorPlace& place) {
  DrawEditorCell(place.Slot(), place.column, place.line);
  DrawTwinCells(place.Slot());
  DrawEditorOverlay();
}

void Editor::RightButton(const EditorPlace& place, float x, float y) {
  if (EditTool != kSelectTool) {
    CurrentColor = EditSlots[place.Slot()].Pixels[place.PixelIndex()];
    PaintPalettePanel();
    return;
  }
  if (menuShown_) return;
  menuShown_ = true;
  PopupMenu(The<MainForm>().mnuEditor, *this, QPointF(x, y).toPoint());
  The<MainForm>().UpdateToolWindows();
}

void Editor::Form_MouseUp(int, int, float x, float y) {
  if (x >= 0 && y >= 0 && x <= static_cast<float>(ScaleWidth()) && y <= static_cast<float>(ScaleHeight()))
    return;
  RedrawEditor();
  Browser& browser = The<Browser>();
  if (!browser.Visible() || EditTool != kSelectTool) return;
  // Frames and title bars are left out of account: the outer corners alone count.
  const auto xInBrowser =
      (static_cast<double>(x) * kTwipsPerPixel + Left() - browser.Left()) / kTwipsPerPixel;
  const auto yInBrowser = (static_cast<double>(y) * kTwipsPerPixel + Top() - browser.Top()) / kTwipsPerPixel;
  browser.DragToBrowser(RoundToInteger(xInBrowser), RoundToInteger(yInBrowser));
}

void Editor::Form_KeyDown(int keyCode, int shift) {
  if (shift == kControlKey) {
    RunEditorControlKey(keyCode);
  } else if (shift == 0) {
    RunEditorKey(keyCode);
    // The old cell is not drawn over: the frame of the previous selection stays until the next full redraw.
    // That is meant.
    The<TileControl>().LoadTile(LoadableSlot(SelectedSlot()));
    DrawEditorOverlay();
    Refresh();
  }
}

}  // namespace brolk
