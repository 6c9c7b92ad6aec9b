// SPDX-License-Identifier: MIT
#include "editor/windows/editor_control.h"

namespace brolk {

EditorControl::EditorControl()
    : Form({"EditorControl", "Editor Control", FormKind::Child, FormBorder::Fixed, 1950, 3000}) {}

void EditorControl::fbnEditClear_Click() {}
void EditorControl::fbnEditZoomOut_Click() {}
void EditorControl::fbnEditZoomIn_Click() {}
void EditorControl::fbnReload_Click() {}
void EditorControl::fbnSaveEdit_Click() {}

}  // namespace brolk
