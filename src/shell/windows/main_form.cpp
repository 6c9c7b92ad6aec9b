// SPDX-License-Identifier: MIT
#include "shell/windows/main_form.h"

#include "forms/look.h"

namespace brolk {

MainForm::MainForm() : Form({"MainForm", "Brolk Plus", FormKind::Frame, FormBorder::Sizable, 12200, 8970}) {
  SetChildArea(&mdiArea);
}

void MainForm::UpdateToolWindows() {}
void MainForm::ToolNotAvailable() {}
void MainForm::FillRecentMenu() {}
void MainForm::QuitProgram() {}
void MainForm::fbnOptions_Click() {}
void MainForm::Form_Load() {}
void MainForm::Form_Resize() {}
void MainForm::FrameClosed() {}
void MainForm::Form_KeyDown(int, int) {}

}  // namespace brolk
