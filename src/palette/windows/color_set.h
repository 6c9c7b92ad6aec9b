// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "forms/common_dialog.h"
#include "forms/flat_button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/lists.h"
#include "forms/picture.h"
#include "forms/text_box.h"

namespace brolk {

// The list of named palettes.
class ColorSet final : public Form {
 public:
  ColorSet();

  void SetColor(std::int16_t setIndex, std::int16_t colorIndex, std::int32_t color);
  // Fills cboPaletteType with the storage formats.
  void SetPaletteFormats();
  void RefreshSetList();
  void ShowSelectedSet();

  void Form_Load() override;
  void Form_Activate() override;

  Label Label1{*this, "Label1", "Color Set Display"};
  ListBox lstSets{*this, "lstSets", "Here the color sets are listed"};
  TextBox txtName{*this, "txtName", "", "This is the description of the selected color set"};
  Picture picColor{*this, "picColor"};
  FlatButton fbnApplySet{*this, "fbnApplySet", "apply-set",
                         "Apply the selected color set the current set to the browser"};
  FlatButton fbnAddSet{*this, "fbnAddSet", "add-set", "Add the editor's color set to the list"};
  FlatButton fbnDeleteSet{*this, "fbnDeleteSet", "delete-set", "Left: Delete current | Right: Clear all"};
  FlatButton fbnRandomPal{*this, "fbnRandomPal", "random", "Random Palette"};
  FlatButton fbnColorSetLoad{*this, "fbnColorSetLoad", "load-set", "Load the color sets"};
  FlatButton fbnColorSetSave{*this, "fbnColorSetSave", "save-set", "Save the color sets"};
  Label Label2{*this, "Label2", "Palette Import/Export"};
  ComboList cboColorCount{*this, "cboColorCount", "Select how many colors you want to load or save"};
  ComboList cboPaletteType{*this, "cboPaletteType", "Selected the type of palette to load/save"};
  ComboList cboPaletteAddress{
      *this, "cboPaletteAddress",
      "Enter a color palette's address or select one after successfully searching for one",
      ComboList::Kind::FreeText};
  FlatButton fbnPalIn{*this, "fbnPalIn", "palette-in", "Load a palette from the given address"};
  FlatButton fbnPalOut{*this, "fbnPalOut", "palette-out", "Save the selected palette to the given address"};
  FlatButton fbnClose{*this, "fbnClose", "close", "Close Color Set Tool"};
  CommonDialog cdlColorSet{*this, "cdlColorSet"};
};

}  // namespace brolk
