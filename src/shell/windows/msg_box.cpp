// SPDX-License-Identifier: MIT
#include "shell/windows/msg_box.h"

namespace brolk {

std::uint8_t ShowMsgBox(const QString&, std::int16_t, const QString&) {
  return 0;
}

}  // namespace brolk
