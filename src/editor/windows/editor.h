// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "forms/drawing_form.h"
#include "forms/flat_button.h"
#include "forms/scroll_bar.h"

namespace brolk {

// The 256 slots.
class Editor final : public DrawingForm {
 public:
  Editor();

  // Drops the tile selected in the Browser on the slot under a point of the client area, in pixels.
  void DragToEditor(std::int16_t x, std::int16_t y);
  // Lays the controls out.
  void FormatEditScr();
  void fbnFit_Click();

  void Form_MouseDown(int button, int shift, float x, float y) override;
  void Form_MouseMove(int button, int shift, float x, float y) override;
  void Form_MouseUp(int button, int shift, float x, float y) override;
  void Form_KeyDown(int keyCode, int shift) override;

  FlatButton fbnFit{*this, "fbnFit", "fit", "Resize the editor to fit all 16x16 tiles"};
  ScrollBar hsbEdit{Qt::Horizontal, *this, "hsbEdit", 0, 0, 0};
  ScrollBar vsbEdit{Qt::Vertical, *this, "vsbEdit", 0, 0, 0};
};

}  // namespace brolk
