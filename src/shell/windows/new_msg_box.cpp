// SPDX-License-Identifier: MIT
#include "shell/windows/new_msg_box.h"

namespace brolk {

NewMsgBox::NewMsgBox() : Form({"NewMsgBox", "Brolk Plus", FormKind::Free, FormBorder::Fixed, 5385, 1935}) {}

void NewMsgBox::Form_Load() {}

}  // namespace brolk
