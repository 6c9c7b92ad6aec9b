// SPDX-License-Identifier: MIT
#include "editor/windows/tile_control.h"

#include "browser/windows/page_view.h"
#include "editor/painting.h"
#include "editor/saving.h"
#include "editor/slots.h"
#include "editor/tile_address.h"
#include "editor/windows/edit.h"
#include "editor/windows/editor.h"
#include "forms/windows.h"
#include "runtime/numbers.h"
#include "tile/modes.h"
#include "tile/shared.h"
#include "tile/tile.h"
#include "tile/windows/confirm_save.h"

namespace brolk {
namespace {

// The same grid as on the panel of the Editor. Twips.
constexpr double kClientWidth = 1950;
constexpr double kClientHeight = 2670;
constexpr double kButtonSide = 510;

}  // namespace

TileControl::TileControl()
    : Form({"TileControl", "Tile Tool", FormKind::Child, FormBorder::Fixed, kClientWidth, kClientHeight}) {
  PlaceControls();
  txtAddress.Change = [this] { txtAddress_Change(); };
  fbnSaveTile.Click = [this] { fbnSaveTile_Click(); };
  fbnReloadTile.Click = [this] { fbnReloadTile_Click(); };
  fbnDeleteSprite.Click = [this] { fbnDeleteSprite_Click(); };
  fbnCopySelTile.Click = [this] { fbnCopySelTile_Click(); };
  fbnCopyToAddress.Click = [this] { fbnCopyToAddress_Click(); };
  fbnFlipX.Click = [this] { fbnFlipX_Click(); };
  fbnFlipY.Click = [this] { fbnFlipY_Click(); };
  fbnRotate.Click = [this] { fbnRotate_Click(); };
}

// The box stands beneath the button that writes to its address.
void TileControl::PlaceControls() {
  const struct {
    QWidget& control;
    double left, top, width, height;
  } rows[] = {
      {fbnSaveTile, 120, 120, kButtonSide, kButtonSide},
      {fbnReloadTile, 720, 120, kButtonSide, kButtonSide},
      {fbnDeleteSprite, 1320, 120, kButtonSide, kButtonSide},
      {fbnFlipX, 120, 720, kButtonSide, kButtonSide},
      {fbnFlipY, 720, 720, kButtonSide, kButtonSide},
      {fbnRotate, 1320, 720, kButtonSide, kButtonSide},
      {fbnCopySelTile, 120, 1320, kButtonSide, kButtonSide},
      {fbnCopyToAddress, 720, 1320, kButtonSide, kButtonSide},
      {txtAddress, 120, 1920, kClientWidth - 240, 315},
      {lblHex, 120, 2310, kClientWidth - 240, 255},
  };
  for (const auto& row : rows) Place(row.control, row.left, row.top, row.width, row.height);
}

void TileControl::Form_Load() {
  txtAddress_Change();
}

void TileControl::LoadTile(std::int16_t Slot) {
  LoadedSlot = Slot;
  LoadedAddress = Slot >= 0 ? EditSlots[Slot].Address : kNonCopied;
  if (LoadedAddress < kUnaddressed) {
    txtAddress.SetText(QString::fromLatin1(kNoAddress));
    txtAddress.setEnabled(false);
    return;
  }
  txtAddress.SetText(QString::number(LoadedAddress));
  txtAddress_Change();
  txtAddress.setEnabled(true);
}

void TileControl::txtAddress_Change() {
  const std::int32_t limit = Wrap32(std::int64_t{FileLength} - std::int64_t{Modes[GfxMode].BytesPerTile});
  const TileAddressTexts texts = TileAddressTextsFor(txtAddress.Text().toStdString(), LoadedAddress, limit);
  txtAddress.SetText(QString::fromStdString(texts.box));
  lblHex.SetText(QString::fromStdString(texts.hex));
}

bool TileControl::NothingLoaded() const {
  return txtAddress.Text().toStdString() == kNoAddress;
}

void TileControl::fbnSaveTile_Click() {
  if (NothingLoaded()) return;
  const std::int32_t address = EditSlots[LoadedSlot].Address;
  if (MayBeSaved(address) && ConfirmSave()) WriteTile(hFile, address, WrapByte(LoadedSlot));
  ReloadPage();
}

void TileControl::fbnReloadTile_Click() {
  if (NothingLoaded() || !FileOpen || LoadedAddress < 0) return;
  ReadSlotPixels(WrapByte(LoadedSlot), LoadedAddress);
  RedrawEditor();
}

void TileControl::fbnDeleteSprite_Click() {
  if (NothingLoaded()) return;
  ClearSlot(WrapByte(LoadedSlot));
  LoadTile(-1);
  RedrawEditor();
}

void TileControl::fbnCopySelTile_Click() {
  if (NothingLoaded() || !ConfirmSave()) return;
  WriteTile(hFile, SelectedAddress(), WrapByte(LoadedSlot));
  ReloadPage();
}

void TileControl::fbnCopyToAddress_Click() {
  if (!NothingLoaded() && ConfirmSave())
    WriteTile(hFile, AddressOfText(txtAddress.Text().toStdString()), WrapByte(LoadedSlot));
  ReloadPage();
}

void TileControl::fbnFlipX_Click() {
  if (NothingLoaded()) return;
  FlipPixelsX(EditSlots[LoadedSlot].Pixels);
  ShowMovedPixels();
  RedrawEditor();
  DrawEditorOverlay();
}

void TileControl::fbnFlipY_Click() {
  if (NothingLoaded()) return;
  FlipPixelsY(EditSlots[LoadedSlot].Pixels);
  ShowMovedPixels();
  RedrawEditor();
  DrawEditorOverlay();
}

// Unlike a flip, a rotation does not redraw the whole Editor.
void TileControl::fbnRotate_Click() {
  if (NothingLoaded()) return;
  RotatePixels(EditSlots[LoadedSlot].Pixels);
  ShowMovedPixels();
  DrawEditorOverlay();
}

void TileControl::ShowMovedPixels() {
  const std::uint8_t slot = WrapByte(LoadedSlot);
  RefreshSlotSurface(slot);
  DrawEditorCell(slot, ColumnOf(slot), LineOf(slot));
  SpreadToTwins(slot);
}

void TileControl::SpreadToTwins(std::uint8_t Slot) {
  CopyToTwins(Slot);
  DrawTwinCells(Slot);
  The<Editor>().Refresh();
}

}  // namespace brolk
