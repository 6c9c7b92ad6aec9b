// SPDX-License-Identifier: MIT
#include "editor/windows/editor.h"

namespace brolk {

Editor::Editor()
    : DrawingForm({"Editor", "Editor", FormKind::Child, FormBorder::Sizable, 3900, 3195}, 0xACACAC) {}

void Editor::DragToEditor(std::int16_t, std::int16_t) {}
void Editor::FormatEditScr() {}
void Editor::fbnFit_Click() {}
void Editor::Form_MouseDown(int, int, float, float) {}
void Editor::Form_MouseMove(int, int, float, float) {}
void Editor::Form_MouseUp(int, int, float, float) {}
void Editor::Form_KeyDown(int, int) {}

}  // namespace brolk
