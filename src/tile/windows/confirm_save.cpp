// SPDX-License-Identifier: MIT
#include "tile/windows/confirm_save.h"

namespace brolk {

bool ConfirmSave() {
  return false;
}

}  // namespace brolk
