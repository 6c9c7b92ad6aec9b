// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "forms/common_dialog.h"
#include "forms/flat_button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/lists.h"
#include "forms/scroll_bar.h"
#include "forms/text_box.h"

namespace brolk {

// Tiles and palette as C source.
class COutPut final : public Form {
 public:
  COutPut();

  void Form_Load() override;

  Label lblTileCon{*this, "lblTileCon", "Tile Converter"};
  Label lblSize{*this, "lblSize", "Tile size in pixel"};
  ComboList cboSize{*this, "cboSize", "Choose size of tiles"};
  Label lblShape{*this, "lblShape", "Tile shape"};
  ComboList cboShape{*this, "cboShape", "Choose shape of tiles"};
  Label lblRows2{*this, "lblRows2", "Rows"};
  Label lblRows{*this, "lblRows", "1"};
  ScrollBar hsbRows{Qt::Horizontal, *this, "hsbRows", 1, 16, 1};
  Label lblLines2{*this, "lblLines2", "Lines"};
  Label lblLines{*this, "lblLines", "1"};
  ScrollBar hsbLines{Qt::Horizontal, *this, "hsbLines", 1, 16, 1};
  ComboList cboTilemode{*this, "cboTilemode", "Choose tile mode"};
  Label lblNames{*this, "lblNames", "Names"};
  Label lblSprite{*this, "lblSprite", "Name of sprite variable:"};
  TextBox txtSprite{*this, "txtSprite", "sprite"};
  FlatButton fbnCCodeSprite{*this, "fbnCCodeSprite", "convert-tiles", "Convert editor tiles to C code"};
  Label lblInfo{*this, "lblInfo", "Label1"};
  Label lblColPalCon{*this, "lblColPalCon", "Color Palette Converter"};
  ComboList cboPaletteType{*this, "cboPaletteType"};
  ComboList cboColorCount{*this, "cboColorCount"};
  Label lblPalette{*this, "lblPalette", "Name of palette variable:"};
  TextBox txtPalette{*this, "txtPalette", "palette"};
  FlatButton fbnCCodePalette{*this, "fbnCCodePalette", "convert-palette", "Display palette to C code"};
  FlatButton fbnClose{*this, "fbnClose", "close", "Close Converter Tool"};
  CommonDialog cdlCOutPut{*this, "cdlCOutPut"};
};

}  // namespace brolk
