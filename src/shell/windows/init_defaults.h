// SPDX-License-Identifier: MIT
#pragma once

namespace brolk {

// Gives the shared block, the mode table, the Editor's slots and size, the palette and the list of palette
// formats their start values.
void InitDefaults();

}  // namespace brolk
