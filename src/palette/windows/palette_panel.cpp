// SPDX-License-Identifier: MIT
#include "palette/windows/palette_panel.h"

#include "browser/windows/page_view.h"
#include "editor/slots.h"
#include "editor/windows/edit.h"
#include "forms/windows.h"
#include "palette/palette_grid.h"
#include "palette/palette_model.h"
#include "palette/windows/palette_control.h"
#include "tile/shared.h"

namespace brolk {

void PaintPalettePanel() {
  auto& panel = The<PaletteControl>();
  PaintPaletteCells(panel.picColor.Canvas(), PaletteSide);
  panel.shpCol.Canvas().Fill(Palette[CurrentColor]);
  panel.picColor.Refresh();
  panel.shpCol.Refresh();
}

void RefreshAfterPaletteChange(PanelRepaint panel) {
  if (panel == PanelRepaint::First) PaintPalettePanel();
  PaintPage();
  for (std::int32_t slot = 0; slot < EditSlots.Size(); ++slot)
    RefreshSlotSurface(static_cast<std::uint8_t>(slot));
  RedrawEditor();
  if (panel == PanelRepaint::Last) PaintPalettePanel();
}

}  // namespace brolk
