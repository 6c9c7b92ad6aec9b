// SPDX-License-Identifier: MIT
#include "exchange/windows/bmp.h"

namespace brolk {

void InitBmpHeader() {}
void ImportBmp() {}
void ExportBmp() {}

}  // namespace brolk
