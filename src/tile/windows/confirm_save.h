// SPDX-License-Identifier: MIT
#pragma once

namespace brolk {

// The gate before every write into the open file: true means that the caller may write now. With no file open
// it refuses without a word. A hidden file is refused as 'read only', before the warning switch is asked; a
// file without write permission is not, and its write then fails silently. That is meant. Unless the switch
// fbnSaveWarning of the Options is off, the user is asked, and only Yes agrees. The answer is not remembered.
// An open file whose name has gone from the disk is the file fault.
[[nodiscard]] bool ConfirmSave();

}  // namespace brolk
