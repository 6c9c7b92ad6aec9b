// SPDX-License-Identifier: MIT
#include "exchange/windows/c_output.h"

#include "runtime/ansi_text.h"
#include "runtime/numbers.h"

namespace brolk {
namespace {

constexpr double kClientWidth = 6240;
constexpr double kClientHeight = 4200;

// The formats of RGBToCol behind the two entries of the list of palette types. They are crossed against the
// names that the conversion gives them; that is meant.
constexpr std::uint8_t kFormatOfFirstEntry = 1;
constexpr std::uint8_t kFormatOfSecondEntry = 0;

}  // namespace

COutPut::COutPut()
    : Form({"COutPut", "Tile and Palette C/C++ Converter", FormKind::Child, FormBorder::Fixed, kClientWidth,
            kClientHeight}) {
  LayOut();
  Dress();
  FillLists();
  ConnectEvents();
}

void COutPut::LayOut() {
  const struct {
    QWidget& control;
    double left, top, width, height;
  } rows[] = {
      {lblTileCon, 120, 75, 2880, 255},        //
      {lblSize, 120, 360, 1260, 330},          //
      {cboSize, 1440, 360, 1560, 330},         //
      {lblShape, 120, 780, 1260, 330},         //
      {cboShape, 1440, 780, 1560, 330},        //
      {lblRows2, 120, 1200, 600, 255},         //
      {hsbRows, 720, 1200, 1860, 255},         //
      {lblRows, 2640, 1200, 360, 255},         //
      {lblLines2, 120, 1560, 600, 255},        //
      {hsbLines, 720, 1560, 1860, 255},        //
      {lblLines, 2640, 1560, 360, 255},        //
      {cboTilemode, 120, 1920, 2880, 330},     //
      {lblColPalCon, 3240, 75, 2880, 255},     //
      {cboPaletteType, 3240, 360, 2880, 330},  //
      {cboColorCount, 3240, 780, 2880, 330},   //
      {lblNames, 120, 2430, 6000, 255},        //
      {lblSprite, 120, 2730, 2250, 255},       //
      {txtSprite, 120, 3000, 2250, 315},       //
      {fbnCCodeSprite, 2490, 2805, 510, 510},  //
      {lblPalette, 3240, 2730, 2250, 255},     //
      {txtPalette, 3240, 3000, 2250, 315},     //
      {fbnCCodePalette, 5610, 2805, 510, 510}, {lblInfo, 120, 3570, 5250, 510},
      {fbnClose, 5610, 3570, 510, 510},
  };
  for (const auto& row : rows) Place(row.control, row.left, row.top, row.width, row.height);
}

void COutPut::Dress() {
  for (Label* title : {&lblTileCon, &lblColPalCon, &lblNames}) {
    title->SetBold();
    title->SetCentered();
  }
  for (Label* label : {&lblSize, &lblShape, &lblRows2, &lblRows, &lblLines2, &lblLines, &lblInfo})
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  for (ScrollBar* bar : {&hsbRows, &hsbLines}) bar->setCursor(Qt::SizeHorCursor);
  hsbRows.setAccessibleName(lblRows2.Text());
  hsbLines.setAccessibleName(lblLines2.Text());
  cboPaletteType.setAccessibleName(QStringLiteral("Palette type"));
  cboColorCount.setAccessibleName(QStringLiteral("Number of colors"));
  txtSprite.setAccessibleName(lblSprite.Text());
  txtPalette.setAccessibleName(lblPalette.Text());
}

// No entry is chosen before the window loads.
void COutPut::FillLists() {
  const struct {
    ComboList& list;
    QStringList texts;
  } rows[] = {
      {cboSize, {"8", "16", "32", "64"}},
      {cboShape, {"Square", "Wide", "High"}},
      {cboTilemode, {"GBA 16 bpp", "GBA 256 bpp"}},
      {cboPaletteType, {"15 bpc BGR", "15 bpc RGB"}},
      {cboColorCount, {"16", "256"}},
  };
  for (const auto& row : rows) {
    row.list.AddItems(row.texts);
    row.list.setCurrentIndex(-1);
  }
}

void COutPut::ConnectEvents() {
  const auto update = [this] { UpdateSpriteCounts(); };
  cboSize.Click = update;
  cboShape.Click = update;
  for (ScrollBar* bar : {&hsbRows, &hsbLines}) {
    bar->Change = update;
    bar->Scroll = update;
  }
  fbnCCodeSprite.Click = [this] { fbnCCodeSprite_Click(); };
  fbnCCodePalette.Click = [this] { fbnCCodePalette_Click(); };
  fbnClose.Click = [this] { Hide(); };
}

void COutPut::Form_Load() {
  for (ComboList* list : {&cboSize, &cboShape, &cboTilemode, &cboPaletteType, &cboColorCount})
    list->SetListIndex(0);
}

void COutPut::UpdateSpriteCounts() {
  if (const SpriteSize* size = FindSpriteSize(cboSize.ListIndex(), cboShape.ListIndex())) {
    SpriteWidth = size->widthPx;
    SpriteHeight = size->heightPx;
    hsbRows.SetMax(size->maxRows);
    hsbLines.SetMax(size->maxLines);
  }
  lblRows.SetText(QString::number(hsbRows.Value()));
  lblLines.SetText(QString::number(hsbLines.Value()));
  lblInfo.SetText(QString::fromStdString(PlanText(PlanFromControls())));
}

SpritePlan COutPut::PlanFromControls() const {
  return {.name = AnsiFromUtf8(txtSprite.Text().toStdString()),
          .widthPx = SpriteWidth,
          .heightPx = SpriteHeight,
          .rows = hsbRows.Value(),
          .lines = hsbLines.Value(),
          .maxRows = hsbRows.Max(),
          .words = cboTilemode.ListIndex() == 0 ? TileWords::Colors16 : TileWords::Colors256};
}

std::string COutPut::AskPath() {
  cdlCOutPut.FileName.clear();
  cdlCOutPut.Filter = QStringLiteral("C header files (*.h)|*.h");
  cdlCOutPut.ShowSave();
  return cdlCOutPut.FileName.toStdString();
}

void COutPut::ShowAtOnce(const std::string& text) {
  lblInfo.SetText(QString::fromStdString(text));
  lblInfo.Refresh();
}

void COutPut::fbnCCodeSprite_Click() {
  const std::string path = AskPath();
  if (path.empty()) return;
  lblInfo.Refresh();
  const SpritePlan plan = PlanFromControls();
  WriteSpriteSource(path, plan, [&](int done) { ShowAtOnce(ProgressText(plan, done)); });
  ShowAtOnce(ResultText(plan));
}

// The name chosen in the dialog only tells a cancel from a choice: the file is always "Palette.h" in the
// current folder. That is meant.
void COutPut::fbnCCodePalette_Click() {
  if (AskPath().empty()) return;
  const std::int32_t count = RoundToLong(Val(cboColorCount.Text().toStdString()));
  const std::uint8_t format = cboPaletteType.ListIndex() == 0 ? kFormatOfFirstEntry : kFormatOfSecondEntry;
  WritePaletteSource(AnsiFromUtf8(txtPalette.Text().toStdString()), count, format);
}

}  // namespace brolk
