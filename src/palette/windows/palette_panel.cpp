// SPDX-License-Identifier: MIT
#include "palette/windows/palette_panel.h"

namespace brolk {

void PaintPalettePanel() {}
void RefreshAfterPaletteChange(PanelRepaint) {}

}  // namespace brolk
