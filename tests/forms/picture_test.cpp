// SPDX-License-Identifier: MIT
#include "forms/picture.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace brolk
