// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "forms/flat_button.h"
#include "forms/form.h"

namespace brolk {

// Tools and commands of the Editor.
class EditorControl final : public Form {
 public:
  EditorControl();

  void fbnEditClear_Click();
  // Enlarges, whatever its name says.
  void fbnEditZoomOut_Click();
  // Reduces, whatever its name says.
  void fbnEditZoomIn_Click();
  void fbnReload_Click();
  void fbnSaveEdit_Click();

  FlatButton fbnSeparator1{*this, "fbnSeparator1", "", "", FlatButton::Kind::Separator};
  FlatButton fbnSelect{*this, "fbnSelect", "select", "Switch to 'Select' mode", FlatButton::Kind::Toggle};
  FlatButton fbnPaint{*this, "fbnPaint", "paint", "Switch to 'Paint' mode", FlatButton::Kind::Toggle};
  FlatButton fbnFill{*this, "fbnFill", "fill", "Switch to 'Fill' mode", FlatButton::Kind::Toggle};
  FlatButton fbnEditorGrid{*this, "fbnEditorGrid", "grid", "Grid on/off", FlatButton::Kind::Toggle};
  FlatButton fbnNonCopied{*this, "fbnNonCopied", "non-copied", "Show/hide noncopied tiles",
                          FlatButton::Kind::Toggle};
  FlatButton fbnSaveEdit{*this, "fbnSaveEdit", "save-all", "Save all tiles to file"};
  FlatButton fbnReload{*this, "fbnReload", "reload-all", "Reload all tiles"};
  FlatButton fbnEditClear{*this, "fbnEditClear", "clear-all", "Clear all tiles"};
  FlatButton fbnEditZoomOut{*this, "fbnEditZoomOut", "zoom-in", "Zoom in"};
  FlatButton fbnEditZoomIn{*this, "fbnEditZoomIn", "zoom-out", "Zoom out"};
  FlatButton fbnCOutPut{*this, "fbnCOutPut", "c-output", "Open the 'C Output' tool"};
};

}  // namespace brolk
