// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "forms/flat_button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/scroll_bar.h"
#include "runtime/surface.h"

namespace brolk {

// One colour with three sliders: a colour of the live palette or of a colour set.
class ColorDialog final : public Form {
 public:
  ColorDialog();

  // Primes the dialog; does not show it. setIndex: a colour set, -1 for the live palette.
  void SetColor(std::int16_t setIndex, std::int16_t colorIndex, std::int32_t color);

  // What is edited: the set (-1 for the live palette) and the colour's index in it.
  std::int16_t EditSet = 0;
  std::int16_t EditIndex = 0;

  // Red, green, blue.
  ScrollBar vsbColor[3] = {
      {Qt::Vertical, *this, "vsbColor(0)", 0, 255, 0},
      {Qt::Vertical, *this, "vsbColor(1)", 0, 255, 0},
      {Qt::Vertical, *this, "vsbColor(2)", 0, 255, 0},
  };
  Label lblColorValue[6] = {
      {*this, "lblColorValue(0)", "255", "This is the current 'Red' value"},
      {*this, "lblColorValue(1)", "255", "This is the current 'Green' value"},
      {*this, "lblColorValue(2)", "255", "This is the current 'Blue' value"},
      {*this, "lblColorValue(3)", "31", "This is the current 'Red' 5 bit value"},
      {*this, "lblColorValue(4)", "31", "This is the current 'Green' 5 bit value"},
      {*this, "lblColorValue(5)", "31", "This is the current 'Blue' 5 bit value"},
  };
  Label lblColorPreview{*this, "lblColorPreview", "OK", "Confirm new color"};
  FlatButton fbnCancel{*this, "fbnCancel", "cancel", "Close Color Tool"};

 private:
  void LayOut();
  void StyleChannels();
  void ConnectEvents();

  // The colour of the three bars.
  [[nodiscard]] ColorValue BarColor() const;

  void vsbColor_Change(int channel);
  void lblColorPreview_Click();
};

}  // namespace brolk
