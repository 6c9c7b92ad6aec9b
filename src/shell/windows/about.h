// SPDX-License-Identifier: MIT
#pragma once

#include "forms/flat_button.h"
#include "forms/form.h"
#include "forms/label.h"

namespace brolk {

// The splash-like window about the program. It stands in the middle of the main window and hides itself when
// it is clicked or another window becomes the active one.
class About final : public Form {
 public:
  About();

  void Form_Activate() override;
  void Form_Deactivate() override;

  Label lblVersion{*this, "lblVersion", "Version 0.64 build 2600"};
  Label lblVoska{*this, "lblVoska", "Copyright (c) 2026 The Brolk Plus developers"};
  Label lblTarn{*this, "lblTarn", "Grew from an earlier tool, with thanks to those who made it."};
  Label lblEmail{*this, "lblEmail", "maintainers@brolkplus.example.org", "Email me"};
  Label lblHomepage{*this, "lblHomepage", "https://brolkplus.example.org/", "Go to Homepage"};
  FlatButton fbnEmail{*this, "fbnEmail", "email", "Email me"};
  FlatButton fbnHomepage{*this, "fbnHomepage", "homepage", "Go to Homepage"};

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void PlaceControls();
};

}  // namespace brolk
