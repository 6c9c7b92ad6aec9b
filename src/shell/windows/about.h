// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "forms/flat_button.h"
#include "forms/form.h"
#include "forms/label.h"

namespace brolk {

// The splash-like window about the program.
class About final : public Form {
 public:
  About();

  void Form_Load() override;
  void Form_Activate() override;
  void Form_Deactivate() override;

  Label lblVersion{*this, "lblVersion", "Version 0.64 build 2600"};
  Label lblVoska{*this, "lblVoska", ""};
  Label lblTarn{*this, "lblTarn", ""};
  Label lblEmail{*this, "lblEmail", "", "Email me"};
  Label lblHomepage{*this, "lblHomepage", "", "Go to Homepage"};
  FlatButton fbnEmail{*this, "fbnEmail", "email", "Email me"};
  FlatButton fbnHomepage{*this, "fbnHomepage", "homepage", "Go to Homepage"};
};

}  // namespace brolk
