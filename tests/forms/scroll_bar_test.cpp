// SPDX-License-Identifier: MIT
#include "forms/scroll_bar.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>

namespace brolk {
namespace {

struct ScrollBars : ::testing::Test {
  void SetUp() override {
    bar.Change = [this] { changes.push_back(bar.Value()); };
    bar.Scroll = [this] { scrolls.push_back(bar.Value()); };
    bar.setGeometry(0, 0, 300, 17);
    window.show();
  }
  QPoint Thumb() {
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.subControls = QStyle::SC_All;
    option.orientation = Qt::Horizontal;
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.sliderPosition = bar.sliderPosition();
    option.sliderValue = bar.value();
    option.pageStep = bar.pageStep();
    return bar.style()
        ->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar)
        .center();
  }
  QWidget window;
  ScrollBar bar{Qt::Horizontal, window, "hsbTest", 2, 32, 8};
  std::vector<int> changes;
  std::vector<int> scrolls;
};

TEST_F(ScrollBars, RaiseChangeOnlyWhenTheValueChanges) {
  bar.SetValue(8);
  EXPECT_TRUE(changes.empty());
  bar.SetValue(9);
  EXPECT_EQ(changes, std::vector<int>{9});
}

TEST_F(ScrollBars, ArePulledDownByALoweredMaximumAndRaiseChange) {
  bar.SetMax(5);
  EXPECT_EQ(bar.Value(), 5);
  EXPECT_EQ(changes, std::vector<int>{5});
  bar.SetMax(20);
  EXPECT_EQ(bar.Value(), 5);
  EXPECT_EQ(changes.size(), 1U);
}

TEST_F(ScrollBars, KeepAnAssignedValueBeyondTheMaximumUntilTheUserMovesThem) {
  bar.SetValue(40);
  EXPECT_EQ(bar.Value(), 40);
  EXPECT_EQ(bar.value(), 32) << "the thumb shows the end";
  QTest::keyClick(&bar, Qt::Key_Left);
  EXPECT_EQ(bar.Value(), 31);
  bar.SetValue(40);
  bar.SetMax(35);
  EXPECT_EQ(bar.Value(), 35) << "a maximum set afterwards pulls it down";
}

TEST_F(ScrollBars, KeepANegativeMaximumAsTheNumberAndStayAtTheMinimum) {
  ScrollBar vertical{Qt::Vertical, window, "vsbTest", 0, 10, 4};
  int raised = 0;
  vertical.Change = [&] { ++raised; };
  vertical.SetMax(-15);
  EXPECT_EQ(vertical.Max(), -15);
  EXPECT_EQ(vertical.Value(), 0);
  EXPECT_EQ(raised, 1);
  vertical.SetValue(3);
  EXPECT_EQ(vertical.Value(), 0);
}

TEST_F(ScrollBars, RaiseScrollWhileTheThumbIsDraggedAndChangeOnRelease) {
  const QPoint grip = Thumb();
  QTest::mousePress(&bar, Qt::LeftButton, {}, grip);
  QTest::mouseMove(&bar, grip + QPoint(40, 0));
  EXPECT_FALSE(scrolls.empty());
  EXPECT_TRUE(changes.empty());
  const int dragged = bar.Value();
  EXPECT_GT(dragged, 8);
  QTest::mouseRelease(&bar, Qt::LeftButton, {}, grip + QPoint(40, 0));
  EXPECT_EQ(changes, std::vector<int>{dragged});
}

TEST_F(ScrollBars, FollowTheArrowKeysInTheirOwnDirection) {
  QTest::keyClick(&bar, Qt::Key_Right);
  EXPECT_EQ(bar.Value(), 9);
  QTest::keyClick(&bar, Qt::Key_Left);
  EXPECT_EQ(bar.Value(), 8);
  ScrollBar vertical{Qt::Vertical, window, "vsbTest", 0, 10, 4};
  QTest::keyClick(&vertical, Qt::Key_Down);
  EXPECT_EQ(vertical.Value(), 5);
  QTest::keyClick(&vertical, Qt::Key_Up);
  EXPECT_EQ(vertical.Value(), 4);
}

TEST_F(ScrollBars, FollowTheWheelByOneStepANotch) {
  bar.SetLargeChange(16);
  const auto turn = [this](int eighths) {
    QWheelEvent event(QPointF(5, 5), bar.mapToGlobal(QPointF(5, 5)), {}, {0, eighths}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&bar, &event);
  };
  turn(-120);
  EXPECT_EQ(bar.Value(), 9);
  turn(240);
  EXPECT_EQ(bar.Value(), 7);
  turn(-60);
  EXPECT_EQ(bar.Value(), 7) << "half a notch waits for the other half";
  turn(-60);
  EXPECT_EQ(bar.Value(), 8);
  turn(12000);
  EXPECT_EQ(bar.Value(), 2);
  EXPECT_TRUE(scrolls.empty());
  EXPECT_EQ(changes, (std::vector<int>{9, 7, 8, 2}));
}

TEST_F(ScrollBars, RunANestedChangeInsideTheRunningHandler) {
  ScrollBar second{Qt::Horizontal, window, "hsbSecond", 0, 100, 50};
  std::vector<std::string> order;
  second.Change = [&] { order.emplace_back("inner"); };
  bar.Change = [&] {
    order.emplace_back("before");
    second.SetMax(10);
    order.emplace_back("after");
  };
  bar.SetValue(20);
  EXPECT_EQ(order, (std::vector<std::string>{"before", "inner", "after"}));
}

}  // namespace
}  // namespace brolk
