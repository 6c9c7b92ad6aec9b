// SPDX-License-Identifier: MIT
#include "filetools/windows/file_info.h"

namespace brolk {

FileInfo::FileInfo() : Form({"FileInfo", "File Info", FormKind::Free, FormBorder::Fixed, 5400, 4800}) {}

void FileInfo::DoReport() {}

}  // namespace brolk
