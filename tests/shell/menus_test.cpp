// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QMenu>
#include <QTest>

#include "browser/windows/browser.h"
#include "browser/windows/browser_control.h"
#include "editor/slots.h"
#include "editor/windows/editor.h"
#include "editor/windows/editor_control.h"
#include "editor/windows/tile_control.h"
#include "forms/application.h"
#include "forms/screen.h"
#include "forms/windows.h"
#include "palette/windows/palette_control.h"
#include "shell/reg_keys.h"
#include "shell/windows/about.h"
#include "shell/windows/main_form.h"
#include "shell/windows/options.h"
#include "support/program.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

class Menus : public ::testing::Test {
 protected:
  void SetUp() override { StartProgram(); }
  MainForm& frame() { return The<MainForm>(); }

  // Runs a menu command as the menu does.
  void Choose(const char* name) {
    auto* action = frame().findChild<QAction*>(QString::fromLatin1(name));
    ASSERT_NE(action, nullptr) << name;
    action->trigger();
  }
  void TurnOff(FlatButton& tool) {
    tool.SetChecked(false);
    frame().UpdateToolWindows();
  }
  void OpenGame() { OpenRomFile(MakeFile("game.gb", std::string(4096, 'x'))); }
};

struct Item {
  const char* name;
  const char* caption;
};

void ExpectMenu(const QMenu& menu, const char* name, const char* caption, const std::vector<Item>& items) {
  SCOPED_TRACE(name);
  EXPECT_EQ(menu.objectName(), name);
  EXPECT_EQ(menu.title(), caption);
  ASSERT_EQ(menu.actions().size(), static_cast<qsizetype>(items.size()));
  for (std::size_t index = 0; index < items.size(); ++index) {
    const QAction* action = menu.actions().at(static_cast<qsizetype>(index));
    EXPECT_EQ(action->objectName(), items[index].name);
    if (std::string(items[index].caption) == "-") {
      EXPECT_TRUE(action->isSeparator()) << items[index].name;
    } else {
      EXPECT_FALSE(action->isSeparator()) << items[index].name;
      EXPECT_EQ(action->text(), items[index].caption);
    }
    EXPECT_TRUE(action->shortcut().isEmpty()) << items[index].name;
  }
}

TEST_F(Menus, TheMenuBarHasFourMenus) {
  const QList<QAction*> menus = frame().menuBar.actions();
  ASSERT_EQ(menus.size(), 4);
  const char* const names[] = {"mnuBrowser", "mnuEditor", "mnuTile", "mnuHelp"};
  for (int index = 0; index < 4; ++index) EXPECT_EQ(menus[index]->menu()->objectName(), names[index]);
}

TEST_F(Menus, TheTreeHasItsItemsInOrder) {
  ExpectMenu(frame().mnuBrowser, "mnuBrowser", "Browser",
             {{"mnuOpen", "Open file"},
              {"mnuClose", "Close file"},
              {"mnuRecentMain", "Recent files"},
              {"mnuBreak6", "-"},
              {"mnuZoomIn", "Zoom in"},
              {"mnuZoomOut", "Zoom out"},
              {"mnuGrid", "Grid on/off"},
              {"mnuBreak7", "-"},
              {"mnuExit", "Exit"}});
  ExpectMenu(frame().mnuRecentMain, "mnuRecentMain", "Recent files",
             {{"mnuRecent1", "Recent 1"},
              {"mnuRecent2", "Recent 2"},
              {"mnuRecent3", "Recent 3"},
              {"mnuRecent4", "Recent 4"},
              {"mnuRecent5", "Recent 5"},
              {"mnuRecent6", "Recent 6"},
              {"mnuRecent7", "Recent 7"},
              {"mnuRecent8", "Recent 8"},
              {"mnuRecent9", "Recent 9"}});
  ExpectMenu(frame().mnuEditor, "mnuEditor", "Editor",
             {{"mnuSelectMode", "Select Mode"},
              {"mnuPaintMode", "Paint Mode"},
              {"mnuFillMode", "Fill Mode"},
              {"mnuBreak2", "-"},
              {"mnuSaveAll", "Save all"},
              {"mnuReloadAll", "Reload all"},
              {"mnuClearAll", "Clear all"},
              {"mnuBreak1", "-"},
              {"mnuEditorZoomIn", "Zoom in"},
              {"mnuEditorZoomOut", "Zoom out"},
              {"mnuResize", "Resize"},
              {"mnuEditorGrid", "Grid on/off"},
              {"mnuNonCopied", "Non-copied tiles"}});
  ExpectMenu(frame().mnuTile, "mnuTile", "Tile",
             {{"mnuTileSave", "Save tile"},
              {"mnuTileSaveSelected", "Save tile to selection"},
              {"mnuTileSaveAddress", "Save tile to address"},
              {"mnuBreak3", "-"},
              {"mnuTileReload", "Reload tile"},
              {"mnuTileClear", "Clear tiles"},
              {"mnuBreak4", "-"},
              {"mnuTileMirror", "Mirror tile"},
              {"mnuTileFlip", "Flip tile"},
              {"mnuTileRotate", "Rotate tile"}});
  ExpectMenu(frame().mnuHelp, "mnuHelp", "Help",
             {{"mnuHelpFile", "Help"}, {"mnuOption", "Options"}, {"mnuBreak5", "-"}, {"mnuAbout", "About"}});
}

