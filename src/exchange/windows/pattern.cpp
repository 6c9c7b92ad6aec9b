// SPDX-License-Identifier: MIT
#include "exchange/windows/pattern.h"

namespace brolk {

pattern::pattern()
    : Form({"pattern", "Editor Address Pattern", FormKind::Free, FormBorder::Fixed, 4800, 4800}) {}

void pattern::RefreshPatternList() {}
void pattern::Form_Load() {}

}  // namespace brolk
