// SPDX-License-Identifier: MIT
#include "tile/windows/confirm_save.h"

#include "forms/windows.h"
#include "runtime/files.h"
#include "shell/windows/msg_box.h"
#include "shell/windows/options.h"
#include "tile/shared.h"

namespace brolk {
namespace {

QString Warning() {
  return QStringLiteral(
      "You are about to save to file. This will change the\rfile permanently.\r\r"
      "You should always keep a backup\rof the file you are altering.\r\rDo you want to save?");
}

}  // namespace

bool ConfirmSave() {
  if (!FileOpen) return false;
  if ((FileAttributes(FileName) & kAttributeHidden) != 0) {
    ShowMsgBox(QStringLiteral("The opened file is 'read only'."), kMsgExclamation,
               QStringLiteral("Could not write to file"));
    return false;
  }
  if (!The<Options>().fbnSaveWarning.Checked()) return true;
  return ShowMsgBox(Warning(), kMsgYesNo + kMsgQuestion, QStringLiteral("Save?")) == kAnswerYes;
}

}  // namespace brolk
