// SPDX-License-Identifier: MIT
#include "shell/windows/init_defaults.h"

#include "editor/slots.h"
#include "editor/windows/editor.h"
#include "forms/windows.h"
#include "palette/palette_model.h"
#include "palette/windows/color_set.h"
#include "runtime/surface.h"
#include "tile/modes.h"
#include "tile/shared.h"

namespace brolk {
namespace {

constexpr double kEditorStartTwips = 4000;

}  // namespace

void InitDefaults() {
  MainRows = 8;
  MainLines = 16;
  TileWidth = 8;
  TileHeight = 8;
  MainZoom = 3;
  MainEdZoom = 3;
  PaletteSide = 4;
  // The load of BrowserControl selects the first entry of its list later on, which is another mode.
  GfxMode = kGameboy;
  GridColor = PackRgb(0, 0, 0);
  SelectionColor = PackRgb(255, 255, 255);
  EmptyColor = PackRgb(128, 0, 128);
  ShowGrid = true;
  FillModes();
  ClearAllSlots();
  The<Editor>().SetWidth(kEditorStartTwips);
  The<Editor>().SetHeight(kEditorStartTwips);
  SetDefaultPalette();
  The<ColorSet>().SetPaletteFormats();
}

}  // namespace brolk
