// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace brolk {

// From no file, or another file, to a shown page. Recent: 0 asks with the dialog, 1 to 9 takes that entry of
// the recent list if it is enabled.
void OpenRom(std::uint8_t Recent);

}  // namespace brolk
