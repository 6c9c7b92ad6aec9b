// SPDX-License-Identifier: MIT
#include "editor/windows/edit.h"

#include <gtest/gtest.h>

#include "browser/windows/browser_control.h"
#include "editor/editor_fixture.h"
#include "palette/palette_model.h"
#include "palette/windows/palette_control.h"
#include "palette/windows/palette_panel.h"
#include "runtime/fault.h"

namespace brolk::test {
namespace {

using EditProcedures = EditorFixture;

std::vector<std::uint8_t> CountingBytes(std::size_t count) {
  std::vector<std::uint8_t> bytes(count);
  for (std::size_t i = 0; i < count; ++i) bytes[i] = static_cast<std::uint8_t>(i);
  return bytes;
}

TEST_F(EditProcedures, ShowAllCellsInTheFirstColourAtTheStart) {
  for (const EditSlot& slot : EditSlots) ASSERT_EQ(slot.Address, -2);
  EXPECT_FALSE(panel().fbnNonCopied.Checked());
  EXPECT_EQ(EmptySlotColor, Palette[0]);
  EXPECT_EQ(editor().Canvas().GetPixel(100, 100), Palette[0]);
  ExpectFreshPicture();
}

TEST_F(EditProcedures, SetTheColourOfNonCopiedSlotsInAFullRedrawAlone) {
  panel().fbnNonCopied.SetChecked(true);
  DrawEditorCell(0, 0, 0);
  EXPECT_EQ(EmptySlotColor, Palette[0]);
  EXPECT_EQ(editor().Canvas().GetPixel(5, 5), Palette[0]);
  RedrawEditor();
  EXPECT_EQ(EmptySlotColor, EmptyColor);
  EXPECT_EQ(editor().Canvas().GetPixel(5, 5), EmptyColor);
  ExpectFreshPicture();
}

TEST_F(EditProcedures, DrawTheGridInTheColourSharedWithTheBrowser) {
  GridColor = 0x00FF00;
  SelectionColor = 0x0000FF;
  RedrawEditor();
  EXPECT_EQ(editor().Canvas().GetPixel(48, 100), 0x00FF00);
  EXPECT_EQ(editor().Canvas().GetPixel(12, 0), 0x0000FF);
  panel().fbnEditorGrid.SetChecked(false);
  RedrawEditor();
  EXPECT_EQ(editor().Canvas().GetPixel(48, 100), Palette[0]);
  EXPECT_EQ(editor().Canvas().GetPixel(12, 0), 0x0000FF) << "the frame stays without the grid";
}

TEST_F(EditProcedures, DrawOneSlotAtAnyPlace) {
  SetSlot(3, 0, CountingTile(30));
  DrawEditorCell(3, 9, 9);
  ExpectCellShows(9, 9, EditSlots[3]);
  EXPECT_THROW(DrawEditorCell(256, 0, 0), Fault);
}

TEST_F(EditProcedures, DrawNothingForASlotBelowTheMarks) {
  SetSlot(20, 0, CountingTile(30));
  RedrawEditor();
  const Surface before = editor().Canvas();
  EditSlots[20].Address = -3;
  RedrawEditor();
  EXPECT_EQ(editor().Canvas(), before) << "what stood there stays";
}

TEST_F(EditProcedures, ReadATileIntoASlotWithoutRedrawing) {
  Open("rom.gba", CountingBytes(1024), kGba8);
  RedrawEditor();
  const Surface before = editor().Canvas();
  AddTileToSlot(64, 3);
  EXPECT_EQ(EditSlots[3].Address, 64);
  EXPECT_EQ(EditSlots[3].Pixels, CountingTile(64));
  EXPECT_EQ(EditSlots[3].SlotSurface.GetPixel(1, 0), Palette[65]);
  EXPECT_EQ(editor().Canvas(), before);
}

TEST_F(EditProcedures, RefuseATileThatTheSlotHoldsAlready) {
  Open("rom.gba", CountingBytes(1024), kGba8);
  SetSlot(3, 64, PlainTile(5));
  const auto boxes = WithAnswers({1}, [] { AddTileToSlot(64, 3); });
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].text, "There is already a tile with the same address in the editor.");
  EXPECT_EQ(boxes[0].title, "Brolk Plus - Editor error");
  EXPECT_EQ(boxes[0].icon, "msg-exclamation");
  EXPECT_EQ(EditSlots[3].Pixels, PlainTile(5)) << "the slot stays as it was";
}

