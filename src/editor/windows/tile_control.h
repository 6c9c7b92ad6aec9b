// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "forms/flat_button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/text_box.h"

namespace brolk {

// The one tile selected in the Editor. The window works on the slot that it was given last and never reads
// the selection: after a swap or a change of the file its address can differ from the slot's own, until the
// next selection. Every command asks the text of txtAddress first and does nothing, or almost nothing, when
// it is "n/a".
class TileControl final : public Form {
 public:
  TileControl();

  // Loads a slot, -1 for none.
  void LoadTile(std::int16_t Slot);
  // Writes the tile over the tile selected in the Browser. The slot keeps its own address.
  void fbnCopySelTile_Click();
  // Writes the tile at the address in the box; the page is redrawn in every case. The slot keeps its own
  // address. A negative number makes the seek fail, and the tile is written where the file stands: that is
  // meant.
  void fbnCopyToAddress_Click();
  // Clears the slot, and this one alone, without a question.
  void fbnDeleteSprite_Click();
  void fbnFlipX_Click();
  void fbnFlipY_Click();
  // Reads the tile again from the address that LoadTile remembered. Twins stay as they are.
  void fbnReloadTile_Click();
  void fbnRotate_Click();
  // Writes the tile at the slot's own address of this moment, see MayBeSaved.
  void fbnSaveTile_Click();

  void Form_Load() override;

  // The slot's address at the time of LoadTile, -2 for none; the slot, -1 for none. Both are 0 before the
  // first LoadTile, so that the window loads with a number in its box.
  std::int32_t LoadedAddress = 0;
  std::int16_t LoadedSlot = 0;

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

 private:
  void PlaceControls();
  void txtAddress_Change();
  [[nodiscard]] bool NothingLoaded() const;
  void SpreadToTwins(std::uint8_t Slot);
  // Refreshes, draws and spreads the slot after its pixels have been moved.
  void ShowMovedPixels();
};

}  // namespace brolk
