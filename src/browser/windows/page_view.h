// SPDX-License-Identifier: MIT
#pragma once

// The road from the scroll bar to the screen. All procedures work on the shared block and the window Browser.
namespace brolk {

// Makes the page's surface, then the Editor's slot surfaces.
void CreateSurfaces();
// Frees them; a second call does nothing.
void ReleaseSurfaces();
// Sizes the window after the page and places the scroll bar.
void FormatBrowser();
// Sets ScrollScale and the maximum of vsbAddress. LineBytes 0 is the division fault.
void SetScrollRange();
// Decodes the page where it stands, sizes the window, paints.
void ReloadPage();
// The address follows the scroll bar; decodes, paints, selects again.
void RedrawFromScroll();
// Shows the address, paints PageBuffer, blit, grid, caption, show.
void PaintPage();
// Copies the surface to the window, stretched.
void BlitPage();
// The grid if it is on, then the selection frame.
void DrawGridAndFrame();

}  // namespace brolk
