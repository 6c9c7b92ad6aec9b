// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "forms/flat_button.h"
#include "forms/form.h"

namespace brolk {

// Tools and commands of the Editor. The checked states of its buttons are the settings.
class EditorControl final : public Form {
 public:
  EditorControl();

  void fbnEditorGrid_Click();
  void fbnNonCopied_Click();
  // Empties all slots after a question.
  void fbnEditClear_Click();
  // Enlarges, whatever its name says, up to 30.
  void fbnEditZoomOut_Click();
  // Reduces, whatever its name says, down to 2.
  void fbnEditZoomIn_Click();
  // Reads all slots with a file offset again after a question; with a file open it does not come back.
  void fbnReload_Click();
  // Writes all slots with a file offset; with a file open, once agreed to, it does not come back.
  void fbnSaveEdit_Click();
  void fbnCOutPut_Click();

  FlatButton fbnSeparator1{*this, "fbnSeparator1", "", "", FlatButton::Kind::Separator};
  FlatButton fbnSelect{*this, "fbnSelect", "select", "Switch to 'Select' mode", FlatButton::Kind::Toggle};
  FlatButton fbnPaint{*this, "fbnPaint", "paint", "Switch to 'Paint' mode", FlatButton::Kind::Toggle};
  FlatButton fbnFill{*this, "fbnFill", "fill", "Switch to 'Fill' mode", FlatButton::Kind::Toggle};
  FlatButton fbnEditorGrid{*this, "fbnEditorGrid", "grid", "Grid on/off", FlatButton::Kind::Toggle};
  // A switch to hide: checked, non-copied slots stand out in EmptyColor and Paint is blocked.
  FlatButton fbnNonCopied{*this, "fbnNonCopied", "non-copied", "Show/hide noncopied tiles",
                          FlatButton::Kind::Toggle};
  FlatButton fbnSaveEdit{*this, "fbnSaveEdit", "save-all", "Save all tiles to file"};
  FlatButton fbnReload{*this, "fbnReload", "reload-all", "Reload all tiles"};
  FlatButton fbnEditClear{*this, "fbnEditClear", "clear-all", "Clear all tiles"};
  FlatButton fbnEditZoomOut{*this, "fbnEditZoomOut", "zoom-in", "Zoom in"};
  FlatButton fbnEditZoomIn{*this, "fbnEditZoomIn", "zoom-out", "Zoom out"};
  FlatButton fbnCOutPut{*this, "fbnCOutPut", "c-output", "Open the 'C Output' tool"};

 private:
  void PlaceButtons();
};

}  // namespace brolk
