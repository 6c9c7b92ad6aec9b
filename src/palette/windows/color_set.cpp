// SPDX-License-Identifier: MIT
#include "palette/windows/color_set.h"

#include "forms/keys.h"
#include "forms/screen.h"
#include "forms/windows.h"
#include "palette/color_sets.h"
#include "palette/seeded_random.h"
#include "palette/windows/color_dialog.h"
#include "palette/windows/palette_file_dialogs.h"
#include "palette/windows/palette_panel.h"
#include "runtime/ansi_text.h"
#include "runtime/numbers.h"
#include "shell/windows/msg_box.h"
#include "tile/shared.h"
#include "tile/windows/confirm_save.h"

namespace brolk {
namespace {

constexpr double kClientWidth = 6240;
constexpr double kClientHeight = 5250;

// Line of "16" in the list of colour counts.
constexpr int kStartCountLine = 4;

// The colour dialog's place beside the top left corner of the tool, in twips.
constexpr double kDialogRight = 75;
constexpr double kDialogDown = 300;

QString NameOnScreen(const std::string& name) {
  return QString::fromStdString(Utf8FromAnsi(name));
}

}  // namespace

ColorSet::ColorSet()
    : Form({"ColorSet", "Color Set", FormKind::Free, FormBorder::Fixed, kClientWidth, kClientHeight}) {
  LayOut();
  ConnectListEvents();
  ConnectRomEvents();
  cboColorCount.AddItems({"1", "2", "4", "8", "16", "256"});
  picColor.setAccessibleName(QStringLiteral("Colors of the selected color set"));
}

void ColorSet::LayOut() {
  const struct {
    QWidget& control;
    double left, top, width, height;
  } rows[] = {
      {Label1, 120, 75, 6000, 255},                //
      {lstSets, 120, 360, 2940, 2490},             //
      {txtName, 120, 2925, 2940, 315},             //
      {picColor, 3240, 360, 2880, 2880},           //
      {fbnApplySet, 120, 3360, 510, 510},          //
      {fbnAddSet, 720, 3360, 510, 510},            //
      {fbnDeleteSet, 1320, 3360, 510, 510},        //
      {fbnRandomPal, 1920, 3360, 510, 510},        //
      {fbnColorSetLoad, 5010, 3360, 510, 510},     //
      {fbnColorSetSave, 5610, 3360, 510, 510},     //
      {Label2, 120, 4020, 6000, 255},              //
      {cboPaletteType, 120, 4305, 2940, 330},      //
      {cboColorCount, 120, 4740, 1080, 330},       //
      {cboPaletteAddress, 1320, 4740, 1740, 330},  //
      {fbnPalIn, 3240, 4440, 510, 510},            //
      {fbnPalOut, 3840, 4440, 510, 510},           //
      {fbnClose, 5610, 4440, 510, 510},
  };
  for (const auto& row : rows) Place(row.control, row.left, row.top, row.width, row.height);
  for (Label* title : {&Label1, &Label2}) {
    title->SetBold();
    title->SetCentered();
  }
}

void ColorSet::ConnectListEvents() {
  lstSets.Click = [this] { lstSets_Click(); };
  lstSets.DblClick = [this] { fbnApplySet_Click(); };
  txtName.DblClick = [this] { txtName_DblClick(); };
  picColor.MouseDown = [this](int, int, float x, float y) { picColor_MouseDown(x, y); };
  picColor.SetCells([this] { return SetCellPx(picColor.ScaleWidth()); });
  fbnApplySet.Click = [this] { fbnApplySet_Click(); };
  fbnAddSet.Click = [this] { fbnAddSet_Click(); };
  fbnDeleteSet.MouseDown = [this](int button, int, float, float) { fbnDeleteSet_MouseDown(button); };
  fbnRandomPal.Click = [this] { fbnRandomPal_Click(); };
}

void ColorSet::ConnectRomEvents() {
  fbnColorSetLoad.Click = [] { LoadColorSets(); };
  fbnColorSetSave.Click = [] { SaveColorSets(); };
  fbnPalIn.Click = [this] { fbnPalIn_Click(); };
  fbnPalOut.Click = [this] { fbnPalOut_Click(); };
  fbnClose.Click = [this] { Hide(); };
}

void ColorSet::Form_Load() {
  ResetColorSets();
  cboColorCount.SetListIndex(kStartCountLine);
  cboPaletteAddress.SetText(QStringLiteral("0"));
  RefreshSetList();
}

void ColorSet::Form_Activate() {
  ShowSelectedSet();
}

void ColorSet::SetColor(std::int16_t setIndex, std::int16_t colorIndex, std::int32_t color) {
  SetColorOfSet(setIndex, colorIndex, color);
  ShowSelectedSet();
}

void ColorSet::SetPaletteFormats() {
  FillPaletteFormats();
  cboPaletteType.Clear();
  for (std::int32_t index = 0; index < kUsedPaletteFormats; ++index)
    cboPaletteType.AddItem(QString::fromStdString(PaletteFormats[index].Name));
  cboPaletteType.SetListIndex(0);
}

void ColorSet::RefreshSetList() {
  lstSets.Clear();
  if (SetCount == 0) return;
  for (std::int32_t index = 0; index < SetCount; ++index) lstSets.AddItem(NameOnScreen(Sets[index].Name));
  ShowSelectedSet();
}

void ColorSet::ShowSelectedSet() {
  if (SetCount == 0) return;
  const ColorSetRecord& set = Sets[SelectedSet];
  PaintSet(picColor.Canvas(), set, SetCellPx(picColor.ScaleWidth()));
  picColor.Refresh();
  txtName.SetText(NameOnScreen(set.Name));
}

void ColorSet::lstSets_Click() {
  SelectedSet = WrapByte(lstSets.ListIndex());
  ShowSelectedSet();
}

void ColorSet::txtName_DblClick() {
  RenameSelectedSet(AnsiFromUtf8(txtName.Text().toStdString()));
  RefreshSetList();
}

void ColorSet::fbnApplySet_Click() {
  ApplySelectedSet();
  RefreshAfterPaletteChange(PanelRepaint::Last);
}

void ColorSet::fbnAddSet_Click() {
  if (AddEditorPalette(AnsiFromUtf8(txtName.Text().toStdString()))) RefreshSetList();
}

void ColorSet::fbnDeleteSet_MouseDown(int button) {
  if (SetCount == 0) return;
  if (button == kLeftButton) {
    DeleteSelected();
  } else {
    ClearAfterQuestion();
  }
  RefreshSetList();
}

void ColorSet::DeleteSelected() {
  DeleteSelectedSet();
  if (SetCount == 0) txtName.SetText(QString());
}

void ColorSet::ClearAfterQuestion() {
  const std::uint8_t answer = ShowMsgBox(QStringLiteral("Really clear all entries?"),
                                         kMsgYesNo + kMsgQuestion, QStringLiteral("Please confirm"));
  if (answer != kAnswerYes) return;
  ClearColorSets();
  txtName.SetText(QString());
}

void ColorSet::fbnRandomPal_Click() {
  AddRandomSet(SeededRandom(SecondsSinceMidnight()));
  RefreshSetList();
  ShowSelectedSet();
}

void ColorSet::picColor_MouseDown(float x, float y) {
  if (SetCount == 0) return;
  const std::int32_t index = SetColorIndexAt(x, y, SetCellPx(picColor.ScaleWidth()));
  auto& dialog = The<ColorDialog>();
  dialog.SetColor(SelectedSet, Wrap16(index), Sets[SelectedSet].Colors[index]);
  dialog.Show();
  dialog.SetLeft(Left() + kDialogRight);
  dialog.SetTop(Top() + kDialogDown);
}

RomPaletteRun ColorSet::RunFromControls() {
  const std::string address = DecimalAddress(cboPaletteAddress.Text().toStdString());
  cboPaletteAddress.SetText(QString::fromStdString(address));
  return {cboPaletteType.ListIndex(), address, RoundToLong(Val(cboColorCount.Text().toStdString()))};
}

void ColorSet::fbnPalIn_Click() {
  if (SetCount == kFullSetCount) return;
  LoadRomPalette(hFile, RunFromControls(), cboPaletteType.Text().toStdString());
  RefreshSetList();
}

void ColorSet::fbnPalOut_Click() {
  if (!ConfirmSave()) return;
  if (WriteRomPalette(hFile, RunFromControls())) return;
  ShowMsgBox(QStringLiteral("Sorry, not yet implented ^_^;;"), kMsgInformation,
             QStringLiteral("Future feature"));
}

}  // namespace brolk
