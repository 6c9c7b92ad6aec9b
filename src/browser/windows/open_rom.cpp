// SPDX-License-Identifier: MIT
#include "browser/windows/open_rom.h"

#include <string>

#include "browser/recent_files.h"
#include "browser/rom_kinds.h"
#include "browser/windows/browser.h"
#include "browser/windows/browser_control.h"
#include "browser/windows/page_view.h"
#include "editor/slots.h"
#include "editor/windows/tile_control.h"
#include "forms/windows.h"
#include "runtime/files.h"
#include "shell/reg_keys.h"
#include "shell/windows/main_form.h"
#include "shell/windows/msg_box.h"
#include "tile/shared.h"

namespace brolk {
namespace {

std::string RecentName(int entry) {
  return "LastOpen" + std::to_string(entry);
}

MenuItem& RecentItem(int entry) {
  return The<MainForm>().mnuRecent[entry - 1];
}

std::string Setting(const std::string& name) {
  return RegGetString(kLocalMachine, kSettingsKey, name);
}

void StoreSetting(const std::string& name, std::string value) {
  RegSaveString(kLocalMachine, kSettingsKey, name, value);
}

// Asks about the open file and closes its handle. FileOpen stays true until the new file has been looked for.
bool AgreesToClose() {
  const auto text = QStringLiteral(
      "Before you can open a new file, you have to close the opened file.\r\r"
      "Are you sure you want to close the opened file?");
  if (ShowMsgBox(text, kMsgYesNo | kMsgQuestion, QStringLiteral("Close file?")) != kAnswerYes) return false;
  _lclose(hFile);
  return true;
}

// A cancelled dialog leaves an empty name.
std::string NameFromDialog(const std::string& folder) {
  CommonDialog& dialog = The<MainForm>().cdlMain;
  dialog.InitDir = QString::fromStdString(folder);
  dialog.FileName.clear();
  dialog.Filter = QString::fromUtf8(kRomFilter.data(), static_cast<qsizetype>(kRomFilter.size()));
  dialog.ShowOpen();
  return dialog.FileName.toStdString();
}

std::string NameToOpen(std::uint8_t recent) {
  const std::string folder = Setting("RomPath");
  const bool fromList = recent >= 1 && recent <= kRecentFileCount && RecentItem(recent).isEnabled();
  return fromList ? Setting(RecentName(recent)) : NameFromDialog(folder);
}

RecentFiles ReadRecentFiles() {
  RecentFiles files;
  for (int entry = 1; entry <= kRecentFileCount; ++entry) {
    RecentFile& file = files[static_cast<std::size_t>(entry - 1)];
    file.enabled = RecentItem(entry).isEnabled();
    if (file.enabled) file.path = Setting(RecentName(entry));
  }
  return files;
}

void KeepInRecentFiles() {
  for (const RecentWrite& write : WritesToTop(ReadRecentFiles(), FileName)) {
    StoreSetting(RecentName(write.entry), write.path);
    RecentItem(write.entry).setEnabled(true);
    RecentItem(write.entry).SetCaption(QString::fromStdString(write.path));
  }
  const std::size_t separator = LastSeparator(FileName);
  StoreSetting("RomPath", separator == std::string::npos ? std::string() : FileName.substr(0, separator));
}

// Read-only and nothing else opens for reading. With any further attribute the file is opened for writing,
// which can fail: it then counts as open all the same and shows zeros. That is meant.
void OpenUntilClosed() {
  const bool readOnly = FileAttributes(FileName) == kAttributeReadOnly;
  hFile = OpenFile(FileName, readOnly ? kOpenRead : kOpenReadWrite);
  FileOpen = true;
  FileLength = FileLengthOf(FileName);
  BrowserAddress = 0;
  The<Browser>().vsbAddress.SetValue(0);
}

void TakeFile() {
  KeepInRecentFiles();
  if (const auto position = ModePositionFor(FileName)) The<BrowserControl>().cboMode.SetListIndex(*position);
  OpenUntilClosed();
}

// Slots that have content keep their pixels and lose their place in the file.
void LoseSlotAddresses() {
  for (EditSlot& slot : EditSlots) {
    if (slot.Address != kNonCopied) slot.Address = kUnaddressed;
  }
}

void ShowOpenedFile() {
  const QString name = QString::fromStdString(FileName);
  The<MainForm>().lblInfo.SetText(QStringLiteral("Opened ") + name + QStringLiteral(" (") +
                                  QString::number(FileLength) + QStringLiteral(" bytes)"));
  The<TileControl>().LoadTile(-1);
  SetScrollRange();
  ReloadPage();
  The<BrowserControl>().SetFocus();
  The<Browser>().SetFocus();
}

}  // namespace

void OpenRom(std::uint8_t Recent) {
  if (FileOpen && !AgreesToClose()) return;
  FileName = NameToOpen(Recent);
  if (FileName.empty() || OpenFile(FileName, kOpenExist) < 0) {
    FileOpen = false;
  } else {
    TakeFile();
  }
  LoseSlotAddresses();
  if (FileOpen) ShowOpenedFile();
}

}  // namespace brolk
