// SPDX-License-Identifier: MIT
#pragma once

#include <QMdiArea>
#include <QMenuBar>
#include <cstdint>

#include "forms/background_panel.h"
#include "forms/common_dialog.h"
#include "forms/flat_button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/menu.h"

namespace brolk {

inline constexpr int kRecentCount = 9;

// The main window: a frame around the child windows, with toolbar, menus and info panel. Its load event is
// the start of the program.
class MainForm final : public Form {
 public:
  MainForm();

  // Shows and hides the child windows after the three toggle buttons and FileOpen.
  void UpdateToolWindows();
  // Tells that a tool needs an open file.
  void ToolNotAvailable();
  // Fills the recent menu from the settings.
  void FillRecentMenu();
  // Frees surfaces, file and windows; a second run is harmless. Saves nothing and asks nothing.
  static void QuitProgram();

  // The Editor's tool (EditTools), with the buttons of the Editor panel and the marks of the menu.
  void ChooseTool(std::uint8_t tool);

  void fbnHelp_Click();
  void fbnOptions_Click();
  void mnuNonCopied_Click();

  void Form_Load() override;
  void Form_Resize() override;
  void FrameClosed() override;
  void Form_KeyDown(int keyCode, int shift) override;

  // The toolbar.
  BackgroundPanel picToolbar{*this, "picToolbar", "background-toolbar"};
  FlatButton fbnBrowser{picToolbar, "fbnBrowser", "browser", "Show/Hide the Browser and its controls",
                        FlatButton::Kind::Toggle};
  FlatButton fbnEditor{picToolbar, "fbnEditor", "editor", "Show/Hide the Editor and its controls",
                       FlatButton::Kind::Toggle};
  FlatButton fbnTile{picToolbar, "fbnTile", "tile-tool", "Show/Hide the Tile Tool", FlatButton::Kind::Toggle};
  FlatButton fbnSeparator1{picToolbar, "fbnSeparator1", "", "", FlatButton::Kind::Separator};
  FlatButton fbnEditPattern{picToolbar, "fbnEditPattern", "pattern", "Editor Address Pattern tool"};
  FlatButton fbnColorSet{picToolbar, "fbnColorSet", "color-set", "Color Set tool"};
  FlatButton fbnFavorite{picToolbar, "fbnFavorite", "favorites", "Show Favorites"};
  FlatButton fbnFileInfo{picToolbar, "fbnFileInfo", "file-info", "Show File info"};
  FlatButton fbnBmpImport{picToolbar, "fbnBmpImport", "bmp-import", "Import a Bmp file into the editor"};
  FlatButton fbnBmpExport{picToolbar, "fbnBmpExport", "bmp-export", "Export the editor to a Bmp file"};
  FlatButton fbnSeparator2{picToolbar, "fbnSeparator2", "", "", FlatButton::Kind::Separator};
  FlatButton fbnHelp{picToolbar, "fbnHelp", "help", "Show Help file"};
  FlatButton fbnOptions{picToolbar, "fbnOptions", "options", "Options"};
  FlatButton fbnAbout{picToolbar, "fbnAbout", "about", "About Brolk Plus"};

  // The area of the child windows.
  QMdiArea mdiArea{this};

  // The info panel.
  QWidget picInfo{this};
  Label lblInfo{picInfo, "lblInfo", "Info"};
  Label lblAddress{picInfo, "lblAddress", "Address: 0"};
  Label lblPosition{picInfo, "lblPosition", "X: 0   Y: 0"};
  Label lblColor{picInfo, "lblColor", "Color 0"};

  // The menus.
  QMenuBar menuBar{this};
  QMenu mnuBrowser{QStringLiteral("Browser"), this};
  MenuItem mnuOpen{*this, "mnuOpen", "Open file"};
  MenuItem mnuClose{*this, "mnuClose", "Close file"};
  QMenu mnuRecentMain{QStringLiteral("Recent files"), this};
  // mnuRecent[0] is mnuRecent1.
  MenuItem mnuRecent[kRecentCount] = {
      {*this, "mnuRecent1", "Recent 1"}, {*this, "mnuRecent2", "Recent 2"}, {*this, "mnuRecent3", "Recent 3"},
      {*this, "mnuRecent4", "Recent 4"}, {*this, "mnuRecent5", "Recent 5"}, {*this, "mnuRecent6", "Recent 6"},
      {*this, "mnuRecent7", "Recent 7"}, {*this, "mnuRecent8", "Recent 8"}, {*this, "mnuRecent9", "Recent 9"},
  };
  MenuItem mnuZoomIn{*this, "mnuZoomIn", "Zoom in"};
  MenuItem mnuZoomOut{*this, "mnuZoomOut", "Zoom out"};
  MenuItem mnuGrid{*this, "mnuGrid", "Grid on/off"};
  MenuItem mnuExit{*this, "mnuExit", "Exit"};
  QMenu mnuEditor{QStringLiteral("Editor"), this};
  MenuItem mnuSelectMode{*this, "mnuSelectMode", "Select Mode"};
  MenuItem mnuPaintMode{*this, "mnuPaintMode", "Paint Mode"};
  MenuItem mnuFillMode{*this, "mnuFillMode", "Fill Mode"};
  MenuItem mnuSaveAll{*this, "mnuSaveAll", "Save all"};
  MenuItem mnuReloadAll{*this, "mnuReloadAll", "Reload all"};
  MenuItem mnuClearAll{*this, "mnuClearAll", "Clear all"};
  MenuItem mnuEditorZoomIn{*this, "mnuEditorZoomIn", "Zoom in"};
  MenuItem mnuEditorZoomOut{*this, "mnuEditorZoomOut", "Zoom out"};
  MenuItem mnuResize{*this, "mnuResize", "Resize"};
  MenuItem mnuEditorGrid{*this, "mnuEditorGrid", "Grid on/off"};
  MenuItem mnuNonCopied{*this, "mnuNonCopied", "Non-copied tiles"};
  QMenu mnuTile{QStringLiteral("Tile"), this};
  MenuItem mnuTileSave{*this, "mnuTileSave", "Save tile"};
  MenuItem mnuTileSaveSelected{*this, "mnuTileSaveSelected", "Save tile to selection"};
  MenuItem mnuTileSaveAddress{*this, "mnuTileSaveAddress", "Save tile to address"};
  MenuItem mnuTileReload{*this, "mnuTileReload", "Reload tile"};
  MenuItem mnuTileClear{*this, "mnuTileClear", "Clear tiles"};
  MenuItem mnuTileMirror{*this, "mnuTileMirror", "Mirror tile"};
  MenuItem mnuTileFlip{*this, "mnuTileFlip", "Flip tile"};
  MenuItem mnuTileRotate{*this, "mnuTileRotate", "Rotate tile"};
  QMenu mnuHelp{QStringLiteral("Help"), this};
  MenuItem mnuHelpFile{*this, "mnuHelpFile", "Help"};
  MenuItem mnuOption{*this, "mnuOption", "Options"};
  MenuItem mnuAbout{*this, "mnuAbout", "About"};

  CommonDialog cdlMain{*this, "cdlMain"};

 private:
  void BuildToolbar();
  void BuildInfoPanel();
  void BuildMenus();
  void BuildRecentMenu();
  void BuildBrowserMenu();
  void BuildEditorMenu();
  void BuildTileMenu();
  void BuildHelpMenu();
  // The end of the frame: raises its unload event once, which quits and ends the process.
  static void UnloadFrame();
};

}  // namespace brolk
