// SPDX-License-Identifier: MIT
#include "exchange/windows/c_output.h"

namespace brolk {

COutPut::COutPut()
    : Form({"COutPut", "Tile and Palette C/C++ Converter", FormKind::Child, FormBorder::Fixed, 5700, 4500}) {}

void COutPut::Form_Load() {}

}  // namespace brolk
