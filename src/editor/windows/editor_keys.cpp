// SPDX-License-Identifier: MIT
#include "editor/windows/editor_keys.h"

#include <span>

#include "browser/windows/browser.h"
#include "editor/slots.h"
#include "editor/windows/editor_control.h"
#include "editor/windows/tile_control.h"
#include "forms/keys.h"
#include "forms/windows.h"
#include "tile/shared.h"

namespace brolk {
namespace {

struct KeyRow {
  int keyCode;
  void (*act)();
};

void MoveWithin(std::int16_t& coordinate, int step) {
  const int moved = coordinate + step;
  if (moved >= 0 && moved < kSlotsInLine) coordinate = static_cast<std::int16_t>(moved);
}

template <void (TileControl::*Command)()>
void OfTileTool() {
  (The<TileControl>().*Command)();
}

template <void (EditorControl::*Command)()>
void OfPanel() {
  (The<EditorControl>().*Command)();
}

constexpr KeyRow kPlainKeys[] = {
    {kKeypad0 + 6, [] { MoveWithin(EditSelColumn, +1); }},
    {kKeypad0 + 4, [] { MoveWithin(EditSelColumn, -1); }},
    {kKeypad0 + 8, [] { MoveWithin(EditSelLine, -1); }},
    {kKeypad0 + 2, [] { MoveWithin(EditSelLine, +1); }},
    {kKeypad0 + 7, [] { EditSelColumn = EditSelLine = 0; }},
    {kKeypadDivide, OfTileTool<&TileControl::fbnFlipX_Click>},
    {kKeypadMultiply, OfTileTool<&TileControl::fbnFlipY_Click>},
    {kKeypad0 + 9, OfTileTool<&TileControl::fbnRotate_Click>},
    {'A', OfTileTool<&TileControl::fbnCopyToAddress_Click>},
    {'C', OfTileTool<&TileControl::fbnCopySelTile_Click>},
    {'D', OfTileTool<&TileControl::fbnDeleteSprite_Click>},
    {'R', OfTileTool<&TileControl::fbnReloadTile_Click>},
    {'S', OfTileTool<&TileControl::fbnSaveTile_Click>},
    {kKeySpace, [] { The<EditorControl>().SetFocus(); }},
    {kKeypadAdd, OfPanel<&EditorControl::fbnEditZoomOut_Click>},
    {kKeypadSubtract, OfPanel<&EditorControl::fbnEditZoomIn_Click>},
};

void Invert(FlatButton& button) {
  button.SetChecked(!button.Checked());
}

// The two switches raise no click, and nothing is redrawn: the picture follows at the next repaint.
constexpr KeyRow kControlKeys[] = {
    {'G', [] { Invert(The<EditorControl>().fbnEditorGrid); }},
    {'B', [] { The<Browser>().SetFocus(); }},  // does nothing while the Browser is hidden
    {'N', [] { Invert(The<EditorControl>().fbnNonCopied); }},
};

void RunRowOf(std::span<const KeyRow> rows, int keyCode) {
  for (const KeyRow& row : rows) {
    if (row.keyCode == keyCode) row.act();
  }
}

}  // namespace

void RunEditorKey(int keyCode) {
  RunRowOf(kPlainKeys, keyCode);
}

void RunEditorControlKey(int keyCode) {
  RunRowOf(kControlKeys, keyCode);
}

}  // namespace brolk
