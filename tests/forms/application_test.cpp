// SPDX-License-Identifier: MIT
#include "forms/application.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>
#include <QWidget>

#include "forms/flat_button.h"
#include "forms/screen.h"
#include "support/program.h"

namespace brolk {
namespace {

TEST(Application, CatchesAFaultOfAnEventHandler) {
  QWidget window;
  FlatButton button(window, "fbnTest", "open", "Test");
  button.Click = [] { throw Fault(FaultKind::DivisionByZero); };
  window.show();
  EXPECT_EQ(test::FaultOf([&] { QTest::mouseClick(&button, Qt::LeftButton); }), FaultKind::DivisionByZero);
}

TEST(ApplicationDeathTest, ShowsTheFaultAndEndsWithStatus1) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        QWidget window;
        FlatButton button(window, "fbnTest", "open", "Test");
        button.Click = [] { throw Fault(FaultKind::SubscriptOutOfRange); };
        window.show();
        QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
        QTest::mouseClick(&button, Qt::LeftButton);
      },
      ::testing::ExitedWithCode(1), "Subscript out of range");
}

TEST(Application, EndsWithAFaultOfTheStartUpToo) {
  FaultKind kind{};
  Application::OnFault = [&](const Fault& fault) {
    kind = fault.Kind();
    Application::End();
  };
  EXPECT_EQ(dynamic_cast<Application&>(*qApp).Run([] { throw Fault(FaultKind::Overflow); }), 0);
  EXPECT_EQ(kind, FaultKind::Overflow);
  Application::OnFault = nullptr;
}

TEST(Screen, IsMeasuredInTwips) {
  EXPECT_EQ(ScreenHeightTwips() % 15, 0);
}

TEST(PreviousInstanceTest, IsFalseForTheProcessThatHoldsTheLock) {
  const QString path = QString::fromStdString(test::TestFolder()) + QStringLiteral("deep/lock");
  EXPECT_FALSE(PreviousInstance(path));
  EXPECT_FALSE(PreviousInstance(path));
}

}  // namespace
}  // namespace brolk
