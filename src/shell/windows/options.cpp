// SPDX-License-Identifier: MIT
#include "shell/windows/options.h"

#include <string>

#include "forms/windows.h"
#include "shell/reg_keys.h"
#include "shell/windows/file_config.h"
#include "shell/windows/main_form.h"
#include "shell/windows/msg_box.h"
#include "tile/shared.h"

namespace brolk {
namespace {

// Keeps the text of a label off the button that ends where the label starts.
constexpr int kTextIndentPx = 4;

bool Confirmed(const QString& question) {
  return ShowMsgBox(question, kMsgYesNo | kMsgQuestion, QStringLiteral("Please confirm")) == kAnswerYes;
}

// The colour that the dialog holds afterwards goes into the swatch. Nothing tells a cancel from a choice, so
// a cancel takes the dialog's last colour, black the first time. That is meant.
void PickColor(Label& swatch) {
  CommonDialog& dialog = The<MainForm>().cdlMain;
  dialog.ShowColor();
  swatch.SetBackColor(dialog.Color);
}

}  // namespace

Options::Options() : Form({"Options", "Options", FormKind::Free, FormBorder::Fixed, 2310, 4680}) {
  PlaceControls();
  DressLabels();
  WireCommands();
  fbnSaveWarning.SetChecked(true);
  fbnOk.setAccessibleName(QStringLiteral("OK"));
  setFocus();
}

void Options::PlaceControls() {
  const struct {
    QWidget& control;
    double left, top, width, height;
  } rows[] = {
      {lblColors, 848, 0, 615, 225},
      {lblGridColor, 120, 240, 615, 375},
      {lblSelectionColor, 840, 240, 615, 375},
      {lblEmptyColor, 1560, 240, 615, 375},
      // One line high: the title shows its first word, the line below says the rest again.
      {lblBenchmark, 608, 720, 1095, 195},
      {fbnBenchmark, 120, 840, 360, 360},
      {lblMeasure, 480, 960, 1830, 225},
      {lblWarning1, 480, 1320, 1830, 225},
      {fbnSaveWarning, 120, 1200, 360, 360},
      {lblWarning, 120, 1560, 2145, 615},
      {lblAppearance, 600, 2280, 1110, 225},
      {fbnSaveNow, 240, 2520, 480, 480},
      {lblSaveNow, 240, 3000, 585, 450},
      {fbnLoadNow, 840, 2520, 480, 480},
      {lblLoadNow, 840, 3000, 690, 450},
      {fbnDefaultSettings, 1560, 2520, 480, 480},
      {lblDefaultSettings, 1560, 3000, 750, 450},
      {fbnClearRecent, 120, 3480, 480, 480},
      {lblClearRecent, 720, 3600, 1590, 240},
      {fbnOk, 600, 4080, 1200, 480},
  };
  for (const auto& row : rows) Place(row.control, row.left, row.top, row.width, row.height);
}

void Options::DressLabels() {
  for (Label* title : {&lblColors, &lblBenchmark, &lblWarning1, &lblAppearance}) title->SetBold();
  for (Label* wrapped : {&lblBenchmark, &lblWarning, &lblSaveNow, &lblLoadNow, &lblDefaultSettings}) {
    wrapped->SetWrap();
  }
  for (Label* beside : {&lblMeasure, &lblWarning1}) beside->setContentsMargins(kTextIndentPx, 0, 0, 0);
  for (Label* swatch : {&lblGridColor, &lblSelectionColor, &lblEmptyColor}) {
    swatch->SetBorder();
    swatch->SetClick([swatch] { PickColor(*swatch); });
  }
}

void Options::WireCommands() {
  const struct {
    FlatButton& button;
    Label* label;
    void (Options::*click)();
  } rows[] = {
      {fbnSaveNow, &lblSaveNow, &Options::fbnSaveNow_Click},
      {fbnLoadNow, &lblLoadNow, &Options::fbnLoadNow_Click},
      {fbnDefaultSettings, &lblDefaultSettings, &Options::fbnDefaultSettings_Click},
      {fbnClearRecent, &lblClearRecent, &Options::fbnClearRecent_Click},
      {fbnOk, nullptr, &Options::fbnOk_Click},
  };
  for (const auto& row : rows) {
    row.button.Click = [this, click = row.click] { (this->*click)(); };
    if (row.label != nullptr) row.label->SetClick(row.button.Click);
  }
}

// A fresh window takes the last stored place; afterwards it stays where the user puts it.
void Options::Form_Load() {
  SetLeft(RegGetInteger(kLocalMachine, kSettingsKey, "OptionsLeft"));
  SetTop(RegGetInteger(kLocalMachine, kSettingsKey, "OptionsTop"));
}

void Options::ShowColors() {
  lblGridColor.SetBackColor(GridColor);
  lblSelectionColor.SetBackColor(SelectionColor);
  lblEmptyColor.SetBackColor(EmptyColor);
}

void Options::fbnSaveNow_Click() {
  SaveLayout();
}

void Options::fbnLoadNow_Click() {
  LoadLayout();
  fbnOk_Click();
}

// The window closes after a No as well. That is meant.
void Options::fbnDefaultSettings_Click() {
  if (Confirmed(QStringLiteral("Really reset the current layout to defaults?"))) DefaultLayout();
  fbnOk_Click();
}

void Options::fbnClearRecent_Click() {
  if (Confirmed(QStringLiteral("Are you sure to clear the recent files?"))) {
    for (int number = 1; number <= kRecentCount; ++number) {
      std::string freeEntry = "-";
      RegSaveString(kLocalMachine, kSettingsKey, "LastOpen" + std::to_string(number), freeEntry);
    }
  }
  The<MainForm>().FillRecentMenu();
}

void Options::fbnOk_Click() {
  GridColor = lblGridColor.BackColor();
  SelectionColor = lblSelectionColor.BackColor();
  EmptyColor = lblEmptyColor.BackColor();
  Hide();
}

void Options::FrameClosed() {
  fbnOk_Click();
  UnloadWindow<Options>();
}

}  // namespace brolk
