// SPDX-License-Identifier: MIT
#include "browser/browser_windows.h"

namespace brolk::test {
namespace {

struct BrowserPanelLook : BrowserWindows {};

struct PlacedControl {
  const char* name;
  int left, top, width, height;  // twips
};

constexpr PlacedControl kPlaces[] = {
    {"lblFile", 1155, 0, 375, 255},
    {"fbnOpenFile", 120, 240, 510, 510},
    {"fbnOpenRecent", 600, 240, 150, 510},
    {"fbnCloseFile", 720, 240, 510, 510},
    {"fbnFileInfo", 1320, 240, 510, 510},
    {"fbnFavorite", 1920, 240, 510, 510},
    {"lblVisuals", 968, 960, 615, 255},
    {"fbnBrowserZoomIn", 120, 1200, 510, 510},
    {"fbnBrowserZoomOut", 720, 1200, 510, 510},
    {"fbnGrid", 1320, 1200, 495, 495},
    {"fbnColorSet", 1920, 1200, 510, 510},
    {"lblAddress", 908, 1920, 735, 255},
    {"txtAddress", 120, 2160, 1935, 315},
    {"fbnGoToAddress", 2160, 2160, 270, 225},
    {"hsbDiv", 120, 2640, 1935, 255},
    {"lblDiv", 2040, 2640, 495, 255},
    {"lblModes", 975, 3120, 600, 255},
    {"cboMode", 120, 3360, 2295, 330},
    {"lblSize", 735, 3960, 1320, 255},
    {"hsbRows", 120, 4200, 1935, 255},
    {"lblRows", 2160, 4200, 375, 255},
    {"hsbLines", 120, 4560, 1935, 255},
    {"lblLines", 2160, 4560, 375, 255},
    {"lblBtimap", 735, 5040, 1440, 255},
    {"cboBitmapMode", 120, 5280, 2295, 330},
    {"hsbBitmapWidth", 120, 5760, 1935, 255},
    {"lblBitmapWidth", 2160, 5760, 375, 255},
    {"hsbBitmapHeight", 120, 6120, 1935, 255},
    {"lblBitmapHeight", 2160, 6120, 375, 255},
};

TEST_F(BrowserPanelLook, EveryControlStandsAtItsPlace) {
  for (const PlacedControl& placed : kPlaces) {
    const QWidget& control = FindControl(Panel(), placed.name);
    EXPECT_EQ(control.geometry(), QRect(PixelsFromTwips(placed.left), PixelsFromTwips(placed.top),
                                        PixelsFromTwips(placed.width), PixelsFromTwips(placed.height)))
        << placed.name;
  }
}

TEST_F(BrowserPanelLook, FiveRulesSeparateTheGroups) {
  const int tops[] = {840, 1800, 3000, 3840, 4920};
  for (int number = 1; number <= 5; ++number) {
    const auto name = "fbnSeparator" + std::to_string(number);
    const QWidget& rule = FindControl(Panel(), name.c_str());
    EXPECT_EQ(rule.width(), 2310 / 15);
    EXPECT_EQ(rule.y(), tops[number - 1] / 15);
    EXPECT_FALSE(rule.isEnabled()) << "it is inert";
  }
}

TEST_F(BrowserPanelLook, HasItsClientAreaAndCaption) {
  EXPECT_EQ(Panel().ScaleWidth(), 2550 / 15);
  EXPECT_EQ(Panel().ScaleHeight(), 6495 / 15);
  EXPECT_EQ(Panel().Caption(), QStringLiteral("Browser Control"));
  EXPECT_TRUE(Panel().Visible()) << "it needs no file";
}

TEST_F(BrowserPanelLook, LabelsAreNavyTitlesBold) {
  const auto& panel = Panel();
  for (const Label* title : {&panel.lblFile, &panel.lblVisuals, &panel.lblAddress, &panel.lblModes,
                             &panel.lblSize, &panel.lblBtimap}) {
    EXPECT_TRUE(title->font().bold());
    EXPECT_EQ(title->palette().color(QPalette::WindowText), QColor(0, 0, 0x80));
    EXPECT_FALSE(title->autoFillBackground());
  }
  for (const Label* value : {&panel.lblDiv, &panel.lblRows, &panel.lblBitmapHeight})
    EXPECT_FALSE(value->font().bold());
}

TEST_F(BrowserPanelLook, CaptionsAreNotClipped) {
  for (const Label* label : Panel().findChildren<Label*>()) {
    EXPECT_LE(label->fontMetrics().horizontalAdvance(label->text()), label->width())
        << label->objectName().toStdString();
    EXPECT_LE(label->fontMetrics().height(), label->height()) << label->objectName().toStdString();
  }
}

TEST_F(BrowserPanelLook, BoxesAreYellowOnPurple) {
  for (QWidget* box : {static_cast<QWidget*>(&Panel().txtAddress), static_cast<QWidget*>(&Panel().cboMode),
                       static_cast<QWidget*>(&Panel().cboBitmapMode)}) {
    EXPECT_EQ(box->palette().color(QPalette::Base), QColor(0x80, 0, 0x80));
    EXPECT_EQ(box->palette().color(QPalette::Text), QColor(0xFF, 0xFF, 0));
  }
}

TEST_F(BrowserPanelLook, BarsShowSizingPointers) {
  auto& panel = Panel();
  for (const ScrollBar* bar : {&panel.hsbDiv, &panel.hsbRows, &panel.hsbBitmapWidth})
    EXPECT_EQ(bar->cursor().shape(), Qt::SizeHorCursor);
  for (const ScrollBar* bar : {&panel.hsbLines, &panel.hsbBitmapHeight})
    EXPECT_EQ(bar->cursor().shape(), Qt::SizeVerCursor);
}

}  // namespace
}  // namespace brolk::test