TEST_F(Menus, OnlyFreeRecentEntriesAreDisabled) {
  for (const QMenu* menu : {&frame().mnuBrowser, &frame().mnuEditor, &frame().mnuTile, &frame().mnuHelp,
                            &frame().mnuRecentMain}) {
    for (const QAction* action : menu->actions()) {
      EXPECT_EQ(action->isEnabled(), menu != &frame().mnuRecentMain) << action->objectName().toStdString();
    }
  }
}

TEST_F(Menus, MarksAtTheStart) {
  EXPECT_TRUE(frame().mnuSelectMode.Checked());
  EXPECT_TRUE(frame().mnuSelectMode.isChecked());
  EXPECT_FALSE(frame().mnuPaintMode.Checked());
  EXPECT_FALSE(frame().mnuFillMode.Checked());
  EXPECT_TRUE(frame().mnuNonCopied.Checked()) << "the inverse of the button";
}

TEST_F(Menus, OpenFileTurnsTheBrowserOnBeforeTheDialogOpens) {
  TurnOff(frame().fbnBrowser);
  bool onWhenAsked = false;
  CommonDialog::Answer = [&](CommonDialog& dialog, CommonDialog::Kind kind) {
    EXPECT_EQ(dialog.objectName(), "cdlMain");
    EXPECT_EQ(kind, CommonDialog::Kind::Open);
    onWhenAsked = frame().fbnBrowser.Checked() && The<BrowserControl>().Visible();
  };
  Choose("mnuOpen");
  CommonDialog::Answer = nullptr;
  EXPECT_TRUE(onWhenAsked);
}

TEST_F(Menus, CloseFileAsksAndCloses) {
  OpenGame();
  TurnOff(frame().fbnBrowser);
  const auto boxes = WithAnswers({6}, [&] { Choose("mnuClose"); });
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].title, "Brolk Plus - Close file?");
  EXPECT_FALSE(FileOpen);
  EXPECT_TRUE(frame().fbnBrowser.Checked());
}

TEST_F(Menus, CloseFileWithoutOneIsSilent) {
  WithAnswers({}, [&] { Choose("mnuClose"); });
}

TEST_F(Menus, BrowserZoomRaisesAndLowers) {
  OpenGame();
  TurnOff(frame().fbnBrowser);
  Choose("mnuZoomIn");
  EXPECT_EQ(MainZoom, 4);
  EXPECT_TRUE(frame().fbnBrowser.Checked());
  Choose("mnuZoomOut");
  Choose("mnuZoomOut");
  EXPECT_EQ(MainZoom, 2);
}

TEST_F(Menus, BrowserGridInvertsTheButtonAlone) {
  TurnOff(frame().fbnBrowser);
  Choose("mnuGrid");
  EXPECT_FALSE(The<BrowserControl>().fbnGrid.Checked());
  EXPECT_TRUE(ShowGrid) << "no click is raised";
  EXPECT_TRUE(frame().fbnBrowser.Checked());
  Choose("mnuGrid");
  EXPECT_TRUE(The<BrowserControl>().fbnGrid.Checked());
}

TEST_F(Menus, ARecentEntryOpensItsFileDirectly) {
  const std::string path = MakeFile("game.gb", std::string(4096, 'x'));
  std::string stored = path;
  RegSaveString(kLocalMachine, kSettingsKey, "LastOpen4", stored);
  frame().FillRecentMenu();
  TurnOff(frame().fbnBrowser);
  Choose("mnuRecent4");
  EXPECT_TRUE(FileOpen);
  EXPECT_EQ(FileName, path);
  EXPECT_FALSE(frame().fbnBrowser.Checked()) << "no prefix";
  EXPECT_TRUE(The<Browser>().Visible()) << "the page shows";
  EXPECT_FALSE(The<BrowserControl>().Visible()) << "the panel stays hidden";
}

