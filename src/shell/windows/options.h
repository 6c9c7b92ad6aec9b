// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "forms/flat_button.h"
#include "forms/form.h"
#include "forms/label.h"

namespace brolk {

// Colours, switches, layout commands. The two switches have no variable: the checked state of fbnSaveWarning
// and fbnBenchmark is the setting. Closing the window by its frame unloads it, and the next reference makes a
// fresh one whose switches stand as they were made, off and on.
class Options final : public Form {
 public:
  Options();

  // Gives the swatches the colours in use.
  void ShowColors();

  void fbnSaveNow_Click();
  void fbnLoadNow_Click();
  void fbnDefaultSettings_Click();
  void fbnClearRecent_Click();
  // Takes the swatches' colours into use and hides the window. Nothing is redrawn and nothing is stored.
  void fbnOk_Click();

  void Form_Load() override;
  void FrameClosed() override;

  Label lblColors{*this, "lblColors", "Colors"};
  Label lblGridColor{*this, "lblGridColor", "", "The grids will be displayed using this color"};
  Label lblSelectionColor{*this, "lblSelectionColor", "", "The selection boxes use this color"};
  Label lblEmptyColor{*this, "lblEmptyColor", "", "A tile w/o address will be displayed in this color"};
  Label lblBenchmark{*this, "lblBenchmark", "Benchmark Measure redraw time"};
  FlatButton fbnBenchmark{*this, "fbnBenchmark", "benchmark", "toggle Benchmarking",
                          FlatButton::Kind::Toggle};
  Label lblMeasure{*this, "lblMeasure", "Measure redraw time"};
  Label lblWarning1{*this, "lblWarning1", "Show save warning"};
  FlatButton fbnSaveWarning{*this, "fbnSaveWarning", "save-warning", "toggle save warning",
                            FlatButton::Kind::Toggle};
  Label lblWarning{*this, "lblWarning",
                   "Be careful - if you deactivate the save warning, you could damage a file by accident."};
  Label lblAppearance{*this, "lblAppearance", "Appearance"};
  FlatButton fbnSaveNow{*this, "fbnSaveNow", "save-layout", "Save current layout"};
  Label lblSaveNow{*this, "lblSaveNow", "Save layout"};
  FlatButton fbnLoadNow{*this, "fbnLoadNow", "load-layout", "Load saved layout"};
  Label lblLoadNow{*this, "lblLoadNow", "Load layout"};
  FlatButton fbnDefaultSettings{*this, "fbnDefaultSettings", "reset-layout", "Reset layout to defaults"};
  Label lblDefaultSettings{*this, "lblDefaultSettings", "Reset to defaults"};
  FlatButton fbnClearRecent{*this, "fbnClearRecent", "clear-recent", "Clear recent files"};
  Label lblClearRecent{*this, "lblClearRecent", "Clear recent files"};
  FlatButton fbnOk{*this, "fbnOk", "face-ok", ""};

 private:
  void PlaceControls();
  void DressLabels();
  void WireCommands();
};

}  // namespace brolk
