// SPDX-License-Identifier: MIT
#include "exchange/windows/pattern.h"

#include "editor/windows/edit.h"
#include "exchange/address_patterns.h"
#include "runtime/ansi_text.h"
#include "shell/windows/msg_box.h"
#include "tile/shared.h"

namespace brolk {
namespace {

constexpr double kClientWidth = 4560;
constexpr double kClientHeight = 4995;

}  // namespace

pattern::pattern()
    : Form({"pattern", "Editor Address Pattern", FormKind::Free, FormBorder::Fixed, kClientWidth,
            kClientHeight}) {
  LayOut();
  ConnectEvents();
  fbnRedraw.SetChecked(true);
}

void pattern::LayOut() {
  const struct {
    QWidget& control;
    double left, top, width, height;
  } rows[] = {
      {lstPat, 120, 120, 4320, 2400},          //
      {txtDescription, 120, 2610, 4320, 315},  //
      {fbnLoadPat, 120, 3045, 510, 510},       //
      {fbnAddPat, 720, 3045, 510, 510},        //
      {fbnDelPat, 1320, 3045, 510, 510},       //
      {fbnLoad, 3330, 3045, 510, 510},         //
      {fbnSave, 3930, 3045, 510, 510},         //
      {fbnRedraw, 120, 3705, 510, 510},        //
      {lblRedraw, 720, 3705, 3090, 510},       //
      {fbnBmp, 120, 4305, 510, 510},           //
      {lblBmp, 720, 4305, 3090, 510},          //
      {fbnClose, 3930, 4305, 510, 510},
  };
  for (const auto& row : rows) Place(row.control, row.left, row.top, row.width, row.height);
  for (Label* label : {&lblRedraw, &lblBmp}) {
    label->SetWrap();
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  }
  lstPat.setAccessibleName(QStringLiteral("Editor address patterns"));
  txtDescription.setAccessibleName(QStringLiteral("Description"));
  fbnRedraw.setAccessibleName(lblRedraw.Text());
  fbnBmp.setAccessibleName(lblBmp.Text());
}

void pattern::ConnectEvents() {
  lstPat.Click = [this] { lstPat_Click(); };
  lstPat.DblClick = [this] { fbnLoadPat_Click(); };
  txtDescription.DblClick = [this] { txtDescription_DblClick(); };
  fbnLoadPat.Click = [this] { fbnLoadPat_Click(); };
  fbnAddPat.Click = [this] { fbnAddPat_Click(); };
  fbnDelPat.Click = [this] { fbnDelPat_Click(); };
  fbnSave.Click = [this] { fbnSave_Click(); };
  fbnLoad.Click = [this] { fbnLoad_Click(); };
  fbnRedraw.Click = [this] { fbnRedraw_Click(); };
  fbnBmp.Click = [this] { fbnBmp_Click(); };
  lblRedraw.SetClick([this] { fbnRedraw_Click(); });
  lblBmp.SetClick([this] { fbnBmp_Click(); });
  fbnClose.Click = [this] { Hide(); };
}

void pattern::Form_Load() {
  PatternCount = 0;
}

void pattern::RefreshPatternList() {
  lstPat.Clear();
  for (std::int16_t p = 0; p < PatternCount; ++p)
    lstPat.AddItem(QString::fromStdString(Utf8FromAnsi(Patterns[p].Description)));
}

void pattern::lstPat_Click() {
  txtDescription.SetText(QString::fromStdString(Utf8FromAnsi(Patterns[lstPat.ListIndex()].Description)));
}

void pattern::txtDescription_DblClick() {
  if (lstPat.ListIndex() >= 0)
    Patterns[lstPat.ListIndex()].Description = AnsiFromUtf8(txtDescription.Text().toStdString());
  RefreshPatternList();
}

void pattern::fbnLoadPat_Click() {
  const int index = lstPat.ListIndex();
  if (index < 0 || !FileOpen) return;
  const std::uint8_t answer =
      ShowMsgBox(QStringLiteral("Do you really want to apply the editor address pattern?"),
                 kMsgYesNo + kMsgQuestion, QStringLiteral("Applying editor address pattern"));
  if (answer != kAnswerYes) return;
  ApplyPatternAddresses(static_cast<std::int16_t>(index));
  // Without reload the window stays as it is, and non-copied addresses may stand on slots that hold pixels.
  if (!fbnRedraw.Checked()) return;
  ReloadSlotsByAddress();
  RedrawEditor();
}

void pattern::fbnAddPat_Click() {
  AddPattern(AnsiFromUtf8(txtDescription.Text().toStdString()));
  RefreshPatternList();
}

void pattern::fbnDelPat_Click() {
  if (lstPat.ListIndex() < 0) return;
  DeletePattern(static_cast<std::int16_t>(lstPat.ListIndex()));
  RefreshPatternList();
}

std::string pattern::AskPath(void (CommonDialog::*show)()) {
  cdlPattern.FileName.clear();
  cdlPattern.Filter = QStringLiteral("Brolk editor patterns file (*.eap)|*.eap|All files (*.*)|*.*");
  (cdlPattern.*show)();
  return cdlPattern.FileName.toStdString();
}

void pattern::fbnSave_Click() {
  const std::string path = AskPath(&CommonDialog::ShowSave);
  if (!path.empty()) SavePatternFile(path);
}

void pattern::fbnLoad_Click() {
  const std::string path = AskPath(&CommonDialog::ShowOpen);
  if (path.empty()) return;
  switch (LoadPatternFile(path)) {
    case PatternLoad::NotFound:
      ShowMsgBox(QStringLiteral("Could not find the selected file."), kMsgExclamation,
                 QStringLiteral("Loading process aborted"));
      return;
    case PatternLoad::WrongHeader:
      ShowMsgBox(QStringLiteral("Wrong header bytes"), kMsgCritical,
                 QStringLiteral("Not an editor address pattern file"));
      break;
    case PatternLoad::Done:
      break;
  }
  RefreshPatternList();
}

// Exactly one of the two is checked.
void pattern::fbnRedraw_Click() {
  fbnRedraw.SetChecked(true);
  fbnBmp.SetChecked(false);
}

void pattern::fbnBmp_Click() {
  fbnBmp.SetChecked(true);
  fbnRedraw.SetChecked(false);
}

}  // namespace brolk