TEST_F(Menus, AFreeRecentEntryCannotBeChosen) {
  Choose("mnuRecent1");
  EXPECT_FALSE(FileOpen);
}

TEST_F(Menus, ToolModesSetToolButtonsAndMarks) {
  const char* const items[] = {"mnuSelectMode", "mnuPaintMode", "mnuFillMode"};
  for (const int tool : {1, 2, 0, 0, 2, 1}) {
    Choose(items[tool]);
    auto& panel = The<EditorControl>();
    EXPECT_EQ(EditTool, tool);
    const FlatButton* const buttons[] = {&panel.fbnSelect, &panel.fbnPaint, &panel.fbnFill};
    const MenuItem* const marks[] = {&frame().mnuSelectMode, &frame().mnuPaintMode, &frame().mnuFillMode};
    for (int index = 0; index < 3; ++index) {
      EXPECT_EQ(buttons[index]->Checked(), index == tool);
      EXPECT_EQ(marks[index]->Checked(), index == tool);
      EXPECT_EQ(marks[index]->isChecked(), index == tool) << "as the menu shows it";
    }
  }
}

TEST_F(Menus, EditorCommandsTurnTheEditorOn) {
  for (const char* name : {"mnuSelectMode", "mnuPaintMode", "mnuFillMode", "mnuEditorZoomIn",
                           "mnuEditorZoomOut", "mnuResize", "mnuEditorGrid", "mnuNonCopied"}) {
    TurnOff(frame().fbnEditor);
    Choose(name);
    EXPECT_TRUE(frame().fbnEditor.Checked()) << name;
    EXPECT_TRUE(The<Editor>().Visible()) << name;
    EXPECT_TRUE(The<EditorControl>().Visible()) << name;
  }
}

TEST_F(Menus, SaveAllWithoutAFileSavesNothing) {
  TurnOff(frame().fbnEditor);
  Choose("mnuSaveAll");
  EXPECT_EQ(frame().lblInfo.Text(), "Saved0 tiles to file");
  EXPECT_TRUE(frame().fbnEditor.Checked());
}

TEST_F(Menus, ReloadAllAndClearAllAskFirst) {
  auto boxes = WithAnswers({7}, [&] { Choose("mnuReloadAll"); });
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].text, "Do you really want to reload all tiles?");
  boxes = WithAnswers({7}, [&] { Choose("mnuClearAll"); });
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].text, "Really clear all tiles in the editor?");
}

TEST_F(Menus, EditorZoomInEnlargesAndZoomOutReduces) {
  Choose("mnuEditorZoomIn");
  EXPECT_EQ(MainEdZoom, 4);
  Choose("mnuEditorZoomOut");
  Choose("mnuEditorZoomOut");
  EXPECT_EQ(MainEdZoom, 2);
}

TEST_F(Menus, ResizeFitsTheEditor) {
  The<Editor>().SetWidth(9000);
  The<Editor>().SetHeight(9000);
  Choose("mnuResize");
  EXPECT_EQ(The<Editor>().ScaleWidth(), 3 * 128 + 17);
  EXPECT_EQ(The<Editor>().ScaleHeight(), 3 * 128 + 17);
}

TEST_F(Menus, EditorGridInvertsTheButton) {
  Choose("mnuEditorGrid");
  EXPECT_FALSE(The<EditorControl>().fbnEditorGrid.Checked());
  Choose("mnuEditorGrid");
  EXPECT_TRUE(The<EditorControl>().fbnEditorGrid.Checked());
}

TEST_F(Menus, NonCopiedTilesTurnsTheButtonAndMarksTheInverse) {
  Choose("mnuNonCopied");
  EXPECT_TRUE(The<EditorControl>().fbnNonCopied.Checked());
  EXPECT_FALSE(frame().mnuNonCopied.Checked());
  EXPECT_FALSE(frame().mnuNonCopied.isChecked());
  Choose("mnuNonCopied");
  EXPECT_FALSE(The<EditorControl>().fbnNonCopied.Checked());
  EXPECT_TRUE(frame().mnuNonCopied.Checked());
  EXPECT_TRUE(frame().mnuNonCopied.isChecked());
}

