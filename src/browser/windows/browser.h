// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "forms/drawing_form.h"
#include "forms/scroll_bar.h"

namespace brolk {

// The page of the open file.
class Browser final : public DrawingForm {
 public:
  Browser();

  // Writes the selected Editor slot into the file at the tile under a point of the client area, in pixels.
  void DragToBrowser(std::int16_t x, std::int16_t y);

  // Brings LineBytes and Line up to the mode and the page. LineBytes 0 is the division fault.
  void Form_Activate() override;
  // The right button shows the menu, every other one selects the tile under it.
  void Form_MouseDown(int button, int shift, float x, float y) override;
  void Form_MouseMove(int button, int shift, float x, float y) override;
  void Form_MouseUp(int button, int shift, float x, float y) override;
  bool Form_DblClick() override;
  void Form_KeyDown(int keyCode, int shift) override;

  ScrollBar vsbAddress{Qt::Vertical, *this, "vsbAddress", 0, 0, 0};

 private:
  void ShowSelection();
  bool MoveSelectionBy(int keyCode);
  void PressPlainKey(int keyCode);
  void PressControlKey(int keyCode);
};

}  // namespace brolk
