// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QTest>

#include "browser/windows/browser.h"
#include "editor/editor_fixture.h"
#include "shell/windows/options.h"

namespace brolk::test {
namespace {

// A file of 8-bit tiles with tile t all of colour t, shown in the Browser right of the Editor.
struct EditorDrag : EditorFixture {
  void SetUp() override {
    EditorFixture::SetUp();
    std::vector<std::uint8_t> bytes(64 * 200);
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<std::uint8_t>(i / 64);
    path = Open("rom.gba", bytes, kGba8);
    browser().SetLeft(420 * 15);
    browser().SetTop(0);
    browser().SetFocus();
    editor().SetFocus();
  }

  static Browser& browser() { return The<Browser>(); }
  [[nodiscard]] static QPoint InBrowser(int column, int line) { return {column * 24 + 12, line * 24 + 12}; }
  // A point of one window as seen from the other, by the outer corners, as the program converts.
  [[nodiscard]] static QPoint Seen(const Form& from, const Form& to, QPoint at) {
    return {at.x() + static_cast<int>((from.Left() - to.Left()) / 15),
            at.y() + static_cast<int>((from.Top() - to.Top()) / 15)};
  }

  std::string path;
};

// --- From the Browser into the Editor

TEST_F(EditorDrag, TakesATileFromTheBrowser) {
  Mouse overBrowser(browser());
  const QPoint target = Seen(editor(), browser(), At(4, 2));
  overBrowser.Drag(InBrowser(3, 1), target);
  EXPECT_EQ(EditSlots[36].Address, (8 + 3) * 64);
  EXPECT_EQ(EditSlots[36].Pixels, PlainTile(11));
  EXPECT_EQ(EditSelColumn, 0) << "the selected slot does not change";
  EXPECT_EQ(EditSelLine, 0);
  ExpectFreshPicture();
}

TEST_F(EditorDrag, TakesTheSameTileIntoTwoSlotsWithoutAMessage) {
  Mouse overBrowser(browser());
  WithAnswers({}, [&] {
    overBrowser.Drag(InBrowser(3, 1), Seen(editor(), browser(), At(4, 2)));
    overBrowser.Drag(InBrowser(3, 1), Seen(editor(), browser(), At(5, 2)));
    overBrowser.Drag(InBrowser(3, 1), Seen(editor(), browser(), At(5, 2)));
  });
  EXPECT_EQ(EditSlots[36].Address, EditSlots[37].Address);
}

TEST_F(EditorDrag, ReplacesWhatStoodInTheSlot) {
  SetSlot(36, -1, CountingTile());
  Mouse overBrowser(browser());
  overBrowser.Drag(InBrowser(1, 0), Seen(editor(), browser(), At(4, 2)));
  EXPECT_EQ(EditSlots[36].Address, 64);
}

TEST_F(EditorDrag, LandsInTheSlotUnderTheScrolledPoint) {
  editor().SetClientSize(300, 200);
  editor().hsbEdit.SetValue(24);
  editor().vsbEdit.SetValue(48);
  SelColumn = 2;
  SelLine = 0;
  editor().DragToEditor(0, 0);
  EXPECT_EQ(EditSlots[33].Address, 128);
}

TEST_F(EditorDrag, LandsNowhereOutsideTheClientArea) {
  for (const QPoint at : {QPoint(-1, 5), QPoint(5, -1), QPoint(402, 5), QPoint(5, 402)})
    editor().DragToEditor(static_cast<std::int16_t>(at.x()), static_cast<std::int16_t>(at.y()));
  for (const EditSlot& slot : EditSlots) ASSERT_EQ(slot.Address, -2);
}

TEST_F(EditorDrag, LandsFurtherAlongInSlotOrderRightOfTheGrid) {
  SelColumn = 1;
  editor().DragToEditor(400, 0);
  EXPECT_EQ(EditSlots[16].Address, 64);
  editor().DragToEditor(0, 400);
  EXPECT_EQ(EditSlots[0].Address, 64) << "below the grid, modulo 256";
}

TEST_F(EditorDrag, WrapsTheSelectedTileAt16Bits) {
  MainRows = 32;
  SelColumn = 0;
  SelLine = 16;
  BrowserAddress = 100;
  editor().DragToEditor(0, 0);
  EXPECT_EQ(EditSlots[0].Address, 100 - 32768);
  EXPECT_EQ(LoadableSlot(0), -1);
}

TEST_F(EditorDrag, ReadsZerosWithoutAFile) {
  WithAnswers({6}, [] { The<MainForm>().mnuClose.trigger(); });
  ASSERT_FALSE(FileOpen);
  SelColumn = 5;
  editor().DragToEditor(0, 0);
  EXPECT_EQ(EditSlots[0].Pixels, PlainTile(0));
  EXPECT_GE(EditSlots[0].Address, 0);
}

// --- From the Editor into the Browser

TEST_F(EditorDrag, DropsTheSelectedSlotOnTheBrowserAfterAsking) {
  SetSlot(5, -1, PlainTile(77));
  const QPoint target = Seen(browser(), editor(), InBrowser(2, 1));
  const auto boxes = WithAnswers({6}, [&] { mouse.Drag(At(5, 0), target); });
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].title, "Brolk Plus - Save?");
  const std::vector<std::uint8_t> bytes = FileBytes(path);
  for (std::size_t i = 0; i < 64; ++i) ASSERT_EQ(bytes[10 * 64 + i], 77);
  EXPECT_EQ(bytes[9 * 64 + 63], 9);
  EXPECT_EQ(bytes[11 * 64], 11);
  EXPECT_EQ(PageBuffer[10 * 64], 77) << "the page shows what the file holds";
  EXPECT_EQ(EditSlots[5].Address, -1) << "the slot keeps its address";
}

