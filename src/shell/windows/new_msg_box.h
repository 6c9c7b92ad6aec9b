// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "forms/flat_button.h"
#include "forms/form.h"
#include "forms/label.h"

namespace brolk {

// The window of the message box.
class NewMsgBox final : public Form {
 public:
  NewMsgBox();

  void Form_Load() override;

  Label imgMsgBox{*this, "imgMsgBox", ""};
  Label lblMsg{*this, "lblMsg", ""};
  Label imgC1{*this, "imgC1", ""};
  Label imgC2{*this, "imgC2", ""};
  Label imgC3{*this, "imgC3", ""};
  FlatButton fbnButton1{*this, "fbnButton1", "face-ok", ""};
  FlatButton fbnButton2{*this, "fbnButton2", "face-no", ""};
  FlatButton fbnButton3{*this, "fbnButton3", "face-cancel", ""};
};

}  // namespace brolk
