// SPDX-License-Identifier: MIT
#include "palette/windows/palette_file_dialogs.h"

namespace brolk {

void LoadColorSets() {}

void SaveColorSets() {}

}  // namespace brolk
