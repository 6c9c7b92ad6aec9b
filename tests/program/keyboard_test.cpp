// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include "forms/flat_button.h"
#include "forms/label.h"
#include "forms/windows.h"
#include "program/all_windows.h"
#include "shell/windows/main_form.h"
#include "support/program.h"

// Everybody can use the program without a pointer and with a screen reader.
namespace brolk::test {
namespace {

// The controls of a window itself, without those of windows inside it and without the inner parts of the
// toolkit's controls.
std::vector<QWidget*> OwnControls(Form& window) {
  std::vector<QWidget*> controls;
  for (QWidget* control : window.findChildren<QWidget*>()) {
    const QWidget* up = control->parentWidget();
    bool own = dynamic_cast<const Form*>(control) == nullptr && !control->objectName().isEmpty() &&
               !control->objectName().startsWith(QLatin1String("qt_"));
    while (own && up != &window && up != nullptr) {
      own = dynamic_cast<const Form*>(up) == nullptr &&
            qobject_cast<const QAbstractScrollArea*>(up) == nullptr &&
            qobject_cast<const QComboBox*>(up) == nullptr && qobject_cast<const QLineEdit*>(up) == nullptr;
      up = up->parentWidget();
    }
    if (own) controls.push_back(control);
  }
  return controls;
}

bool TakesKeys(const QWidget& control) {
  return (control.focusPolicy() & Qt::TabFocus) != 0 && control.isEnabled() && !control.isHidden() &&
         control.focusProxy() == nullptr;
}

class Keyboard : public ::testing::TestWithParam<std::size_t> {
 protected:
  void SetUp() override {
    StartProgram();
    window = &AllWindows()[GetParam()].get();
    window->Show();
  }
  Form* window = nullptr;
};

TEST_P(Keyboard, EveryControlHasAnAccessibleName) {
  EXPECT_FALSE(OwnControls(*window).empty());
  for (const QWidget* control : OwnControls(*window)) {
    const bool named = dynamic_cast<const FlatButton*>(control) != nullptr ||
                       dynamic_cast<const Label*>(control) != nullptr ||
                       (control->focusPolicy() & Qt::TabFocus) != 0;
    if (named) {
      EXPECT_FALSE(control->accessibleName().isEmpty()) << control->objectName().toStdString();
    }
  }
}

TEST_P(Keyboard, EveryButtonTextAndListIsReachedByTab) {
  for (const QWidget* control : OwnControls(*window)) {
    const auto* button = dynamic_cast<const FlatButton*>(control);
    const bool separator =
        button != nullptr && button->objectName().startsWith(QLatin1String("fbnSeparator"));
    if (button != nullptr && !separator) {
      EXPECT_NE(button->focusPolicy() & Qt::TabFocus, 0) << button->objectName().toStdString();
    }
  }
  // Walk the focus chain once around: what takes keys is met, and met once.
  std::vector<QWidget*> met;
  QWidget* at = window;
  do {
    at = at->nextInFocusChain();
    if (TakesKeys(*at) && std::ranges::count(OwnControls(*window), at) == 1) met.push_back(at);
  } while (at != window);
  for (QWidget* control : OwnControls(*window)) {
    if (TakesKeys(*control)) {
      EXPECT_EQ(std::ranges::count(met, control), 1) << control->objectName().toStdString();
    }
  }
}

TEST_P(Keyboard, TabGoesFromTheTopToTheBottomAndFromLeftToRight) {
  QPoint before(-1, -1);
  QWidget* at = window;
  std::string nameBefore;
  do {
    at = at->nextInFocusChain();
    if (!TakesKeys(*at) || std::ranges::count(OwnControls(*window), at) == 0) continue;
    const QPoint center = at->mapTo(window, at->rect().center());
    constexpr int kSameLinePx = 28;
    EXPECT_TRUE(center.y() > before.y() - kSameLinePx && (center.x() > before.x() || center.y() > before.y()))
        << nameBefore << " before " << at->objectName().toStdString();
    before = center;
    nameBefore = at->objectName().toStdString();
  } while (at != window);
}

INSTANTIATE_TEST_SUITE_P(OfEveryWindow, Keyboard, ::testing::Range<std::size_t>(0, 16), NameOf);

}  // namespace
}  // namespace brolk::test
