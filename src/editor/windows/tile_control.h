// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "forms/flat_button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/text_box.h"

namespace brolk {

// The one tile selected in the Editor.
class TileControl final : public Form {
 public:
  TileControl();

  // Loads a slot, -1 for none.
  void LoadTile(std::int16_t Slot);
  void fbnCopySelTile_Click();
  void fbnCopyToAddress_Click();
  void fbnDeleteSprite_Click();
  void fbnFlipX_Click();
  void fbnFlipY_Click();
  void fbnReloadTile_Click();
  void fbnRotate_Click();
  void fbnSaveTile_Click();

  void Form_Load() override;

  std::int32_t LoadedAddress = -2;
  std::int16_t LoadedSlot = -1;

  TextBox txtAddress{*this, "txtAddress", "0", "Tile Address (Decimal)"};
  Label lblHex{*this, "lblHex", "0", "Tile Address (Hex)"};
  FlatButton fbnSaveTile{*this, "fbnSaveTile", "save-tile", "Save the selected tile to file"};
  FlatButton fbnReloadTile{*this, "fbnReloadTile", "reload-tile", "Reload the selected tile from file"};
  FlatButton fbnDeleteSprite{*this, "fbnDeleteSprite", "clear-tile", "Clear the selected tile"};
  FlatButton fbnCopySelTile{*this, "fbnCopySelTile", "copy-to-selection",
                            "Copy selected tile to the selected position in the browser"};
  FlatButton fbnCopyToAddress{*this, "fbnCopyToAddress", "copy-to-address",
                              "Copy selected tile to the address beneath"};
  FlatButton fbnFlipX{*this, "fbnFlipX", "flip-x", "Horizantally flip the selected tile"};
  FlatButton fbnFlipY{*this, "fbnFlipY", "flip-y", "Vertically flip the selected tile"};
  FlatButton fbnRotate{*this, "fbnRotate", "rotate", "Rotate the selected tile"};
};

}  // namespace brolk
