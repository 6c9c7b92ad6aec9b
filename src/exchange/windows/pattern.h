// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "forms/common_dialog.h"
#include "forms/flat_button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/lists.h"
#include "forms/text_box.h"

namespace brolk {

// Snapshots of the slot addresses.
class pattern final : public Form {
 public:
  pattern();

  void RefreshPatternList();

  void Form_Load() override;

  ListBox lstPat{*this, "lstPat"};
  TextBox txtDescription{*this, "txtDescription", ""};
  FlatButton fbnLoadPat{*this, "fbnLoadPat", "apply", "Apply the selected address pattern to the editor"};
  FlatButton fbnAddPat{*this, "fbnAddPat", "add", "Add an Editor Address Pattern"};
  FlatButton fbnDelPat{*this, "fbnDelPat", "delete", "Delete the selected Editor Address Pattern"};
  FlatButton fbnSave{*this, "fbnSave", "save", "Save the set of Editor Address Patterns"};
  FlatButton fbnLoad{*this, "fbnLoad", "load", "Load a set of Editor Address Patterns"};
  FlatButton fbnRedraw{*this, "fbnRedraw", "reload-tiles", "", FlatButton::Kind::Toggle};
  Label lblRedraw{*this, "lblRedraw", "Reload the editor's tiles after applying the address pattern."};
  FlatButton fbnBmp{*this, "fbnBmp", "addresses-only", "", FlatButton::Kind::Toggle};
  Label lblBmp{*this, "lblBmp", "Only apply new addresses but do not reload (for Bmp Import)."};
  FlatButton fbnClose{*this, "fbnClose", "close", "Close Editor Adress Patterns Tool"};
  CommonDialog cdlPattern{*this, "cdlPattern"};
};

}  // namespace brolk
