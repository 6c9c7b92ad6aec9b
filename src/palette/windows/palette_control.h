// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "forms/flat_button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/picture.h"

namespace brolk {

// The first colours of the live palette.
class PaletteControl final : public Form {
 public:
  PaletteControl();

  void SetCurrentColor(std::uint8_t index);

  void Form_Load() override;

  Picture picColor{*this, "picColor"};
  Picture shpCol{*this, "shpCol"};
  Label lblSwitch{*this, "lblSwitch", "256/16/4 colors", "Switch between 256, 16 and 4 colors display"};
  FlatButton fbnPalShiftLeft{*this, "fbnPalShiftLeft", "shift-left",
                             "Shift the selected number of colors to the left"};
  FlatButton fbnPalShiftRight{*this, "fbnPalShiftRight", "shift-right",
                              "Shift the selected number of colors to the right"};
  FlatButton fbnPalShiftNum{*this, "fbnPalShiftNum", "", "Number of colors to shift"};
};

}  // namespace brolk
