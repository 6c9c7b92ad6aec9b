// SPDX-License-Identifier: MIT
#include <QAction>

#include "browser/windows/browser_control.h"
#include "browser/windows/open_rom.h"
#include "editor/slots.h"
#include "editor/windows/edit.h"
#include "editor/windows/editor.h"
#include "editor/windows/editor_control.h"
#include "editor/windows/tile_control.h"
#include "forms/keys.h"
#include "forms/screen.h"
#include "forms/windows.h"
#include "shell/windows/about.h"
#include "shell/windows/main_form.h"

namespace brolk {
namespace {

// One line of a menu: an item, or a separator with a name.
struct MenuLine {
  MenuItem* item;
  const char* separator = nullptr;
};

void FillMenu(QMenu& menu, const char* name, std::initializer_list<MenuLine> lines) {
  menu.setObjectName(QString::fromLatin1(name));
  menu.menuAction()->setObjectName(QString::fromLatin1(name));
  for (const MenuLine& line : lines) {
    if (line.item != nullptr) {
      menu.addAction(line.item);
    } else {
      menu.addSeparator()->setObjectName(QString::fromLatin1(line.separator));
    }
  }
}

// What a menu command makes sure of first.
enum class Prefix { None, Browser, Editor, Tile };

void RunPrefix(Prefix prefix) {
  auto& frame = The<MainForm>();
  switch (prefix) {
    case Prefix::None:
      return;
    case Prefix::Browser:
    case Prefix::Editor: {
      FlatButton& toggle = prefix == Prefix::Browser ? frame.fbnBrowser : frame.fbnEditor;
      if (toggle.Checked()) return;
      toggle.SetChecked(true);
      frame.UpdateToolWindows();
      return;
    }
    case Prefix::Tile:
      // Unlike the two others this does not check the button, so the tile tool stays hidden and the command
      // runs on it all the same. That is meant.
      if (!frame.fbnTile.Checked()) frame.UpdateToolWindows();
  }
}

void Invert(FlatButton& button) {
  button.SetChecked(!button.Checked());
}

struct Command {
  MenuItem& item;
  Prefix prefix;
  std::function<void()> action;
};

void Wire(std::initializer_list<Command> commands) {
  for (const Command& command : commands) {
    command.item.Click = [prefix = command.prefix, action = command.action] {
      RunPrefix(prefix);
      action();
    };
  }
}

}  // namespace

void MainForm::BuildMenus() {
  menuBar.setObjectName(QStringLiteral("menuBar"));
  menuBar.setNativeMenuBar(false);
  BuildRecentMenu();
  BuildBrowserMenu();
  BuildEditorMenu();
  BuildTileMenu();
  BuildHelpMenu();
  for (QMenu* menu : {&mnuBrowser, &mnuEditor, &mnuTile, &mnuHelp}) menuBar.addMenu(menu);
}

void MainForm::BuildRecentMenu() {
  FillMenu(mnuRecentMain, "mnuRecentMain", {});
  for (int number = 1; number <= kRecentCount; ++number) {
    MenuItem& item = mnuRecent[number - 1];
    mnuRecentMain.addAction(&item);
    item.setEnabled(false);
    item.Click = [number] { OpenRom(static_cast<std::uint8_t>(number)); };
  }
}

void MainForm::BuildBrowserMenu() {
  FillMenu(mnuBrowser, "mnuBrowser",
           {{&mnuOpen},
            {&mnuClose},
            {nullptr, "mnuBreak6"},
            {&mnuZoomIn},
            {&mnuZoomOut},
            {&mnuGrid},
            {nullptr, "mnuBreak7"},
            {&mnuExit}});
  mnuBrowser.insertMenu(mnuBrowser.actions().at(2), &mnuRecentMain);
  Wire({
      {mnuOpen, Prefix::Browser, [] { The<BrowserControl>().fbnOpenFile_MouseDown(kLeftButton, 0, 0, 0); }},
      {mnuClose, Prefix::Browser, [] { The<BrowserControl>().fbnCloseFile_Click(); }},
      {mnuZoomIn, Prefix::Browser, [] { The<BrowserControl>().fbnBrowserZoomIn_Click(); }},
      {mnuZoomOut, Prefix::Browser, [] { The<BrowserControl>().fbnBrowserZoomOut_Click(); }},
      // The state alone: the page follows at the next click of the button itself.
      {mnuGrid, Prefix::Browser, [] { Invert(The<BrowserControl>().fbnGrid); }},
      {mnuExit, Prefix::None, [] { QuitProgram(); }},
  });
}

void MainForm::BuildEditorMenu() {
  FillMenu(mnuEditor, "mnuEditor",
           {{&mnuSelectMode},
            {&mnuPaintMode},
            {&mnuFillMode},
            {nullptr, "mnuBreak2"},
            {&mnuSaveAll},
            {&mnuReloadAll},
            {&mnuClearAll},
            {nullptr, "mnuBreak1"},
            {&mnuEditorZoomIn},
            {&mnuEditorZoomOut},
            {&mnuResize},
            {&mnuEditorGrid},
            {&mnuNonCopied}});
  mnuSelectMode.SetChecked(true);
  Wire({
      {mnuSelectMode, Prefix::Editor, [this] { ChooseTool(kSelectTool); }},
      {mnuPaintMode, Prefix::Editor, [this] { ChooseTool(kPaintTool); }},
      {mnuFillMode, Prefix::Editor, [this] { ChooseTool(kFillTool); }},
      {mnuSaveAll, Prefix::Editor, [] { The<EditorControl>().fbnSaveEdit_Click(); }},
      {mnuReloadAll, Prefix::Editor, [] { The<EditorControl>().fbnReload_Click(); }},
      {mnuClearAll, Prefix::Editor, [] { The<EditorControl>().fbnEditClear_Click(); }},
      // The names of the two zoom procedures are crossed against what they do.
      {mnuEditorZoomIn, Prefix::Editor, [] { The<EditorControl>().fbnEditZoomOut_Click(); }},
      {mnuEditorZoomOut, Prefix::Editor, [] { The<EditorControl>().fbnEditZoomIn_Click(); }},
      {mnuResize, Prefix::Editor, [] { The<Editor>().fbnFit_Click(); }},
      // The state alone: the Editor follows at its next repaint.
      {mnuEditorGrid, Prefix::Editor, [] { Invert(The<EditorControl>().fbnEditorGrid); }},
      {mnuNonCopied, Prefix::Editor, [this] { mnuNonCopied_Click(); }},
  });
}

void MainForm::BuildTileMenu() {
  FillMenu(mnuTile, "mnuTile",
           {{&mnuTileSave},
            {&mnuTileSaveSelected},
            {&mnuTileSaveAddress},
            {nullptr, "mnuBreak3"},
            {&mnuTileReload},
            {&mnuTileClear},
            {nullptr, "mnuBreak4"},
            {&mnuTileMirror},
            {&mnuTileFlip},
            {&mnuTileRotate}});
  Wire({
      {mnuTileSave, Prefix::Tile, [] { The<TileControl>().fbnSaveTile_Click(); }},
      {mnuTileSaveSelected, Prefix::Tile, [] { The<TileControl>().fbnCopySelTile_Click(); }},
      {mnuTileSaveAddress, Prefix::Tile, [] { The<TileControl>().fbnCopyToAddress_Click(); }},
      {mnuTileReload, Prefix::Tile, [] { The<TileControl>().fbnReloadTile_Click(); }},
      {mnuTileClear, Prefix::Tile, [] { The<TileControl>().fbnDeleteSprite_Click(); }},
      // "Mirror" goes with Y and "Flip" with X: the pairs are meant.
      {mnuTileMirror, Prefix::Tile, [] { The<TileControl>().fbnFlipY_Click(); }},
      {mnuTileFlip, Prefix::Tile, [] { The<TileControl>().fbnFlipX_Click(); }},
      {mnuTileRotate, Prefix::Tile, [] { The<TileControl>().fbnRotate_Click(); }},
  });
}

void MainForm::BuildHelpMenu() {
  FillMenu(mnuHelp, "mnuHelp", {{&mnuHelpFile}, {&mnuOption}, {nullptr, "mnuBreak5"}, {&mnuAbout}});
  Wire({
      // Without a folder, so looked for in the current folder of the process; the toolbar's button opens
      // another file.
      {mnuHelpFile, Prefix::None, [] { ShellOpen(QStringLiteral("Brolk Plus Help file.chm")); }},
      {mnuOption, Prefix::None, [this] { fbnOptions_Click(); }},
      {mnuAbout, Prefix::None, [] { The<About>().Show(); }},
  });
}

void MainForm::ChooseTool(std::uint8_t tool) {
  EditTool = tool;
  auto& panel = The<EditorControl>();
  const struct {
    FlatButton& button;
    MenuItem& item;
  } rows[] = {{panel.fbnSelect, mnuSelectMode}, {panel.fbnPaint, mnuPaintMode}, {panel.fbnFill, mnuFillMode}};
  for (std::size_t index = 0; index < std::size(rows); ++index) {
    rows[index].button.SetChecked(index == tool);
    rows[index].item.SetChecked(index == tool);
  }
}

void MainForm::mnuNonCopied_Click() {
  FlatButton& button = The<EditorControl>().fbnNonCopied;
  mnuNonCopied.SetChecked(button.Checked());
  Invert(button);
  RedrawEditor();
}

}  // namespace brolk
