// SPDX-License-Identifier: MIT
#include "shell/windows/options.h"

namespace brolk {

Options::Options() : Form({"Options", "Options", FormKind::Free, FormBorder::Fixed, 2310, 4680}) {}

void Options::Form_Load() {}

}  // namespace brolk
