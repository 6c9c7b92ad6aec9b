// SPDX-License-Identifier: MIT
#include "forms/picture.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTest>
#include <QWidget>

namespace brolk {
namespace {

struct Pictures : ::testing::Test {
  void SetUp() override { picture.setGeometry(10, 10, 40, 20); }
  QWidget window;
  Picture picture{window, "picTest"};
};

TEST_F(Pictures, CanBeDrawnOnBeforeTheyAreShown) {
  EXPECT_EQ(picture.Canvas().Width(), 40);
  EXPECT_EQ(picture.Canvas().Height(), 20);
  picture.Canvas().SetPixel(39, 19, 0x332211);
  window.show();
  EXPECT_EQ(picture.Canvas().GetPixel(39, 19), 0x332211);
  EXPECT_EQ(picture.grab().toImage().pixelColor(39, 19), QColor(0x11, 0x22, 0x33));
  EXPECT_EQ(picture.grab().toImage().pixelColor(0, 0), QColor(Qt::white));
}

TEST_F(Pictures, KeepWhatWasDrawnWhenTheyGrow) {
  window.show();
  picture.Canvas().Fill(0x0000FF);
  picture.resize(50, 30);
  EXPECT_EQ(picture.Canvas().GetPixel(39, 19), 0x0000FF);
  EXPECT_EQ(picture.Canvas().GetPixel(49, 29), 0xFFFFFF);
}

TEST_F(Pictures, TellPressesAndMovesInTheirOwnPixels) {
  window.show();
  QPointF pressed;
  int button = 0;
  picture.MouseDown = [&](int which, int, float x, float y) {
    button = which;
    pressed = {x, y};
  };
  QTest::mousePress(&picture, Qt::RightButton, {}, {7, 9});
  EXPECT_EQ(button, 2);
  EXPECT_EQ(pressed, QPointF(7, 9));
  QPointF moved;
  picture.MouseMove = [&](int, int, float x, float y) { moved = {x, y}; };
  QTest::mouseMove(&picture, {3, 4});
  EXPECT_EQ(moved, QPointF(3, 4));
}

TEST_F(Pictures, TakeAFractionBehindTheLastPixelAsThatPixel) {
  QPointF pressed;
  picture.MouseDown = [&](int, int, float x, float y) { pressed = {x, y}; };
  const std::pair<QPointF, QPointF> presses[] = {
      {{39.5, 19.5}, {39, 19}}, {{38.5, 0.5}, {38.5, 0.5}}, {{40, 20}, {40, 20}}, {{-0.5, -3}, {-0.5, -3}}};
  for (const auto& [at, told] : presses) {
    QMouseEvent press(QEvent::MouseButtonPress, at, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&picture, &press);
    EXPECT_EQ(pressed, told);
  }
}

struct PictureCells : Pictures {
  void SetUp() override {
    Pictures::SetUp();
    picture.SetCells([] { return 10; });
    picture.MouseDown = [this](int which, int, float x, float y) {
      button = which;
      pressed = QPoint(static_cast<int>(x), static_cast<int>(y)) / 10;
    };
    picture.MouseMove = [this](int, int, float x, float y) {
      moved = QPoint(static_cast<int>(x), static_cast<int>(y)) / 10;
    };
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    picture.clearFocus();
    picture.setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(picture.hasFocus());
  }
  void Keys(std::initializer_list<Qt::Key> keys) {
    for (const Qt::Key key : keys) QTest::keyClick(&picture, key);
  }
  int button = 0;
  QPoint pressed{-1, -1};
  QPoint moved{-1, -1};
};

TEST_F(PictureCells, AreReachedByTheArrowKeys) {
  Keys({Qt::Key_Right, Qt::Key_Right, Qt::Key_Down});
  EXPECT_EQ(moved, QPoint(2, 1));
  Keys({Qt::Key_Left});
  EXPECT_EQ(moved, QPoint(1, 1));
  Keys({Qt::Key_Up});
  EXPECT_EQ(moved, QPoint(1, 0));
  EXPECT_EQ(button, 0) << "nothing is pressed yet";
}

TEST_F(PictureCells, EndAtTheEdgesOfThePicture) {
  Keys({Qt::Key_Left, Qt::Key_Up});
  EXPECT_EQ(moved, QPoint(0, 0));
  Keys({Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Down,
        Qt::Key_Down});
  EXPECT_EQ(moved, QPoint(3, 1));
  Keys({Qt::Key_Left});
  EXPECT_EQ(moved, QPoint(2, 1));
}

TEST_F(PictureCells, ArePressedBySpaceAndTheMenuKey) {
  Keys({Qt::Key_Right, Qt::Key_Space});
  EXPECT_EQ(button, 1);
  EXPECT_EQ(pressed, QPoint(1, 0));
  Keys({Qt::Key_Down, Qt::Key_Menu});
  EXPECT_EQ(button, 2);
  EXPECT_EQ(pressed, QPoint(1, 1));
  Keys({Qt::Key_Left});
  QTest::keyClick(&picture, Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(button, 2);
  EXPECT_EQ(pressed, QPoint(0, 1));
}

TEST_F(PictureCells, ShowTheirMarkOnlyForTheKeyboard) {
  const auto marked = [this] { return picture.grab().toImage().pixelColor(0, 0) != QColor(Qt::red); };
  picture.Canvas().Fill(0x0000FF);
  EXPECT_TRUE(marked());
  QTest::mousePress(&picture, Qt::LeftButton, {}, {5, 5});
  EXPECT_FALSE(marked());
  Keys({Qt::Key_Left});
  EXPECT_TRUE(marked());
  picture.clearFocus();
  EXPECT_FALSE(marked());
  EXPECT_EQ(picture.Canvas().GetPixel(0, 0), 0x0000FF) << "the mark is not part of the picture";
}

TEST_F(PictureCells, LeaveOtherKeysToTheWindow) {
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(&picture, &enter);
  EXPECT_FALSE(enter.isAccepted());
}

TEST_F(Pictures, WithoutCellsLeaveTheKeyboardAlone) {
  EXPECT_EQ(picture.focusPolicy(), Qt::NoFocus);
}

}  // namespace
}  // namespace brolk
