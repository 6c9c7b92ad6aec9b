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
#include "palette/rom_palette.h"

namespace brolk {

// The list of named palettes beside the live one, and the palettes inside the open file.
class ColorSet final : public Form {
 public:
  ColorSet();

  // Changes one colour of a set and shows the selected set. Either index outside 0..255 is the subscript
  // fault.
  void SetColor(std::int16_t setIndex, std::int16_t colorIndex, std::int32_t color);
  // Fills the storage formats and their list, and selects the first.
  void SetPaletteFormats();
  // Fills the list anew, no line is highlighted afterwards; then shows the selected set.
  void RefreshSetList();
  // Paints the selected set and shows its name. An empty list leaves picture and name as they are.
  void ShowSelectedSet();

  void Form_Load() override;
  void Form_Activate() override;

  Label Label1{*this, "Label1", "Color Set Display"};
  ListBox lstSets{*this, "lstSets", "Here the color sets are listed"};
  Picture picColor{*this, "picColor"};
  TextBox txtName{*this, "txtName", "", "This is the description of the selected color set"};
  FlatButton fbnApplySet{*this, "fbnApplySet", "apply-set",
                         "Apply the selected color set the current set to the browser"};
  FlatButton fbnAddSet{*this, "fbnAddSet", "add-set", "Add the editor's color set to the list"};
  FlatButton fbnDeleteSet{*this, "fbnDeleteSet", "delete-set", "Left: Delete current | Right: Clear all"};
  FlatButton fbnRandomPal{*this, "fbnRandomPal", "random", "Random Palette"};
  FlatButton fbnColorSetLoad{*this, "fbnColorSetLoad", "load-set", "Load the color sets"};
  FlatButton fbnColorSetSave{*this, "fbnColorSetSave", "save-set", "Save the color sets"};
  Label Label2{*this, "Label2", "Palette Import/Export"};
  ComboList cboPaletteType{*this, "cboPaletteType", "Selected the type of palette to load/save"};
  ComboList cboColorCount{*this, "cboColorCount", "Select how many colors you want to load or save"};
  ComboList cboPaletteAddress{
      *this, "cboPaletteAddress",
      "Enter a color palette's address or select one after successfully searching for one",
      ComboList::Kind::FreeText};
  FlatButton fbnPalIn{*this, "fbnPalIn", "palette-in", "Load a palette from the given address"};
  FlatButton fbnPalOut{*this, "fbnPalOut", "palette-out", "Save the selected palette to the given address"};
  FlatButton fbnClose{*this, "fbnClose", "close", "Close Color Set Tool"};
  CommonDialog cdlColorSet{*this, "cdlColorSet"};

 private:
  void LayOut();
  void ConnectListEvents();
  void ConnectRomEvents();

  void lstSets_Click();
  void txtName_DblClick();
  void fbnApplySet_Click();
  void fbnAddSet_Click();
  void fbnDeleteSet_MouseDown(int button);
  void fbnRandomPal_Click();
  void picColor_MouseDown(float x, float y);
  void fbnPalIn_Click();
  void fbnPalOut_Click();

  void DeleteSelected();
  void ClearAfterQuestion();
  // The run of colours that the controls of the lower box name; the address becomes decimal in its field.
  [[nodiscard]] RomPaletteRun RunFromControls();
};

}  // namespace brolk
