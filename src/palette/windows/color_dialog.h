// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "forms/flat_button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/scroll_bar.h"

namespace brolk {

// One colour with three sliders.
class ColorDialog final : public Form {
 public:
  ColorDialog();

  // Primes the dialog; does not show it. setIndex -1 is the live palette.
  void SetColor(std::int16_t setIndex, std::int16_t colorIndex, std::int32_t color);

  Label lblColorPreview{*this, "lblColorPreview", "OK", "Confirm new color"};
  FlatButton fbnCancel{*this, "fbnCancel", "cancel", "Close Color Tool"};
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
};

}  // namespace brolk
