// SPDX-License-Identifier: MIT
#include "shell/windows/about.h"

namespace brolk {

About::About() : Form({"About", "", FormKind::Free, FormBorder::Fixed, 7485, 5415}) {}

void About::Form_Load() {}
void About::Form_Activate() {}
void About::Form_Deactivate() {}

}  // namespace brolk
