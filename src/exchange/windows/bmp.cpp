// SPDX-License-Identifier: MIT
#include "exchange/windows/bmp.h"

#include "browser/windows/page_view.h"
#include "editor/windows/edit.h"
#include "forms/windows.h"
#include "palette/windows/palette_panel.h"
#include "runtime/files.h"
#include "shell/windows/main_form.h"
#include "shell/windows/msg_box.h"

namespace brolk {
namespace {

// The path that the main window's dialog gives, empty after a cancel.
std::string AskPath(void (CommonDialog::*show)()) {
  CommonDialog& dialog = The<MainForm>().cdlMain;
  dialog.FileName.clear();
  dialog.Filter = QStringLiteral("Bitmap file 128x128x256 colors (*.bmp)|*.bmp");
  (dialog.*show)();
  return dialog.FileName.toStdString();
}

void Refuse(const QString& what) {
  ShowMsgBox(QStringLiteral("Only 128x128 pixel 256 colors Bmp files can be imported."), kMsgCritical,
             QStringLiteral("Invalid ") + what);
}

bool MayOverwrite(const std::string& path) {
  if (OpenFile(path, kOpenExist) < 0) return true;
  return ShowMsgBox(QStringLiteral("Overwrite existing file?"), kMsgYesNo + kMsgQuestion,
                    QStringLiteral("File already exists")) == kAnswerYes;
}

}  // namespace

void ImportBmp() {
  const std::string path = AskPath(&CommonDialog::ShowOpen);
  if (path.empty()) return;
  switch (ImportBmpFile(FileSource::AtPath(path))) {
    case BmpImport::WrongSize:
      Refuse(QStringLiteral("file size"));
      return;
    case BmpImport::WrongHeader:
      Refuse(QStringLiteral("header"));
      return;
    case BmpImport::Done:
      PaintPalettePanel();
      RedrawEditor();
      ReloadPage();
  }
}

void ExportBmp() {
  const std::string path = AskPath(&CommonDialog::ShowSave);
  if (path.empty() || !MayOverwrite(path)) return;
  ExportBmpFile(path);
}

}  // namespace brolk
