// SPDX-License-Identifier: MIT
#include "shell/windows/file_config.h"

namespace brolk {

void SaveLayout() {}
void LoadLayout() {}
void DefaultLayout() {}

}  // namespace brolk
