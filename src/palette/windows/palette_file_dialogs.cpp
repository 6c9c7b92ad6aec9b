// SPDX-License-Identifier: MIT
#include "palette/windows/palette_file_dialogs.h"

#include "forms/windows.h"
#include "importers/palette_kinds.h"
#include "palette/windows/color_set.h"
#include "shell/reg_keys.h"
#include "shell/windows/msg_box.h"

namespace brolk {
namespace {

constexpr std::string_view kFolderSetting = "PaletteDir";

static_assert(static_cast<std::int16_t>(NoticeIcon::Critical) == kMsgCritical);
static_assert(static_cast<std::int16_t>(NoticeIcon::Question) == kMsgQuestion);
static_assert(static_cast<std::int16_t>(NoticeIcon::Exclamation) == kMsgExclamation);

std::uint8_t ShowNotice(const Notice& notice, std::int16_t buttons) {
  return ShowMsgBox(QString::fromStdString(notice.text),
                    static_cast<std::int16_t>(static_cast<std::int16_t>(notice.icon) + buttons),
                    QString::fromStdString(notice.title));
}

// The dialog as both actions begin: no name, and the folder of the last use.
CommonDialog& PrepareDialog(const std::string& filter) {
  CommonDialog& dialog = The<ColorSet>().cdlColorSet;
  dialog.FileName.clear();
  dialog.Filter = QString::fromStdString(filter);
  dialog.InitDir = QString::fromStdString(RegGetString(kLocalMachine, kSettingsKey, kFolderSetting));
  return dialog;
}

void StoreFolder(const std::string& path) {
  std::string folder(FolderOf(path));
  RegSaveString(kLocalMachine, kSettingsKey, kFolderSetting, folder);
}

}  // namespace

void LoadColorSets() {
  CommonDialog& dialog = PrepareDialog(LoadFilter());
  dialog.MustExist = true;
  dialog.ShowOpen();
  const std::string path = dialog.FileName.toStdString();
  if (path.empty()) return;
  StoreFolder(path);
  const LoadOutcome outcome = LoadPaletteFile(
      dialog.FilterIndex,
      {.file = FileSource::AtPath(path),
       .fileTitle = dialog.FileTitle.toStdString(),
       .answerYes = [](const Notice& question) { return ShowNotice(question, kMsgYesNo) == kAnswerYes; }});
  if (outcome.notice) ShowNotice(*outcome.notice, kMsgOkOnly);
  if (outcome.refreshList) The<ColorSet>().RefreshSetList();
}

void SaveColorSets() {
  CommonDialog& dialog = PrepareDialog(SaveFilter());
  dialog.ShowSave();
  const std::string path = dialog.FileName.toStdString();
  if (path.empty()) return;
  StoreFolder(path);
  SavePaletteFile(dialog.FilterIndex, path);
}

}  // namespace brolk
