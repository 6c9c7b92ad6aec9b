// SPDX-License-Identifier: MIT
#include "shell/windows/file_config.h"

#include "forms/windows.h"
#include "shell/windows/main_form.h"

namespace brolk {

void SaveLayout() {}

void LoadLayout() {
  auto& frame = The<MainForm>();
  for (FlatButton* toggle : {&frame.fbnBrowser, &frame.fbnEditor, &frame.fbnTile}) {
    toggle->SetChecked(true);
    frame.UpdateToolWindows();
  }
}

void DefaultLayout() {}

}  // namespace brolk
