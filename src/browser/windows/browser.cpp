// SPDX-License-Identifier: MIT
#include "browser/windows/browser.h"

namespace brolk {

Browser::Browser()
    : DrawingForm({"Browser", "Browser", FormKind::Child, FormBorder::Fixed, 3140, 5760}, 0xACACAC) {}

void Browser::DragToBrowser(std::int16_t, std::int16_t) {}
void Browser::Form_Activate() {}
void Browser::Form_MouseDown(int, int, float, float) {}
void Browser::Form_MouseMove(int, int, float, float) {}
void Browser::Form_MouseUp(int, int, float, float) {}
bool Browser::Form_DblClick() {
  return false;
}
void Browser::Form_KeyDown(int, int) {}

}  // namespace brolk