TEST_F(EditProcedures, AskTheTargetSlotAlone) {
  Open("rom.gba", CountingBytes(1024), kGba8);
  SetSlot(3, 64, PlainTile(5));
  WithAnswers({}, [] { AddTileToSlot(64, 4); });
  EXPECT_EQ(EditSlots[4].Address, 64);
}

TEST_F(EditProcedures, MeetTheirOwnGuardWithAnAddressThatWrapsToTheMark) {
  WithAnswers({1}, [] { AddTileToSlot(-2, 7); });
}

TEST_F(EditProcedures, ClearAndFillASlotWithTheSameAddressWithoutAMessage) {
  Open("rom.gba", CountingBytes(1024), kGba8);
  WithAnswers({}, [] {
    AddTileToSlot(64, 3);
    ClearSlot(3);
    AddTileToSlot(64, 3);
  });
  EXPECT_EQ(EditSlots[3].Address, 64);
}

TEST_F(EditProcedures, EmptyTheEditorAndShowIt) {
  for (int slot = 0; slot < 256; ++slot) SetSlot(static_cast<std::uint8_t>(slot), 0, CountingTile());
  RedrawEditor();
  ClearEditor();
  for (const EditSlot& slot : EditSlots) ASSERT_EQ(slot.Address, -2);
  ExpectFreshPicture();
}

TEST_F(EditProcedures, KeepPicturesButNotAddressesWhenAnotherFileIsOpened) {
  Open("one.gba", CountingBytes(1024), kGba8);
  AddTileToSlot(64, 3);
  SetSlot(4, -1, PlainTile(9));
  const std::string other = MakeFile("two.gba", CountingBytes(2048));
  WithAnswers({6}, [&] { OpenRomFile(other); });
  EXPECT_EQ(EditSlots[3].Address, -1);
  EXPECT_EQ(EditSlots[3].Pixels, CountingTile(64));
  EXPECT_EQ(EditSlots[4].Address, -1);
  EXPECT_EQ(EditSlots[5].Address, -2);
}

TEST_F(EditProcedures, KeepAddressesWhenTheFileIsClosed) {
  Open("one.gba", CountingBytes(1024), kGba8);
  AddTileToSlot(64, 3);
  WithAnswers({6}, [] { ClickControl(The<BrowserControl>().fbnCloseFile); });
  EXPECT_EQ(EditSlots[3].Address, 64);
}

TEST_F(EditProcedures, RecolourEverySurfaceWithThePaletteAndNoPixel) {
  SetSlot(3, 0, CountingTile());
  SetSlot(255, -1, CountingTile(64));
  ClickControl(The<PaletteControl>().fbnPalShiftLeft);
  EXPECT_EQ(EditSlots[3].Pixels, CountingTile());
  EXPECT_EQ(EditSlots[255].SlotSurface.GetPixel(0, 0), Palette[64]);
  ExpectFreshPicture();
}

TEST_F(EditProcedures, KeepSlotsThroughModeZoomAndScroll) {
  Open("rom.gba", CountingBytes(1024), kGba8);
  AddTileToSlot(64, 3);
  The<BrowserControl>().cboMode.SetListIndex(4);
  MainEdZoom = 2;
  RedrawEditor();
  EXPECT_EQ(EditSlots[3].Address, 64);
  EXPECT_EQ(EditSlots[3].Pixels, CountingTile(64));
}

TEST_F(EditProcedures, WriteATileOfA2BitModeUnchangedInAn8BitMode) {
  const std::string path = Open("rom.gb", std::vector<std::uint8_t>(1024, 0x0F), kGameboy);
  AddTileToSlot(0, 0);
  const TilePixels pixels = EditSlots[0].Pixels;
  EXPECT_EQ(pixels[4], 3);
  The<BrowserControl>().cboMode.SetListIndex(6);
  ASSERT_EQ(GfxMode, kGba8);
  mouse.Click(At(0, 0));
  mouse.Move(At(0, 0));
  WithAnswers({6}, [this] { ClickControl(tool().fbnSaveTile); });
  const std::vector<std::uint8_t> bytes = FileBytes(path);
  for (int index = 0; index < 64; ++index) EXPECT_EQ(bytes[static_cast<std::size_t>(index)], pixels[index]);
}

TEST_F(EditProcedures, ScaleCellsTo16And240Pixels) {
  SetSlot(0, 0, CountingTile(20));
  for (const std::int16_t zoom : {std::int16_t{2}, std::int16_t{30}}) {
    MainEdZoom = zoom;
    RedrawEditor();
    ExpectCellShows(0, 0, EditSlots[0]);
    ExpectFrame(0, 0, SelectionColor);
  }
}

}  // namespace
}  // namespace brolk::test
