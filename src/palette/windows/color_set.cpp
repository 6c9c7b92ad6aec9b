// SPDX-License-Identifier: MIT
#include "palette/windows/color_set.h"

namespace brolk {

ColorSet::ColorSet() : Form({"ColorSet", "Color Set", FormKind::Free, FormBorder::Fixed, 6600, 5400}) {}

void ColorSet::SetColor(std::int16_t, std::int16_t, std::int32_t) {}
void ColorSet::SetPaletteFormats() {}
void ColorSet::RefreshSetList() {}
void ColorSet::ShowSelectedSet() {}
void ColorSet::Form_Load() {}
void ColorSet::Form_Activate() {}

}  // namespace brolk