TEST_F(Menus, NonCopiedTilesPaintsTheEditor) {
  const ColorValue before = The<Editor>().Canvas().GetPixel(4, 4);
  Choose("mnuNonCopied");
  EXPECT_EQ(The<Editor>().Canvas().GetPixel(4, 4), 0x800080);
  Choose("mnuNonCopied");
  EXPECT_EQ(The<Editor>().Canvas().GetPixel(4, 4), before);
}

class TileMenu : public Menus {
 protected:
  // A file, and its first tile in slot 0 with a pixel at the top left corner.
  void SetUp() override {
    Menus::SetUp();
    OpenGame();
    EditSlot& slot = EditSlots[0];
    slot.Address = 0;
    slot.Pixels.fill(0);
    slot.Pixels[0] = 1;
    The<TileControl>().LoadTile(0);
  }
  // Where the pixel is now, -1 if it has gone.
  int PixelAt() {
    for (int at = 0; at < 64; ++at) {
      if (EditSlots[0].Pixels[at] == 1) return at;
    }
    return -1;
  }
};

TEST_F(TileMenu, MirrorGoesWithYAndFlipWithX) {
  Choose("mnuTileMirror");
  EXPECT_EQ(PixelAt(), 56) << "top to bottom";
  Choose("mnuTileFlip");
  EXPECT_EQ(PixelAt(), 63) << "left to right";
}

TEST_F(TileMenu, RotateTurnsTheTile) {
  Choose("mnuTileRotate");
  EXPECT_EQ(PixelAt(), 56);
}

TEST_F(TileMenu, ClearEmptiesTheTile) {
  Choose("mnuTileClear");
  EXPECT_EQ(EditSlots[0].Address, kNonCopied);
  EXPECT_EQ(The<TileControl>().txtAddress.Text(), "n/a");
}

TEST_F(TileMenu, ReloadReadsTheTileAgain) {
  Choose("mnuTileReload");
  // "x" is 01111000 in both planes.
  for (int at = 0; at < 8; ++at) EXPECT_EQ(EditSlots[0].Pixels[at], at >= 1 && at <= 4 ? 3 : 0);
}

TEST_F(TileMenu, TheSavesAskAndWrite) {
  for (const char* name : {"mnuTileSave", "mnuTileSaveSelected", "mnuTileSaveAddress"}) {
    WithAnswers({7}, [&] { Choose(name); });
  }
  EXPECT_EQ(FileBytes(FileName)[0], 'x');
  WithAnswers({6}, [&] { Choose("mnuTileSave"); });
  EXPECT_EQ(FileBytes(FileName)[0], 0x80);
  SelColumn = 3;
  WithAnswers({6}, [&] { Choose("mnuTileSaveSelected"); });
  EXPECT_EQ(FileBytes(FileName)[48], 0x80);
  The<TileControl>().txtAddress.SetText("160");
  WithAnswers({6}, [&] { Choose("mnuTileSaveAddress"); });
  EXPECT_EQ(FileBytes(FileName)[160], 0x80);
}

// Unlike the other prefixes the one of the tile menu does not check the button.
TEST_F(TileMenu, ACommandWithTheToolOffRunsAndLeavesItOff) {
  TurnOff(frame().fbnTile);
  Choose("mnuTileFlip");
  EXPECT_EQ(PixelAt(), 7);
  EXPECT_FALSE(frame().fbnTile.Checked());
  EXPECT_FALSE(The<TileControl>().Visible());
}

// What the prefix does run is the click of the toggle, which puts the windows in order.
TEST_F(TileMenu, ACommandWithTheToolOffPutsTheWindowsInOrder) {
  TurnOff(frame().fbnTile);
  The<PaletteControl>().Hide();
  Choose("mnuTileFlip");
  EXPECT_TRUE(The<PaletteControl>().Visible());
  ClickControl(frame().fbnTile);
  The<PaletteControl>().Hide();
  Choose("mnuTileFlip");
  EXPECT_FALSE(The<PaletteControl>().Visible()) << "with the tool on nothing is put in order";
}

TEST_F(Menus, TheHelpMenuOpensOptionsAndAbout) {
  Choose("mnuOption");
  EXPECT_TRUE(The<Options>().Visible());
  EXPECT_EQ(The<Options>().lblEmptyColor.BackColor(), 0x800080);
  Choose("mnuAbout");
  EXPECT_TRUE(The<About>().Visible());
}

TEST_F(Menus, AChosenMarkIsNotTurnedOverByTheToolkit) {
  Choose("mnuSelectMode");
  Choose("mnuSelectMode");
  EXPECT_TRUE(frame().mnuSelectMode.isChecked());
}

}  // namespace
}  // namespace brolk::test