TEST_F(EditorDrag, DropsNothingWhenTheUserDoesNotAgree) {
  const std::vector<std::uint8_t> before = FileBytes(path);
  for (const int answer : {7, 0})
    WithAnswers({answer}, [&] { mouse.Drag(At(5, 0), Seen(browser(), editor(), InBrowser(2, 1))); });
  EXPECT_EQ(FileBytes(path), before);
}

TEST_F(EditorDrag, DropsNothingInPaintAndFill) {
  for (const EditTools toolNumber : {kPaintTool, kFillTool}) {
    The<MainForm>().ChooseTool(toolNumber);
    WithAnswers({}, [&] { mouse.Drag(At(5, 0), Seen(browser(), editor(), InBrowser(2, 1))); });
  }
}

TEST_F(EditorDrag, DropsNothingOnAHiddenBrowser) {
  browser().Hide();
  WithAnswers({}, [&] { mouse.Drag(At(5, 0), Seen(browser(), editor(), InBrowser(2, 1))); });
}

TEST_F(EditorDrag, DropsNothingBesideTheBrowser) {
  WithAnswers({}, [&] { mouse.Drag(At(5, 0), Seen(browser(), editor(), {-5, 20})); });
  WithAnswers({}, [&] { mouse.Drag(At(5, 0), {-3, -3}); });
}

TEST_F(EditorDrag, DropsNothingWhenReleasedInside) {
  WithAnswers({}, [&] { mouse.Drag(At(5, 0), {401, 401}); });
}

TEST_F(EditorDrag, DropsWhicheverButtonItWasAndWhereverThePressBegan) {
  SetSlot(0, -1, PlainTile(66));
  The<Options>().fbnSaveWarning.SetChecked(false);
  mouse.Drag({390, 390}, Seen(browser(), editor(), InBrowser(0, 0)));
  EXPECT_EQ(FileBytes(path)[0], 66);
  SetSlot(0, -1, PlainTile(55));
  mouse.Drag(At(7, 7), Seen(browser(), editor(), InBrowser(1, 0)), Qt::MiddleButton);
  EXPECT_EQ(FileBytes(path)[64], 55);
}

TEST_F(EditorDrag, DropsInsteadOfSwapping) {
  The<Options>().fbnSaveWarning.SetChecked(false);
  SetSlot(5, -1, PlainTile(77));
  mouse.Drag(At(5, 0), Seen(browser(), editor(), InBrowser(2, 1)));
  EXPECT_EQ(editor().SlotDragging, 0) << "the pointer has left the grid";
  mouse.Move(At(9, 9));
  EXPECT_EQ(EditSlots[5].Pixels, PlainTile(77));
}

TEST_F(EditorDrag, RedrawsTheEditorWhenThePointerIsLetGoOutside) {
  panel().fbnEditorGrid.SetChecked(false);
  mouse.Press(At(5, 0));
  editor().Canvas().Fill(0x123456);
  mouse.Release({5, -40});
  ExpectFreshPicture();
}

TEST_F(EditorDrag, LeavesThePictureWhenThePointerIsLetGoInside) {
  mouse.Press(At(5, 0));
  editor().Canvas().Fill(0x123456);
  mouse.Release({5, 40});
  EXPECT_EQ(editor().Canvas().GetPixel(5, 5), 0x123456);
}

TEST_F(EditorDrag, RoundsTheConvertedPointToTheNearestPixel) {
  // 23.5 pixels count as 24, the first of the second tile.
  SetSlot(0, -1, PlainTile(99));
  The<Options>().fbnSaveWarning.SetChecked(false);
  editor().Form_MouseUp(1, 0, 420.0F + 23.5F, 0.25F);
  EXPECT_EQ(FileBytes(path)[0], 0);
  EXPECT_EQ(FileBytes(path)[64], 99);
}

}  // namespace
}  // namespace brolk::test
