// SPDX-License-Identifier: MIT
// brolk_pictures ROM FOLDER: opens a ROM, shows every window and keeps a picture of each in the folder.
#include <QDir>
#include <QMouseEvent>
#include <QTimer>
#include <cstdio>

#include "browser/windows/browser.h"
#include "browser/windows/browser_control.h"
#include "editor/windows/editor.h"
#include "editor/windows/editor_control.h"
#include "editor/windows/tile_control.h"
#include "exchange/windows/c_output.h"
#include "exchange/windows/pattern.h"
#include "filetools/windows/favorites_tool.h"
#include "filetools/windows/file_info.h"
#include "forms/application.h"
#include "forms/common_dialog.h"
#include "forms/keys.h"
#include "forms/windows.h"
#include "palette/palette_model.h"
#include "palette/windows/color_dialog.h"
#include "palette/windows/color_set.h"
#include "palette/windows/palette_control.h"
#include "shell/windows/about.h"
#include "shell/windows/main_form.h"
#include "shell/windows/msg_box.h"
#include "shell/windows/new_msg_box.h"
#include "shell/windows/options.h"
#include "tile/shared.h"

namespace {

using namespace brolk;

QString folder;

void Keep(QWidget& window, const char* name) {
  QCoreApplication::processEvents();
  const QString path = folder + QLatin1Char('/') + QLatin1String(name) + QStringLiteral(".png");
  if (!window.grab().save(path)) std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
}

void Open(const QString& rom) {
  CommonDialog::Answer = [&rom](CommonDialog& dialog, CommonDialog::Kind) { dialog.FileName = rom; };
  The<BrowserControl>().fbnOpenFile_MouseDown(kLeftButton, 0, 0, 0);
  CommonDialog::Answer = nullptr;
}

// Takes the first page's tiles into the Editor, one double click each.
void FillEditor() {
  for (int line = 0; line < MainLines; ++line) {
    for (int column = 0; column < MainRows; ++column) {
      SelColumn = static_cast<std::int16_t>(column);
      SelLine = static_cast<std::int16_t>(line);
      EditSelColumn = static_cast<std::int16_t>(column);
      EditSelLine = static_cast<std::int16_t>(line);
      The<Browser>().Form_DblClick();
    }
  }
  SelColumn = SelLine = EditSelColumn = EditSelLine = 1;
  The<Browser>().Form_MouseDown(kLeftButton, 0, 30, 30);
  The<Editor>().Form_MouseDown(kLeftButton, 0, 30, 30);
}

void KeepTools() {
  The<ColorSet>().fbnAddSet.click();
  The<ColorSet>().fbnRandomPal.click();
  The<FavoritesTool>().fbnAddFavorite.click();
  The<pattern>().fbnAddPat.click();
  The<ColorDialog>().SetColor(-1, 5, Palette[5]);
  The<MainForm>().fbnOptions_Click();
  The<FileInfo>().DoReport();
  const std::pair<Form*, const char*> tools[] = {
      {&The<ColorSet>(), "color-set"}, {&The<FavoritesTool>(), "favorites"},
      {&The<pattern>(), "pattern"},    {&The<ColorDialog>(), "color-dialog"},
      {&The<Options>(), "options"},    {&The<FileInfo>(), "file-info"},
      {&The<About>(), "about"},
  };
  for (const auto& [form, name] : tools) {
    form->Show();
    Keep(*form, name);
    form->Hide();
  }
}

void KeepMessageBox() {
  QTimer::singleShot(200, [] {
    Keep(The<NewMsgBox>(), "message-box");
    The<NewMsgBox>().close();
  });
  ShowMsgBox(QStringLiteral("Are you sure you want to close the opened file?"), 36,
             QStringLiteral("Close file?"));
}

void TakePictures(const QString& rom) {
  The<MainForm>();
  Keep(The<MainForm>(), "start");
  Open(rom);
  FillEditor();
  Keep(The<MainForm>(), "main");
  const std::pair<Form*, const char*> children[] = {
      {&The<Browser>(), "browser"},
      {&The<BrowserControl>(), "browser-control"},
      {&The<Editor>(), "editor"},
      {&The<EditorControl>(), "editor-control"},
      {&The<TileControl>(), "tile-control"},
      {&The<PaletteControl>(), "palette"},
  };
  for (const auto& [form, name] : children) Keep(*form, name);
  The<COutPut>().Show();
  Keep(The<COutPut>(), "c-converter");
  The<COutPut>().Hide();
  KeepTools();
  KeepMessageBox();
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount != 3) {
    std::fprintf(stderr, "usage: brolk_pictures ROM FOLDER\n");
    return 2;
  }
  const QString rom = QDir(QString::fromLocal8Bit(arguments[1])).absolutePath();
  folder = QDir(QString::fromLocal8Bit(arguments[2])).absolutePath();
  QDir().mkpath(folder);
  int one = 1;
  Application application(one, arguments);
  TakePictures(rom);
  return 0;
}
