// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QDir>

#include "exchange/windows/bmp.h"
#include "exchange/windows/pattern.h"
#include "filetools/windows/favorites_tool.h"
#include "filetools/windows/file_info.h"
#include "forms/screen.h"
#include "forms/windows.h"
#include "palette/windows/color_set.h"
#include "shell/windows/about.h"
#include "shell/windows/main_form.h"
#include "shell/windows/options.h"
#include "tile/shared.h"

namespace brolk {
namespace {

constexpr double kToolbarHeight = 780;
constexpr double kButtonTop = 120;
constexpr double kButtonSide = 540;
constexpr double kSeparatorWidth = 150;

void ShowWithFocus(Form& window) {
  window.Show();
  window.SetFocus();
}

void ShowFavorites() {
  if (FileOpen) {
    ShowWithFocus(The<FavoritesTool>());
  } else {
    The<MainForm>().ToolNotAvailable();
  }
}

void ShowFileInfo() {
  if (!FileOpen) {
    The<MainForm>().ToolNotAvailable();
    return;
  }
  The<FileInfo>().Show();
  The<FileInfo>().DoReport();
  The<FileInfo>().SetFocus();
}

}  // namespace

void MainForm::BuildToolbar() {
  picToolbar.setFixedHeight(PixelsFromTwips(kToolbarHeight));
  const auto showTools = [this] { UpdateToolWindows(); };
  const struct {
    double left;
    FlatButton& button;
    std::function<void()> click;
  } rows[] = {
      {120, fbnBrowser, showTools},
      {720, fbnEditor, showTools},
      {1320, fbnTile, showTools},
      {1920, fbnSeparator1, {}},
      {2040, fbnEditPattern, [] { The<pattern>().Show(); }},
      {2640, fbnColorSet, [] { ShowWithFocus(The<ColorSet>()); }},
      {3240, fbnFavorite, ShowFavorites},
      {3840, fbnFileInfo, ShowFileInfo},
      {4440, fbnBmpImport, ImportBmp},
      {5040, fbnBmpExport, ExportBmp},
      {5640, fbnSeparator2, {}},
      {5760, fbnHelp, [this] { fbnHelp_Click(); }},
      {6360, fbnOptions, [this] { fbnOptions_Click(); }},
      {6960, fbnAbout, [] { The<About>().Show(); }},
  };
  for (const auto& row : rows) {
    const bool separator = &row.button == &fbnSeparator1 || &row.button == &fbnSeparator2;
    Place(row.button, row.left, kButtonTop, separator ? kSeparatorWidth : kButtonSide, kButtonSide);
    row.button.Click = row.click;
  }
}

// The menu opens another file: that difference is meant.
void MainForm::fbnHelp_Click() {
  ShellOpen(QCoreApplication::applicationDirPath() + QDir::separator() +
            QStringLiteral("BrolkPlus-Help.chm"));
}

void MainForm::fbnOptions_Click() {
  The<Options>().ShowColors();
  The<Options>().Show();
}

}  // namespace brolk
