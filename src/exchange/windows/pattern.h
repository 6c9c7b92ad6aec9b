// SPDX-License-Identifier: MIT
#pragma once

#include <string>

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

  // Shows the descriptions in order; no line is selected afterwards.
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

 private:
  void LayOut();
  void ConnectEvents();

  void lstPat_Click();
  void txtDescription_DblClick();
  void fbnLoadPat_Click();
  void fbnAddPat_Click();
  void fbnDelPat_Click();
  void fbnSave_Click();
  void fbnLoad_Click();
  void fbnRedraw_Click();
  void fbnBmp_Click();

  // The path that the dialog gives, empty after a cancel.
  [[nodiscard]] std::string AskPath(void (CommonDialog::*show)());
};

}  // namespace brolk
