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

  void Form_Activate() override;
  void Form_MouseDown(int button, int shift, float x, float y) override;
  void Form_MouseMove(int button, int shift, float x, float y) override;
  void Form_MouseUp(int button, int shift, float x, float y) override;
  bool Form_DblClick() override;
  void Form_KeyDown(int keyCode, int shift) override;

  ScrollBar vsbAddress{Qt::Vertical, *this, "vsbAddress", 0, 0, 0};
};

}  // namespace brolk
