// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QTest>

#include "forms/flat_button.h"
#include "forms/form.h"
#include "forms/label.h"

namespace brolk {
namespace {

struct Buttons : ::testing::Test {
  struct Window final : Form {
    Window() : Form({"Window", "Window", FormKind::Free, FormBorder::Fixed, 3000, 3000}) {}
    void Form_KeyDown(int keyCode, int) override { keys.push_back(keyCode); }
    std::vector<int> keys;
  };
  void SetUp() override {
    Place(toggle, 0, 0, 510, 510);
    Place(plain, 600, 0, 510, 510);
    toggle.Click = [this] { ++toggleClicks; };
    plain.Click = [this] { ++plainClicks; };
    window.Show();
  }
  Window window;
  FlatButton toggle{window, "fbnToggle", "grid", "Toggle", FlatButton::Kind::Toggle};
  FlatButton plain{window, "fbnPlain", "open", "Plain"};
  int toggleClicks = 0;
  int plainClicks = 0;
};

TEST_F(Buttons, AssignTheCheckedStateWithoutAClick) {
  toggle.SetChecked(true);
  EXPECT_TRUE(toggle.Checked());
  EXPECT_EQ(toggleClicks, 0);
}

TEST_F(Buttons, ChangeTheirStateBeforeTheClick) {
  bool stateAtClick = false;
  toggle.Click = [&] { stateAtClick = toggle.Checked(); };
  QTest::mouseClick(&toggle, Qt::LeftButton);
  EXPECT_TRUE(stateAtClick);
}

TEST_F(Buttons, AreClickedBySpaceWhereTheFocusIsAndByEnterWhereTheDefaultIs) {
  plain.SetDefault(true);
  toggle.setFocus();
  QTest::keyClick(&toggle, Qt::Key_Space);
  EXPECT_EQ(toggleClicks, 1);
  QTest::keyClick(&toggle, Qt::Key_Return);
  EXPECT_EQ(toggleClicks, 1);
  EXPECT_EQ(plainClicks, 1);
  QTest::keyClick(&window, Qt::Key_Enter);
  EXPECT_EQ(plainClicks, 2);
}

TEST_F(Buttons, AreClickedByEscapeWhereTheCancelRoleIsAndNotWhenDisabled) {
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_EQ(window.keys, std::vector<int>{27});
  plain.SetCancel(true);
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_EQ(plainClicks, 1);
  plain.setEnabled(false);
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_EQ(plainClicks, 1);
}

TEST_F(Buttons, TellEveryMouseButtonOnThePress) {
  std::vector<int> pressed;
  plain.Click = nullptr;
  plain.MouseDown = [&](int button, int, float, float) { pressed.push_back(button); };
  QTest::mouseClick(&plain, Qt::LeftButton);
  QTest::mouseClick(&plain, Qt::RightButton);
  QTest::mouseClick(&plain, Qt::MiddleButton);
  EXPECT_EQ(pressed, (std::vector<int>{1, 2, 4}));
}

TEST_F(Buttons, CarryTheirNameAndToolTipForAssistiveTools) {
  EXPECT_EQ(plain.objectName(), "fbnPlain");
  EXPECT_EQ(plain.accessibleName(), "Plain");
  EXPECT_EQ(plain.toolTip(), "Plain");
}

TEST_F(Buttons, LeaveALabelWithoutAUseForClicksAlone) {
  Label label(window, "lblTest", "Text");
  EXPECT_EQ(label.focusPolicy(), Qt::NoFocus);
  int clicks = 0;
  label.SetClick([&] { ++clicks; });
  label.setGeometry(0, 60, 50, 20);
  label.show();
  QTest::mouseClick(&label, Qt::LeftButton);
  QTest::mouseClick(&label, Qt::RightButton);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(label.focusPolicy(), Qt::TabFocus);
  QTest::keyClick(&label, Qt::Key_Space);
  EXPECT_EQ(clicks, 2);
}

}  // namespace
}  // namespace brolk
