// SPDX-License-Identifier: MIT
#pragma once

namespace brolk {

// Paints the first PaletteSide * PaletteSide colours on the panel, and the swatch of the current colour.
void PaintPalettePanel();

// When the panel is painted in the chain that follows a change of the palette as a whole.
enum class PanelRepaint { First, Last };

// Repaints the page from PageBuffer, the 256 slots, the Editor, and the panel first or last.
void RefreshAfterPaletteChange(PanelRepaint panel);

}  // namespace brolk
