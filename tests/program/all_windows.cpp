// SPDX-License-Identifier: MIT
#include "program/all_windows.h"

#include "browser/windows/browser.h"
#include "browser/windows/browser_control.h"
#include "editor/windows/editor.h"
#include "editor/windows/editor_control.h"
#include "editor/windows/tile_control.h"
#include "exchange/windows/c_output.h"
#include "exchange/windows/pattern.h"
#include "filetools/windows/favorites_tool.h"
#include "filetools/windows/file_info.h"
#include "forms/windows.h"
#include "palette/windows/color_dialog.h"
#include "palette/windows/color_set.h"
#include "palette/windows/palette_control.h"
#include "shell/windows/about.h"
#include "shell/windows/main_form.h"
#include "shell/windows/new_msg_box.h"
#include "shell/windows/options.h"

namespace brolk::test {
namespace {

template <typename Window>
WindowRow Row(const char* name, const char* caption, std::span<const ControlRow> controls) {
  return {name, caption, [] { return std::make_unique<Window>(); }, []() -> Form& { return The<Window>(); },
          controls};
}

}  // namespace

const std::vector<WindowRow>& AllWindows() {
  static const std::vector<WindowRow> windows = {
      Row<MainForm>("MainForm", nullptr, kMainFormControls),
      Row<Browser>("Browser", nullptr, kBrowserControls),
      Row<BrowserControl>("BrowserControl", "Browser Control", kBrowserControlControls),
      Row<Editor>("Editor", "Editor", kEditorControls),
      Row<EditorControl>("EditorControl", "Editor Control", kEditorControlControls),
      Row<TileControl>("TileControl", "Tile Tool", kTileControlControls),
      Row<PaletteControl>("PaletteControl", "Color Palette", kPaletteControlControls),
      Row<COutPut>("COutPut", "Tile and Palette C/C++ Converter", kCOutPutControls),
      Row<ColorSet>("ColorSet", "Color Set", kColorSetControls),
      Row<FavoritesTool>("FavoritesTool", "Favorites", kFavoritesToolControls),
      Row<FileInfo>("FileInfo", "File Info", kFileInfoControls),
      Row<pattern>("pattern", "Editor Address Pattern", kPatternControls),
      Row<Options>("Options", "Options", kOptionsControls),
      Row<ColorDialog>("ColorDialog", "Color", kColorDialogControls),
      Row<About>("About", "", kAboutControls),
      Row<NewMsgBox>("NewMsgBox", "Brolk Plus", kNewMsgBoxControls),
  };
  return windows;
}

std::string NameOf(const ::testing::TestParamInfo<std::size_t>& row) {
  return AllWindows()[row.param].name;
}

}  // namespace brolk::test
