// SPDX-License-Identifier: MIT
#include "browser/windows/page_view.h"

namespace brolk {

void CreateSurfaces() {}
void ReleaseSurfaces() {}
void FormatBrowser() {}
void SetScrollRange() {}
void ReloadPage() {}
void RedrawFromScroll() {}
void PaintPage() {}
void BlitPage() {}
void DrawGridAndFrame() {}

}  // namespace brolk
