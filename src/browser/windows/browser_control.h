// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "forms/flat_button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/lists.h"
#include "forms/scroll_bar.h"
#include "forms/text_box.h"

namespace brolk {

// The panel beside the page.
class BrowserControl final : public Form {
 public:
  BrowserControl();

  // button 1 asks for a file, 2 opens the first recent one, any other does nothing.
  void fbnOpenFile_MouseDown(int button, int shift, float x, float y);
  void fbnCloseFile_Click();
  void fbnFileInfo_Click();
  void fbnBrowserZoomIn_Click();
  void fbnBrowserZoomOut_Click();
  void fbnGrid_Click();
  // Goes to the number in the address box. No guard on an open file: an empty file is the division fault.
  void fbnGoToAddress_Click();
  // The click of cboMode.
  void ChangeMode();
  // Depth and tile bytes of Bitmap Mode for the present tile size.
  void CalculateBitmapMode();
  // The same on entering Bitmap Mode, by another formula. The tile becomes square, and the two page size bars
  // get the range that fits the surface, which can move them.
  void FormatBitmapMode();

  void Form_Load() override;
  void Form_KeyDown(int keyCode, int shift) override;

  Label lblFile{*this, "lblFile", "File"};
  FlatButton fbnOpenFile{*this, "fbnOpenFile", "open", "Left: Open Dialog | Right: open last opened Rom"};
  FlatButton fbnOpenRecent{*this, "fbnOpenRecent", "recent", "Recent files list"};
  FlatButton fbnCloseFile{*this, "fbnCloseFile", "close-file", "Close Rom"};
  FlatButton fbnFileInfo{*this, "fbnFileInfo", "file-info", "Show File info"};
  FlatButton fbnFavorite{*this, "fbnFavorite", "favorites", "Show Favorites"};
  Label lblVisuals{*this, "lblVisuals", "Visuals"};
  FlatButton fbnBrowserZoomIn{*this, "fbnBrowserZoomIn", "zoom-in", "Zoom in"};
  FlatButton fbnBrowserZoomOut{*this, "fbnBrowserZoomOut", "zoom-out", "Zoom out"};
  FlatButton fbnGrid{*this, "fbnGrid", "grid", "Toggle grid", FlatButton::Kind::Toggle};
  FlatButton fbnColorSet{*this, "fbnColorSet", "color-set", "Open the Color Set Tool"};
  Label lblAddress{*this, "lblAddress", "Address"};
  TextBox txtAddress{*this, "txtAddress", "0"};
  FlatButton fbnGoToAddress{*this, "fbnGoToAddress", "goto", "Go to Address"};
  ScrollBar hsbDiv{Qt::Horizontal, *this, "hsbDiv", 0, 16, 0};
  Label lblDiv{*this, "lblDiv", "8", "Shift amount"};
  Label lblModes{*this, "lblModes", "Modes"};
  ComboList cboMode{*this, "cboMode", "Select mode to use when reading and writing tiles"};
  Label lblSize{*this, "lblSize", "Browser Size"};
  ScrollBar hsbRows{Qt::Horizontal, *this, "hsbRows", 2, 32, 8};
  Label lblRows{*this, "lblRows", "8", "Browser width"};
  ScrollBar hsbLines{Qt::Horizontal, *this, "hsbLines", 6, 32, 16};
  Label lblLines{*this, "lblLines", "16", "Browser height"};
  Label lblBtimap{*this, "lblBtimap", "Bitmap Mode"};
  ComboList cboBitmapMode{*this, "cboBitmapMode"};
  ScrollBar hsbBitmapWidth{Qt::Horizontal, *this, "hsbBitmapWidth", 1, 32, 8};
  Label lblBitmapWidth{*this, "lblBitmapWidth", "8", "Bitmap width"};
  ScrollBar hsbBitmapHeight{Qt::Horizontal, *this, "hsbBitmapHeight", 1, 32, 8};
  Label lblBitmapHeight{*this, "lblBitmapHeight", "8", "Bitmap height"};
  FlatButton fbnSeparator1{*this, "fbnSeparator1", "", "", FlatButton::Kind::Separator};
  FlatButton fbnSeparator2{*this, "fbnSeparator2", "", "", FlatButton::Kind::Separator};
  FlatButton fbnSeparator3{*this, "fbnSeparator3", "", "", FlatButton::Kind::Separator};
  FlatButton fbnSeparator4{*this, "fbnSeparator4", "", "", FlatButton::Kind::Separator};
  FlatButton fbnSeparator5{*this, "fbnSeparator5", "", "", FlatButton::Kind::Separator};

 private:
  void LayOut();
  void Dress();
  void ConnectFile();
  void ConnectPage();
  void ConnectBitmap();

  void fbnOpenRecent_Click();
  void fbnFavorite_Click();
  void fbnColorSet_Click();
  void hsbDiv_Change();
  void hsbRows_Change();
  void hsbLines_Change();
  void hsbBitmapWidth_Change();
  void hsbBitmapHeight_Change();
  // The change handler of the list of depths. A drop-down list never raises it; the two bitmap bars run it.
  void cboBitmapMode_Change();
};

}  // namespace brolk
