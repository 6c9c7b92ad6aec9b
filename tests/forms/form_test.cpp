// SPDX-License-Identifier: MIT
#include "forms/form.h"

#include <gtest/gtest.h>

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>

#include "forms/drawing_form.h"
#include "forms/windows.h"

namespace brolk {
namespace {

struct Frame final : Form {
  Frame() : Form({"Frame", "Frame", FormKind::Frame, FormBorder::Sizable, 12000, 9000}) {
    SetChildArea(&area);
    area.setGeometry(0, 0, 800, 600);
  }
  QMdiArea area{this};
};

struct Child final : DrawingForm {
  Child() : DrawingForm({"Child", "A child", FormKind::Child, FormBorder::Sizable, 3000, 1500}, 0x0000FF) {}
  void Form_Activate() override { ++activations; }
  void Form_Deactivate() override { ++deactivations; }
  void Form_Resize() override { ++resizes; }
  void Form_KeyDown(int keyCode, int shift) override {
    if (keyCode != 0) keys.push_back({keyCode, shift});
  }
  void Form_MouseDown(int button, int shift, float x, float y) override {
    presses.push_back({button, shift, x, y});
  }
  void Form_MouseUp(int button, int, float x, float y) override { releases.push_back({button, 0, x, y}); }
  bool Form_DblClick() override {
    ++doubleClicks;
    return takesDoubleClicks;
  }
  struct Press {
    int button, shift;
    float x, y;
  };
  std::vector<std::pair<int, int>> keys;
  std::vector<Press> presses;
  std::vector<Press> releases;
  int activations = 0;
  int deactivations = 0;
  int resizes = 0;
  int doubleClicks = 0;
  bool takesDoubleClicks = true;
};

struct Other final : Form {
  Other() : Form({"Other", "Another", FormKind::Child, FormBorder::Fixed, 1500, 1500}) {}
};

struct Forms : ::testing::Test {
  void SetUp() override {
    The<Frame>().Show();
    The<Child>();
    The<Other>();
  }
};

TEST_F(Forms, AreMadeHidden) {
  EXPECT_FALSE(The<Child>().Visible());
  The<Child>().Show();
  EXPECT_TRUE(The<Child>().Visible());
  EXPECT_TRUE(The<Child>().isVisible());
}

TEST_F(Forms, HaveTheirClientSizeInsideAFrameOf3And23Pixels) {
  EXPECT_EQ(The<Child>().ScaleWidth(), 200);
  EXPECT_EQ(The<Child>().ScaleHeight(), 100);
  EXPECT_EQ(The<Child>().Width(), 206 * 15);
  EXPECT_EQ(The<Child>().Height(), 126 * 15);
  The<Child>().Show();
  EXPECT_EQ(The<Child>().ScaleWidth(), 200);
  EXPECT_EQ(The<Child>().ScaleHeight(), 100);
}

TEST_F(Forms, TakeOuterSizesInTwipsWhileHiddenAndShown) {
  The<Child>().SetWidth(3230);
  EXPECT_EQ(The<Child>().Width(), 215 * 15);
  EXPECT_EQ(The<Child>().ScaleWidth(), 209) << "a hidden window has its client size at once";
  The<Child>().Show();
  EXPECT_EQ(The<Child>().ScaleWidth(), 209);
  The<Child>().SetHeight(1500);
  EXPECT_EQ(The<Child>().ScaleHeight(), 74);
}

TEST_F(Forms, RaiseAResizeAtOnceForANewSizeAndAtTheFirstShow) {
  The<Child>().resizes = 0;
  The<Child>().SetWidth(3000);
  EXPECT_EQ(The<Child>().resizes, 1) << "while hidden";
  The<Child>().Show();
  EXPECT_EQ(The<Child>().resizes, 2);
  The<Child>().Hide();
  The<Child>().Show();
  EXPECT_EQ(The<Child>().resizes, 2);
  The<Child>().SetWidth(3030);
  EXPECT_EQ(The<Child>().resizes, 3);
}

TEST_F(Forms, StandWhereTheyArePut) {
  The<Child>().SetLeft(2700);
  The<Child>().SetTop(30);
  EXPECT_EQ(The<Child>().Left(), 2700);
  The<Child>().Show();
  EXPECT_EQ(The<Child>().Left(), 2700);
  EXPECT_EQ(The<Child>().Top(), 30);
  EXPECT_EQ(The<Child>().ChildFrame()->pos(), QPoint(180, 2));
}

TEST_F(Forms, AreActivatedByShowOnlyWhenTheyWereHidden) {
  The<Child>().Show();
  EXPECT_EQ(The<Child>().activations, 1);
  The<Other>().Show();
  EXPECT_EQ(Form::Active(), &The<Other>());
  The<Child>().Show();
  EXPECT_EQ(The<Child>().activations, 1) << "it was visible";
  The<Child>().SetFocus();
  EXPECT_EQ(The<Child>().activations, 2);
  EXPECT_EQ(Form::Active(), &The<Child>());
}

TEST_F(Forms, AreActivatedByAPress) {
  The<Child>().Show();
  The<Other>().Show();
  QTest::mouseClick(&The<Child>(), Qt::LeftButton, {}, {10, 20});
  EXPECT_EQ(The<Child>().activations, 2);
  ASSERT_EQ(The<Child>().presses.size(), 1U);
  EXPECT_EQ(The<Child>().presses[0].x, 10.0F);
  EXPECT_EQ(The<Child>().presses[0].y, 20.0F);
  EXPECT_EQ(The<Child>().presses[0].button, 1);
}

TEST_F(Forms, GetReleasesOutsideOfThemselves) {
  The<Child>().Show();
  QTest::mousePress(&The<Child>(), Qt::LeftButton, {}, {10, 20});
  QTest::mouseRelease(&The<Child>(), Qt::LeftButton, {}, {-30, 250});
  ASSERT_EQ(The<Child>().releases.size(), 1U);
  EXPECT_EQ(The<Child>().releases[0].x, -30.0F);
  EXPECT_EQ(The<Child>().releases[0].y, 250.0F);
}

TEST_F(Forms, RaiseADoubleClickInPlaceOfTheSecondPress) {
  The<Child>().Show();
  QTest::mouseDClick(&The<Child>(), Qt::LeftButton, {}, {10, 20});
  EXPECT_EQ(The<Child>().doubleClicks, 1);
  const auto presses = The<Child>().presses.size();
  The<Child>().takesDoubleClicks = false;
  QTest::mouseDClick(&The<Child>(), Qt::LeftButton, {}, {10, 20});
  EXPECT_GT(The<Child>().presses.size(), presses) << "without a use for it the second press counts";
}

TEST_F(Forms, HideWhenTheirFrameIsClosed) {
  The<Child>().Show();
  The<Child>().ChildFrame()->close();
  EXPECT_FALSE(The<Child>().Visible());
  The<Child>().Show();
  EXPECT_TRUE(The<Child>().isVisible());
  EXPECT_EQ(The<Child>().ScaleWidth(), 200);
}

TEST_F(Forms, KeepTheirPictureWhenTheyGrow) {
  The<Child>().Show();
  The<Child>().Canvas().SetPixel(5, 5, 0x123456);
  The<Child>().SetClientSize(300, 120);
  EXPECT_EQ(The<Child>().Canvas().Width(), 300);
  EXPECT_EQ(The<Child>().Canvas().GetPixel(5, 5), 0x123456);
  EXPECT_EQ(The<Child>().Canvas().GetPixel(299, 119), 0x0000FF) << "the back colour where it grew";
}

TEST_F(Forms, CanBeDrawnOnBeforeTheyAreShown) {
  The<Child>().SetClientSize(300, 120);
  The<Child>().Canvas().SetPixel(299, 119, 0x123456);
  The<Child>().Show();
  EXPECT_EQ(The<Child>().Canvas().GetPixel(299, 119), 0x123456);
}

TEST_F(Forms, ShowWhatWasDrawnOnThemAsRedGreenBlue) {
  The<Child>().Show();
  The<Child>().Canvas().Fill(0x332211);
  The<Child>().Refresh();
  EXPECT_EQ(The<Child>().grab().toImage().pixelColor(50, 50), QColor(0x11, 0x22, 0x33));
}

TEST_F(Forms, GetKeypadCodesFromKeypadAndArrows) {
  The<Child>().Show();
  QTest::keyClick(&The<Child>(), Qt::Key_6, Qt::KeypadModifier);
  QTest::keyClick(&The<Child>(), Qt::Key_Right);
  QTest::keyClick(&The<Child>(), Qt::Key_Plus, Qt::ShiftModifier);
  QTest::keyClick(&The<Child>(), Qt::Key_G, Qt::ControlModifier);
  const std::vector<std::pair<int, int>> expected = {{102, 0}, {102, 0}, {107, 0}, {71, 2}};
  EXPECT_EQ(The<Child>().keys, expected);
}

TEST_F(Forms, AreMadeAnewAfterAnUnload) {
  The<Child>().activations = 77;
  UnloadWindow<Child>();
  EXPECT_FALSE(IsLoaded<Child>());
  UnloadWindow<Child>();
  EXPECT_EQ(The<Child>().activations, 0);
}

TEST(Twips, AreFifteenToThePixelTiesToEven) {
  EXPECT_EQ(PixelsFromTwips(350), 23);
  EXPECT_EQ(PixelsFromTwips(7.5), 0);
  EXPECT_EQ(PixelsFromTwips(22.5), 2);
  EXPECT_EQ(PixelsFromTwips(-15), -1);
}

}  // namespace
}  // namespace brolk
