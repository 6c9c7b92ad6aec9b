// SPDX-License-Identifier: MIT
#include "palette/windows/palette_control.h"

namespace brolk {

PaletteControl::PaletteControl()
    : Form({"PaletteControl", "Color Palette", FormKind::Child, FormBorder::Fixed, 1800, 2400}) {}

void PaletteControl::SetCurrentColor(std::uint8_t) {}
void PaletteControl::Form_Load() {}

}  // namespace brolk
