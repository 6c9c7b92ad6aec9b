// SPDX-License-Identifier: MIT
#include "palette/windows/palette_control.h"

#include "forms/keys.h"
#include "forms/windows.h"
#include "palette/color_edit.h"
#include "palette/palette_grid.h"
#include "palette/palette_model.h"
#include "palette/windows/color_dialog.h"
#include "palette/windows/palette_panel.h"
#include "shell/windows/main_form.h"
#include "tile/shared.h"

namespace brolk {
namespace {

// Between the Editor's panel and the tile tool in the default layout; the frame included it may be 131 pixels
// wide.
constexpr double kClientWidth = 1830;
constexpr double kClientHeight = 2910;

PanelPoint PointOf(const Picture& picture, float x, float y) {
  return {x, y, picture.ScaleWidth(), picture.ScaleHeight()};
}

}  // namespace

PaletteControl::PaletteControl()
    : Form({"PaletteControl", "Color Palette", FormKind::Child, FormBorder::Fixed, kClientWidth,
            kClientHeight}) {
  LayOut();
  ConnectEvents();
  picColor.setToolTip(QStringLiteral("Left: Choose color for Paint or Fill mode | Right: Edit color"));
  picColor.setAccessibleName(picColor.toolTip());
  shpCol.setAccessibleName(QStringLiteral("Current color"));
  lblSwitch.SetCentered();
  fbnPalShiftNum.SetCaption(QStringLiteral("1"));
}

void PaletteControl::LayOut() {
  const struct {
    QWidget& control;
    double left, top, width, height;
  } rows[] = {
      {picColor, 195, 120, 1440, 1440},       //
      {shpCol, 195, 1650, 1440, 240},         //
      {lblSwitch, 195, 1950, 1440, 240},      //
      {fbnPalShiftLeft, 60, 2280, 510, 510},  //
      {fbnPalShiftNum, 660, 2280, 510, 510},  //
      {fbnPalShiftRight, 1260, 2280, 510, 510},
  };
  for (const auto& row : rows) Place(row.control, row.left, row.top, row.width, row.height);
}

void PaletteControl::ConnectEvents() {
  picColor.MouseDown = [this](int button, int, float x, float y) { picColor_MouseDown(button, x, y); };
  picColor.MouseMove = [this](int, int, float x, float y) { picColor_MouseMove(x, y); };
  picColor.SetCells([] { return PanelCellPx(PaletteSide); });
  lblSwitch.SetClick([this] { lblSwitch_Click(); });
  fbnPalShiftNum.Click = [this] { fbnPalShiftNum_Click(); };
  fbnPalShiftLeft.Click = [this] { fbnPalShiftLeft_Click(); };
  fbnPalShiftRight.Click = [this] { fbnPalShiftRight_Click(); };
}

void PaletteControl::SetCurrentColor(std::uint8_t index) {
  CurrentColor = index;
  PaintPalettePanel();
}

void PaletteControl::picColor_MouseDown(int button, float x, float y) {
  const std::int32_t index = PressedColorIndex(PointOf(picColor, x, y), PaletteSide);
  if (button == kLeftButton) SetCurrentColor(static_cast<std::uint8_t>(index));
  if (button != kRightButton) return;
  The<ColorDialog>().SetColor(kLivePalette, static_cast<std::int16_t>(index), Palette[index]);
  The<ColorDialog>().Show();
}

void PaletteControl::picColor_MouseMove(float x, float y) {
  const std::int32_t index = ColorIndexUnderPointer(PointOf(picColor, x, y), PaletteSide);
  The<MainForm>().lblColor.SetText(QStringLiteral("Color %1").arg(index));
}

void PaletteControl::lblSwitch_Click() {
  PaletteSide = NextPaletteSide(PaletteSide);
  PaintPalettePanel();
}

void PaletteControl::fbnPalShiftNum_Click() {
  const std::string caption = fbnPalShiftNum.Caption().toStdString();
  fbnPalShiftNum.SetCaption(QString::fromStdString(NextShiftAmount(caption)));
}

void PaletteControl::fbnPalShiftLeft_Click() {
  RotatePaletteLeft(fbnPalShiftNum.Caption().toStdString());
  RefreshAfterPaletteChange(PanelRepaint::First);
}

void PaletteControl::fbnPalShiftRight_Click() {
  RotatePaletteRight(fbnPalShiftNum.Caption().toStdString());
  RefreshAfterPaletteChange(PanelRepaint::First);
}

}  // namespace brolk
