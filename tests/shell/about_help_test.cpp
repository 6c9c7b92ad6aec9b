// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QTest>

#include "editor/windows/editor.h"
#include "forms/look.h"
#include "forms/screen.h"
#include "forms/windows.h"
#include "palette/windows/color_set.h"
#include "shell/windows/about.h"
#include "shell/windows/main_form.h"
#include "support/program.h"

namespace brolk::test {
namespace {

// What was handed to the desktop's opener.
class Desktop : public ::testing::Test {
 protected:
  void SetUp() override {
    StartProgram();
    ShellOpener = [this](const QString& target) { opened.push_back(target.toStdString()); };
  }
  void TearDown() override { ShellOpener = nullptr; }
  std::vector<std::string> opened;
};

using Help = Desktop;

TEST_F(Help, TheToolbarOpensTheFileBesideTheProgram) {
  ClickControl(The<MainForm>().fbnHelp);
  const QString expected =
      QCoreApplication::applicationDirPath() + QDir::separator() + QStringLiteral("BrolkPlus-Help.chm");
  EXPECT_EQ(opened, (std::vector{expected.toStdString()}));
}

TEST_F(Help, TheMenuOpensAnotherFileInTheCurrentFolder) {
  The<MainForm>().mnuHelpFile.trigger();
  EXPECT_EQ(opened, (std::vector<std::string>{"Brolk Plus Help file.chm"}));
}

TEST_F(Help, AMissingFileIsPassedOverInSilence) {
  ShellOpener = nullptr;
  QDir::setCurrent(QString::fromStdString(TestFolder()));
  WithAnswers({}, [] {
    The<MainForm>().mnuHelpFile.trigger();
    ClickControl(The<MainForm>().fbnHelp);
  });
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

class AboutWindow : public Desktop {
 protected:
  void SetUp() override {
    Desktop::SetUp();
    ClickControl(The<MainForm>().fbnAbout);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&about()));
  }
  About& about() { return The<About>(); }
};

TEST_F(AboutWindow, ShowsItsTexts) {
  EXPECT_EQ(about().Caption(), "");
  EXPECT_EQ(about().size(), QSize(499, 361));
  EXPECT_EQ(about().minimumSize(), about().maximumSize());
  EXPECT_EQ(about().lblVersion.Text(), "Version 0.64 build 2600");
  EXPECT_EQ(about().lblVoska.Text(), "Copyright (c) 2026 The Brolk Plus developers");
  EXPECT_FALSE(about().lblTarn.Text().isEmpty());
  EXPECT_EQ(about().lblEmail.toolTip(), "Email me");
  EXPECT_EQ(about().fbnEmail.toolTip(), "Email me");
  EXPECT_EQ(about().lblHomepage.toolTip(), "Go to Homepage");
  EXPECT_EQ(about().fbnHomepage.toolTip(), "Go to Homepage");
}

TEST_F(AboutWindow, HasItsColorsAndPointers) {
  EXPECT_EQ(about().lblVersion.palette().color(QPalette::WindowText), ScreenColor(0x800000));
  EXPECT_EQ(about().lblVoska.palette().color(QPalette::WindowText), QColor(Qt::white));
  EXPECT_EQ(about().lblTarn.palette().color(QPalette::WindowText), QColor(Qt::white));
  for (const QWidget* link : std::initializer_list<QWidget*>{&about().lblEmail, &about().lblHomepage,
                                                             &about().fbnEmail, &about().fbnHomepage}) {
    EXPECT_EQ(link->cursor().shape(), Qt::PointingHandCursor) << link->objectName().toStdString();
  }
}

TEST_F(AboutWindow, NoTextIsCut) {
  for (Label* label : about().findChildren<Label*>()) {
    EXPECT_LE(label->sizeHint().width(), label->width()) << label->objectName().toStdString();
    EXPECT_LE(label->sizeHint().height(), label->height()) << label->objectName().toStdString();
  }
}

TEST_F(AboutWindow, IsFilledByItsPicture) {
  const QImage picture = about().grab().toImage();
  EXPECT_NE(picture.pixelColor(5, 5), picture.pixelColor(5, 355)) << "light above, dark below";
  EXPECT_LT(picture.pixelColor(5, 355).lightness(), 60) << "dark behind the white lines";
  EXPECT_GT(picture.pixelColor(200, 204).lightness(), 200) << "light behind the version";
}

TEST_F(AboutWindow, StandsInTheMiddleOfTheFrameEachTimeItIsActivated) {
  auto& frame = The<MainForm>();
  const auto expectCentred = [&] {
    EXPECT_NEAR(about().Left(), (frame.Width() - about().Width()) / 2 + frame.Left(), 15);
    EXPECT_NEAR(about().Top(), (frame.Height() - about().Height()) / 2 + frame.Top(), 15);
  };
  expectCentred();
  about().Hide();
  frame.SetWidth(9000);
  frame.SetLeft(1500);
  frame.SetTop(1500);
  ClickControl(frame.fbnAbout);
  expectCentred();
}

TEST_F(AboutWindow, IsModeless) {
  EXPECT_EQ(about().windowModality(), Qt::NonModal);
}

TEST_F(AboutWindow, AClickOnTheWindowOrItsTextsHidesIt) {
  for (QWidget* place :
       std::initializer_list<QWidget*>{&about(), &about().lblVersion, &about().lblVoska, &about().lblTarn}) {
    ClickControl(The<MainForm>().fbnAbout);
    EXPECT_TRUE(about().Visible());
    QTest::mouseClick(place, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
    EXPECT_FALSE(about().Visible()) << place->objectName().toStdString();
  }
  EXPECT_TRUE(IsLoaded<About>());
  EXPECT_TRUE(opened.empty());
}

TEST_F(AboutWindow, MailOpensALinkWithTheSubject) {
  ClickControl(about().fbnEmail);
  ClickControl(about().lblEmail);
  const std::string link = "mailto:maintainers@brolkplus.example.org?subject=BrolkPlus";
  EXPECT_EQ(opened, (std::vector{link, link}));
  EXPECT_TRUE(about().Visible());
}

TEST_F(AboutWindow, HomepageOpensTheAddress) {
  ClickControl(about().fbnHomepage);
  ClickControl(about().lblHomepage);
  const std::string address = "https://brolkplus.example.org/";
  EXPECT_EQ(opened, (std::vector{address, address}));
}

TEST_F(AboutWindow, LosingTheActivationHidesIt) {
  The<MainForm>().activateWindow();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !about().Visible(); }));
}

TEST_F(AboutWindow, AnotherWindowOfTheProgramHidesIt) {
  The<ColorSet>().Show();
  EXPECT_FALSE(about().Visible());
  ClickControl(The<MainForm>().fbnAbout);
  EXPECT_TRUE(about().Visible());
  QTest::mouseClick(&The<Editor>(), Qt::LeftButton, Qt::NoModifier, QPoint(30, 30));
  EXPECT_FALSE(about().Visible());
}

TEST_F(AboutWindow, ComesUpFromTheMenuToo) {
  about().Hide();
  The<MainForm>().mnuAbout.trigger();
  EXPECT_TRUE(about().Visible());
}

}  // namespace
}  // namespace brolk::test
