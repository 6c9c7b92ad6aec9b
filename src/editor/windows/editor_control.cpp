// SPDX-License-Identifier: MIT
#include "editor/windows/editor_control.h"

#include "browser/windows/page_view.h"
#include "editor/saving.h"
#include "editor/slots.h"
#include "editor/windows/edit.h"
#include "editor/windows/editor.h"
#include "editor/windows/tile_control.h"
#include "exchange/windows/c_output.h"
#include "forms/windows.h"
#include "shell/windows/main_form.h"
#include "shell/windows/msg_box.h"
#include "tile/shared.h"
#include "tile/windows/confirm_save.h"

namespace brolk {
namespace {

// The panel: a regular grid of square buttons, as on the panel of the Browser. Twips.
constexpr double kClientWidth = 1950;
constexpr double kClientHeight = 2670;
constexpr double kButtonSide = 510;

constexpr std::int16_t kLargestZoom = 30;
constexpr std::int16_t kSmallestZoom = 2;

void ShowZoom() {
  RedrawEditor();
  The<MainForm>().UpdateToolWindows();
  The<Editor>().FormatEditScr();
}

}  // namespace

EditorControl::EditorControl()
    : Form({"EditorControl", "Editor Control", FormKind::Child, FormBorder::Fixed, kClientWidth,
            kClientHeight}) {
  PlaceButtons();
  fbnSelect.SetChecked(true);
  fbnEditorGrid.SetChecked(true);
  fbnSelect.Click = [] { The<MainForm>().ChooseTool(kSelectTool); };
  fbnPaint.Click = [] { The<MainForm>().ChooseTool(kPaintTool); };
  fbnFill.Click = [] { The<MainForm>().ChooseTool(kFillTool); };
  fbnEditorGrid.Click = [this] { fbnEditorGrid_Click(); };
  fbnNonCopied.Click = [this] { fbnNonCopied_Click(); };
  fbnSaveEdit.Click = [this] { fbnSaveEdit_Click(); };
  fbnReload.Click = [this] { fbnReload_Click(); };
  fbnEditClear.Click = [this] { fbnEditClear_Click(); };
  fbnEditZoomOut.Click = [this] { fbnEditZoomOut_Click(); };
  fbnEditZoomIn.Click = [this] { fbnEditZoomIn_Click(); };
  fbnCOutPut.Click = [this] { fbnCOutPut_Click(); };
}

void EditorControl::PlaceButtons() {
  const struct {
    FlatButton& button;
    double left, top;
  } rows[] = {
      {fbnSelect, 120, 120},      {fbnPaint, 720, 120},       {fbnFill, 1320, 120},
      {fbnEditorGrid, 120, 840},  {fbnNonCopied, 720, 840},   {fbnSaveEdit, 120, 1440},
      {fbnReload, 720, 1440},     {fbnEditClear, 1320, 1440}, {fbnEditZoomOut, 120, 2040},
      {fbnEditZoomIn, 720, 2040}, {fbnCOutPut, 1320, 2040},
  };
  for (const auto& row : rows) Place(row.button, row.left, row.top, kButtonSide, kButtonSide);
  Place(fbnSeparator1, 120, 705, kClientWidth - 240, 60);
}

void EditorControl::fbnEditorGrid_Click() {
  RedrawEditor();
  The<MainForm>().UpdateToolWindows();
}

void EditorControl::fbnNonCopied_Click() {
  RedrawEditor();
  The<MainForm>().mnuNonCopied.SetChecked(!fbnNonCopied.Checked());
}

void EditorControl::fbnEditClear_Click() {
  const std::uint8_t answer = ShowMsgBox(QStringLiteral("Really clear all tiles in the editor?"),
                                         kMsgYesNo + kMsgQuestion, QStringLiteral("Clear all tiles?"));
  if (answer != kAnswerYes) return;
  ClearEditor();
  The<TileControl>().LoadTile(-1);
  RedrawEditor();
  The<MainForm>().UpdateToolWindows();
}

void EditorControl::fbnEditZoomOut_Click() {
  if (MainEdZoom >= kLargestZoom) return;
  ++MainEdZoom;
  ShowZoom();
}

void EditorControl::fbnEditZoomIn_Click() {
  if (MainEdZoom <= kSmallestZoom) return;
  --MainEdZoom;
  ShowZoom();
}

void EditorControl::fbnReload_Click() {
  const std::uint8_t answer = ShowMsgBox(QStringLiteral("Do you really want to reload all tiles?"),
                                         kMsgYesNo + kMsgQuestion, QStringLiteral("Reload"));
  if (answer != kAnswerYes || !FileOpen) return;
  ReloadAllSlots();
  RedrawEditor();
}

void EditorControl::fbnSaveEdit_Click() {
  const std::uint8_t saved = FileOpen && ConfirmSave() ? SaveAllSlots() : std::uint8_t{0};
  The<MainForm>().lblInfo.SetText(QStringLiteral("Saved%1 tiles to file").arg(saved));
  ReloadPage();
}

void EditorControl::fbnCOutPut_Click() {
  The<COutPut>().Show();
}

}  // namespace brolk
