// SPDX-License-Identifier: MIT
#include "browser/windows/open_rom.h"

namespace brolk {

void OpenRom(std::uint8_t) {}

}  // namespace brolk
