// SPDX-License-Identifier: MIT
#include "browser/windows/browser.h"
#include "browser/windows/browser_control.h"
#include "browser/windows/page_view.h"
#include "editor/windows/editor.h"
#include "editor/windows/editor_control.h"
#include "editor/windows/tile_control.h"
#include "exchange/windows/c_output.h"
#include "exchange/windows/pattern.h"
#include "filetools/windows/favorites_tool.h"
#include "filetools/windows/file_info.h"
#include "forms/application.h"
#include "forms/windows.h"
#include "palette/windows/color_dialog.h"
#include "palette/windows/color_set.h"
#include "palette/windows/palette_control.h"
#include "runtime/files.h"
#include "shell/windows/about.h"
#include "shell/windows/main_form.h"
#include "shell/windows/new_msg_box.h"
#include "shell/windows/options.h"
#include "tile/shared.h"

namespace brolk {
namespace {

template <typename... Windows>
void UnloadWindows() {
  (UnloadWindow<Windows>(), ...);
}

}  // namespace

void MainForm::QuitProgram() {
  ReleaseSurfaces();
  // Closed or never opened, the handle is stale and the call does nothing.
  _lclose(hFile);
  UnloadWindows<About, Browser, BrowserControl, ColorDialog, ColorSet, COutPut, Editor, EditorControl,
                FavoritesTool, FileInfo, NewMsgBox, Options, PaletteControl, pattern, TileControl>();
  UnloadFrame();
}

// Unloading the frame quits too, so "Exit" passes through QuitProgram twice and the close box once. The
// second pass meets stale handles and windows that are gone.
void MainForm::UnloadFrame() {
  static bool unloading = false;
  if (unloading || !IsLoaded<MainForm>()) return;
  unloading = true;
  QuitProgram();
  UnloadWindow<MainForm>();
  unloading = false;
  Application::End();
}

void MainForm::FrameClosed() {
  UnloadFrame();
}

}  // namespace brolk
