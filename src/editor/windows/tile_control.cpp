// SPDX-License-Identifier: MIT
#include "editor/windows/tile_control.h"

namespace brolk {

TileControl::TileControl()
    : Form({"TileControl", "Tile Tool", FormKind::Child, FormBorder::Fixed, 1950, 3000}) {}

void TileControl::LoadTile(std::int16_t) {}
void TileControl::fbnCopySelTile_Click() {}
void TileControl::fbnCopyToAddress_Click() {}
void TileControl::fbnDeleteSprite_Click() {}
void TileControl::fbnFlipX_Click() {}
void TileControl::fbnFlipY_Click() {}
void TileControl::fbnReloadTile_Click() {}
void TileControl::fbnRotate_Click() {}
void TileControl::fbnSaveTile_Click() {}
void TileControl::Form_Load() {}

}  // namespace brolk
