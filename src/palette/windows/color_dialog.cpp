// SPDX-License-Identifier: MIT
#include "palette/windows/color_dialog.h"

namespace brolk {

ColorDialog::ColorDialog() : Form({"ColorDialog", "Color", FormKind::Free, FormBorder::Fixed, 2400, 3300}) {}

void ColorDialog::SetColor(std::int16_t, std::int16_t, std::int32_t) {}

}  // namespace brolk
