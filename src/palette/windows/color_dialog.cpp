// SPDX-License-Identifier: MIT
#include "palette/windows/color_dialog.h"

#include "forms/windows.h"
#include "palette/color_edit.h"
#include "palette/palette_model.h"
#include "palette/windows/color_set.h"
#include "palette/windows/palette_panel.h"

namespace brolk {
namespace {

constexpr double kClientWidth = 2250;
constexpr double kClientHeight = 3510;

// A step of one page moves a channel by one 5-bit step.
constexpr int kPageStep = 8;

struct Channel {
  const char* name;
  ColorValue darkColor;
  ColorValue brightColor;
};

constexpr Channel kChannels[] = {
    {"Red", 0x000050, 0x8080FF},
    {"Green", 0x004800, 0x80FF80},
    {"Blue", 0x600000, 0xFFB080},
};

}  // namespace

ColorDialog::ColorDialog()
    : Form({"ColorDialog", "Color", FormKind::Free, FormBorder::Fixed, kClientWidth, kClientHeight}) {
  LayOut();
  StyleChannels();
  ConnectEvents();
}

void ColorDialog::LayOut() {
  for (int channel = 0; channel < 3; ++channel) {
    const double left = 150 + 690 * channel;
    Place(lblColorValue[channel], left, 150, 570, 255);
    Place(vsbColor[channel], left + 157.5, 480, 255, 1920);
    Place(lblColorValue[channel + 3], left, 2475, 570, 255);
  }
  Place(lblColorPreview, 150, 2850, 1260, 510);
  Place(fbnCancel, 1590, 2850, 510, 510);
}

void ColorDialog::StyleChannels() {
  for (int index = 0; index < 6; ++index) {
    lblColorValue[index].SetBackColor(kChannels[index % 3].darkColor);
    lblColorValue[index].SetTextColor(kChannels[index % 3].brightColor);
    lblColorValue[index].SetCentered();
  }
  for (int channel = 0; channel < 3; ++channel) {
    vsbColor[channel].SetLargeChange(kPageStep);
    vsbColor[channel].setAccessibleName(QString::fromLatin1(kChannels[channel].name));
  }
  lblColorPreview.SetCentered();
  lblColorPreview.SetBorder();
}

void ColorDialog::ConnectEvents() {
  for (int channel = 0; channel < 3; ++channel) {
    vsbColor[channel].Change = [this, channel] { vsbColor_Change(channel); };
    vsbColor[channel].Scroll = [this, channel] { vsbColor_Change(channel); };
  }
  lblColorPreview.SetClick([this] { lblColorPreview_Click(); });
  fbnCancel.Click = [this] { Hide(); };
}

void ColorDialog::SetColor(std::int16_t setIndex, std::int16_t colorIndex, std::int32_t color) {
  EditSet = setIndex;
  EditIndex = colorIndex;
  vsbColor[0].SetValue(RedOf(color));
  vsbColor[1].SetValue(GreenOf(color));
  vsbColor[2].SetValue(BlueOf(color));
  for (int channel = 0; channel < 3; ++channel) vsbColor_Change(channel);
  lblColorPreview.SetBackColor(BarColor());
}

ColorValue ColorDialog::BarColor() const {
  return PackRgb(vsbColor[0].Value(), vsbColor[1].Value(), vsbColor[2].Value());
}

void ColorDialog::vsbColor_Change(int channel) {
  const int value = vsbColor[channel].Value();
  lblColorValue[channel].SetText(QString::number(value));
  lblColorValue[channel + 3].SetText(QString::number(FiveBits(value)));
  lblColorPreview.SetBackColor(BarColor());
  lblColorPreview.SetTextColor(PreviewTextColor(vsbColor[0].Value(), vsbColor[1].Value()));
}

void ColorDialog::lblColorPreview_Click() {
  const ColorValue color = BarColor();
  switch (TargetOf(EditSet)) {
    case ColorTarget::LivePalette:
      Palette[EditIndex] = color;
      RefreshAfterPaletteChange(PanelRepaint::Last);
      break;
    case ColorTarget::LivePaletteUnseen:
      Palette[EditIndex] = color;
      break;
    case ColorTarget::ColorSet:
      The<ColorSet>().SetColor(EditSet, EditIndex, color);
      break;
    case ColorTarget::Nothing:
      break;
  }
  Hide();
}

}  // namespace brolk
