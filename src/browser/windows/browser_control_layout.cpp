// SPDX-License-Identifier: MIT
#include "browser/windows/browser_control.h"

#include <utility>

namespace brolk {
namespace {

// A control of the panel and its place, in twips.
struct PlaceRow {
  QWidget& control;
  int left;
  int top;
  int width;
  int height;
};

constexpr int kSeparatorLeft = 120;
constexpr int kSeparatorWidth = 2310;
constexpr int kSeparatorHeight = 30;

}  // namespace

void BrowserControl::LayOut() {
  const PlaceRow rows[] = {
      {lblFile, 1155, 0, 375, 255},
      {fbnOpenFile, 120, 240, 510, 510},
      {fbnOpenRecent, 600, 240, 150, 510},
      {fbnCloseFile, 720, 240, 510, 510},
      {fbnFileInfo, 1320, 240, 510, 510},
      {fbnFavorite, 1920, 240, 510, 510},
      {lblVisuals, 968, 960, 615, 255},
      {fbnBrowserZoomIn, 120, 1200, 510, 510},
      {fbnBrowserZoomOut, 720, 1200, 510, 510},
      {fbnGrid, 1320, 1200, 495, 495},
      {fbnColorSet, 1920, 1200, 510, 510},
      {lblAddress, 908, 1920, 735, 255},
      {txtAddress, 120, 2160, 1935, 315},
      {fbnGoToAddress, 2160, 2160, 270, 225},
      {hsbDiv, 120, 2640, 1935, 255},
      {lblDiv, 2040, 2640, 495, 255},
      {lblModes, 975, 3120, 600, 255},
      {cboMode, 120, 3360, 2295, 330},
      {lblSize, 735, 3960, 1320, 255},
      {hsbRows, 120, 4200, 1935, 255},
      {lblRows, 2160, 4200, 375, 255},
      {hsbLines, 120, 4560, 1935, 255},
      {lblLines, 2160, 4560, 375, 255},
      {lblBtimap, 735, 5040, 1440, 255},
      {cboBitmapMode, 120, 5280, 2295, 330},
      {hsbBitmapWidth, 120, 5760, 1935, 255},
      {lblBitmapWidth, 2160, 5760, 375, 255},
      {hsbBitmapHeight, 120, 6120, 1935, 255},
      {lblBitmapHeight, 2160, 6120, 375, 255},
      {fbnSeparator1, kSeparatorLeft, 840, kSeparatorWidth, kSeparatorHeight},
      {fbnSeparator2, kSeparatorLeft, 1800, kSeparatorWidth, kSeparatorHeight},
      {fbnSeparator3, kSeparatorLeft, 3000, kSeparatorWidth, kSeparatorHeight},
      {fbnSeparator4, kSeparatorLeft, 3840, kSeparatorWidth, kSeparatorHeight},
      {fbnSeparator5, kSeparatorLeft, 4920, kSeparatorWidth, kSeparatorHeight},
  };
  for (const PlaceRow& row : rows) Place(row.control, row.left, row.top, row.width, row.height);
}

void BrowserControl::Dress() {
  for (Label* title : {&lblFile, &lblVisuals, &lblAddress, &lblModes, &lblSize, &lblBtimap}) title->SetBold();
  for (Label* value : {&lblDiv, &lblRows, &lblLines, &lblBitmapWidth, &lblBitmapHeight})
    value->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  for (ScrollBar* bar : {&hsbDiv, &hsbRows, &hsbBitmapWidth}) bar->setCursor(Qt::SizeHorCursor);
  for (ScrollBar* bar : {&hsbLines, &hsbBitmapHeight}) bar->setCursor(Qt::SizeVerCursor);
  const std::pair<QWidget&, const Label&> named[] = {{hsbDiv, lblDiv},
                                                     {hsbRows, lblRows},
                                                     {hsbLines, lblLines},
                                                     {hsbBitmapWidth, lblBitmapWidth},
                                                     {hsbBitmapHeight, lblBitmapHeight},
                                                     {txtAddress, lblAddress},
                                                     {cboBitmapMode, lblBtimap}};
  for (const auto& [control, label] : named) control.setAccessibleName(label.accessibleName());
  hsbDiv.SetLargeChange(2);
  fbnGrid.SetChecked(true);
  cboBitmapMode.AddItems(
      {QStringLiteral("1 bpp"), QStringLiteral("2 bpp"), QStringLiteral("4 bpp"), QStringLiteral("8 bpp")});
}

}  // namespace brolk
