// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "exchange/c_source.h"
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

  // Takes size and maxima from the two lists, shows the numbers and the plan. While one of the lists has no
  // entry chosen the size stays.
  void UpdateSpriteCounts();

  void Form_Load() override;

  // Of one sprite, in pixels; 0 until both lists have an entry chosen.
  std::uint8_t SpriteWidth = 0;
  std::uint8_t SpriteHeight = 0;

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

 private:
  void LayOut();
  void Dress();
  void FillLists();
  void ConnectEvents();

  void fbnCCodeSprite_Click();
  void fbnCCodePalette_Click();

  // The path that the dialog gives, empty after a cancel.
  [[nodiscard]] std::string AskPath();
  [[nodiscard]] SpritePlan PlanFromControls() const;
  // Shows a text at once, also while a run holds the thread.
  void ShowAtOnce(const std::string& text);
};

}  // namespace brolk
