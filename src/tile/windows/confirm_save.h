// SPDX-License-Identifier: MIT
#pragma once

namespace brolk {

// The gate before every write into the open file: true means that the caller may write now.
[[nodiscard]] bool ConfirmSave();

}  // namespace brolk
