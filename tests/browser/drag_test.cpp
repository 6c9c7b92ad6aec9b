// SPDX-License-Identifier: MIT
#include <QMdiSubWindow>
#include <QTest>
#include <algorithm>

#include "browser/browser_windows.h"
#include "editor/slots.h"
#include "editor/windows/editor.h"
#include "shell/windows/options.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

struct PageDrag : BrowserWindows {
  void SetUp() override {
    BrowserWindows::SetUp();
    The<Options>().fbnSaveWarning.SetChecked(false);
  }
};

// A point of the page in pixels of the Editor, by the outer edges of the two windows.
QPoint PagePointOver(QPoint editorPoint) {
  return editorPoint + The<Editor>().ChildFrame()->pos() - The<Browser>().ChildFrame()->pos();
}

// Dragging to the Editor.

TEST_F(PageDrag, AReleaseOverTheEditorDropsTheTileThere) {
  const auto& file = OpenGba8();
  ASSERT_TRUE(The<Editor>().Visible());
  PressPage(Qt::LeftButton, 24 * 3 + 1, 24 * 2 + 1);
  // The Editor's slots are 24 pixels wide too: column 2, line 1.
  const QPoint over = PagePointOver({2 * 24 + 12, 24 + 12});
  MovePointer(over.x(), over.y());
  QTest::mouseRelease(&Page(), Qt::LeftButton, {}, over);
  EXPECT_EQ(EditSlots[18].Address, 19 * 64);
  EXPECT_EQ(PixelsOf(18), TileAtAddress(file, 19 * 64));
  EXPECT_EQ(EditSelColumn, 0) << "the selected slot stays";
}

TEST_F(PageDrag, FramesAndTitleBarsAreNotTakenIntoAccount) {
  OpenGba8();
  PressPage(Qt::LeftButton, 1, 1);
  // 23 pixels below the Editor's outer edge count as its line 0, although its client area starts only there.
  QTest::mouseRelease(&Page(), Qt::LeftButton, {}, PagePointOver({5, 23}));
  EXPECT_EQ(EditSlots[0].Address, 0);
}

TEST_F(PageDrag, WithTheEditorHiddenAReleaseOutsideDoesNothing) {
  OpenGba8();
  The<Editor>().Hide();
  PressPage(Qt::LeftButton, 1, 1);
  QTest::mouseRelease(&Page(), Qt::LeftButton, {}, PagePointOver({12, 12}));
  EXPECT_EQ(EditSlots[0].Address, kNonCopied);
}

TEST_F(PageDrag, AReleaseInsideDoesNothing) {
  OpenGba8();
  ClickPage(208, 383);
  EXPECT_EQ(EditSlots[0].Address, kNonCopied);
  // The edges of the client area: one pixel further is outside.
  PressPage(Qt::LeftButton, 1, 1);
  The<Editor>().SetLeft(Page().Left() + 209 * 15);
  QTest::mouseRelease(&Page(), Qt::LeftButton, {}, {209, 10});
  EXPECT_EQ(EditSlots[0].Address, 0);
}

TEST_F(PageDrag, AnyButtonDrops) {
  OpenGba8();
  QTest::mousePress(&Page(), Qt::MiddleButton, {}, QPoint(30, 1));
  QTest::mouseRelease(&Page(), Qt::MiddleButton, {}, PagePointOver({12, 12}));
  EXPECT_EQ(EditSlots[0].Address, 64);
}

TEST_F(PageDrag, ADropFarFromTheEditorDoesNothing) {
  OpenGba8();
  PressPage(Qt::LeftButton, 1, 1);
  QTest::mouseRelease(&Page(), Qt::LeftButton, {}, {-3000, -3000});
  for (const EditSlot& slot : EditSlots) ASSERT_EQ(slot.Address, kNonCopied);
}

// Dropping a slot on the page.

TEST_F(PageDrag, ASlotDroppedOnThePageIsWrittenAtTheTile) {
  auto file = OpenGba8();
  EditSlots[0].Address = kUnaddressed;
  EditSlots[0].Pixels.fill(77);
  Page().DragToBrowser(24 * 2 + 3, 24 + 3);
  std::fill_n(file.begin() + 10 * 64, 64, std::uint8_t{77});
  EXPECT_EQ(FileBytes(FileName), file);
  EXPECT_EQ(ShownPage(), NaivePage(file)) << "the page shows the changed file";
}

TEST_F(PageDrag, TheSelectedSlotIsTheOneWritten) {
  auto file = OpenGba8();
  EditSelColumn = 3;
  EditSelLine = 2;
  EditSlots[35].Pixels.fill(200);
  Page().vsbAddress.SetValue(1);
  Page().DragToBrowser(0, 0);
  std::fill_n(file.begin() + 512, 64, std::uint8_t{200});
  EXPECT_EQ(FileBytes(FileName), file);
}

TEST_F(PageDrag, ASlotCanBeDraggedHereWithThePointer) {
  auto file = OpenGba8();
  EditSlots[18].Address = kUnaddressed;
  EditSlots[18].Pixels.fill(55);
  QTest::mousePress(&The<Editor>(), Qt::LeftButton, {}, QPoint(2 * 24 + 5, 24 + 5));
  ASSERT_EQ(EditSelColumn, 2);
  // Column 4, line 3 of the page.
  const QPoint over =
      QPoint(4 * 24 + 5, 3 * 24 + 5) + Page().ChildFrame()->pos() - The<Editor>().ChildFrame()->pos();
  QTest::mouseRelease(&The<Editor>(), Qt::LeftButton, {}, over);
  std::fill_n(file.begin() + (3 * 8 + 4) * 64, 64, std::uint8_t{55});
  EXPECT_EQ(FileBytes(FileName), file);
}

TEST_F(PageDrag, APointOutsideWritesNothing) {
  const auto& file = OpenGba8();
  EditSlots[0].Pixels.fill(77);
  Page().DragToBrowser(-1, 5);
  Page().DragToBrowser(5, -1);
  Page().DragToBrowser(209, 5);
  Page().DragToBrowser(5, 384);
  EXPECT_EQ(FileBytes(FileName), file);
}

TEST_F(PageDrag, TheWarningCanRefuseIt) {
  const auto& file = OpenGba8();
  The<Options>().fbnSaveWarning.SetChecked(true);
  EditSlots[0].Pixels.fill(77);
  const auto seen = WithAnswers({7}, [] { Page().DragToBrowser(5, 5); });
  EXPECT_EQ(seen[0].title, "Brolk Plus - Save?");
  EXPECT_EQ(FileBytes(FileName), file);
}

}  // namespace
}  // namespace brolk::test
