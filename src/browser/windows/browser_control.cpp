// SPDX-License-Identifier: MIT
#include "browser/windows/browser_control.h"

namespace brolk {

BrowserControl::BrowserControl()
    : Form({"BrowserControl", "Browser Control", FormKind::Child, FormBorder::Fixed, 2550, 6495}) {}

void BrowserControl::fbnOpenFile_MouseDown(int, int, float, float) {}
void BrowserControl::fbnCloseFile_Click() {}
void BrowserControl::fbnFileInfo_Click() {}
void BrowserControl::fbnBrowserZoomIn_Click() {}
void BrowserControl::fbnBrowserZoomOut_Click() {}
void BrowserControl::fbnGrid_Click() {}
void BrowserControl::fbnGoToAddress_Click() {}
void BrowserControl::ChangeMode() {}
void BrowserControl::CalculateBitmapMode() {}
void BrowserControl::FormatBitmapMode() {}
void BrowserControl::Form_Load() {}

}  // namespace brolk
