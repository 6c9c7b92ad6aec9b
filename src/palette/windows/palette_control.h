// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "forms/flat_button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/picture.h"

namespace brolk {

// The first colours of the live palette: pick the paint colour, open one for editing, rotate the palette.
class PaletteControl final : public Form {
 public:
  PaletteControl();

  // The colour of paint and fill from now on; repaints the panel.
  void SetCurrentColor(std::uint8_t index);

  Picture picColor{*this, "picColor"};
  Picture shpCol{*this, "shpCol"};
  Label lblSwitch{*this, "lblSwitch", "256/16/4 colors", "Switch between 256, 16 and 4 colors display"};
  FlatButton fbnPalShiftLeft{*this, "fbnPalShiftLeft", "shift-left",
                             "Shift the selected number of colors to the left"};
  // The shift amount exists only as this button's caption.
  FlatButton fbnPalShiftNum{*this, "fbnPalShiftNum", "", "Number of colors to shift"};
  FlatButton fbnPalShiftRight{*this, "fbnPalShiftRight", "shift-right",
                              "Shift the selected number of colors to the right"};

 private:
  void LayOut();
  void ConnectEvents();

  void picColor_MouseDown(int button, float x, float y);
  void picColor_MouseMove(float x, float y);
  void lblSwitch_Click();
  void fbnPalShiftNum_Click();
  void fbnPalShiftLeft_Click();
  void fbnPalShiftRight_Click();
};

}  // namespace brolk
