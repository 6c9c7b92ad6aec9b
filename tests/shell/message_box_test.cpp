// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

#include "forms/look.h"
#include "forms/windows.h"
#include "palette/windows/color_set.h"
#include "shell/windows/main_form.h"
#include "shell/windows/msg_box.h"
#include "shell/windows/new_msg_box.h"
#include "support/program.h"

namespace brolk::test {
namespace {

class MessageBox : public ::testing::Test {
 protected:
  void SetUp() override { StartProgram(); }

  // Asks, lets `act` do something with the box that is up, and gives the answer back. A box that is still up
  // afterwards is closed by its frame; stayedUp tells it.
  int Ask(int flags, const std::function<void(NewMsgBox&)>& act,
          const QString& title = QStringLiteral("Title")) {
    stayedUp = false;
    QTimer::singleShot(0, [&] {
      auto& box = The<NewMsgBox>();
      EXPECT_TRUE(box.isVisible());
      act(box);
      stayedUp = box.isVisible();
      if (stayedUp) box.close();
    });
    return ShowMsgBox(QStringLiteral("A question?"), static_cast<std::int16_t>(flags), title);
  }
  int AskWithKey(int flags, Qt::Key key) {
    return Ask(flags, [key](NewMsgBox& box) { QTest::keyClick(box.focusWidget(), key); });
  }

  bool stayedUp = false;
};

QRect InTwips(const QWidget& control) {
  const QRect rect = control.geometry();
  return {rect.x() * 15, rect.y() * 15, rect.width() * 15, rect.height() * 15};
}

TEST_F(MessageBox, HasItsControlsAtTheirPlaces) {
  Ask(3, [](NewMsgBox& box) {
    EXPECT_EQ(box.size(), QSize(359, 129));
    EXPECT_EQ(box.minimumSize(), box.maximumSize()) << "the size is fixed";
    EXPECT_EQ(InTwips(box.imgMsgBox), QRect(120, 120, 720, 720));
    EXPECT_EQ(InTwips(box.lblMsg), QRect(960, 120, 2655, 975));
    EXPECT_EQ(InTwips(box.imgC1), QRect(3600, 120, 480, 480));
    EXPECT_EQ(InTwips(box.imgC2), QRect(3600, 720, 480, 480));
    EXPECT_EQ(InTwips(box.imgC3), QRect(3600, 1320, 480, 480));
    EXPECT_EQ(InTwips(box.fbnButton1), QRect(4080, 120, 1200, 480));
    EXPECT_EQ(InTwips(box.fbnButton2), QRect(4080, 720, 1200, 480));
    EXPECT_EQ(InTwips(box.fbnButton3), QRect(4080, 1320, 1200, 480));
  });
}

TEST_F(MessageBox, ItsTextIsNavyAndWrapped) {
  Ask(0, [](NewMsgBox& box) {
    EXPECT_EQ(box.lblMsg.palette().color(QPalette::WindowText), ScreenColor(0x800000));
    EXPECT_TRUE(box.lblMsg.wordWrap());
    EXPECT_FALSE(box.lblMsg.autoFillBackground());
    EXPECT_EQ(box.lblMsg.Text(), "A question?");
  });
}

TEST_F(MessageBox, KeepsItsPicturesInHiddenImages) {
  Ask(3, [](NewMsgBox& box) {
    const std::pair<Label*, const char*> images[] = {{&box.imgOk, "face-ok"},
                                                     {&box.imgCancel, "face-cancel"},
                                                     {&box.imgYes, "face-yes"},
                                                     {&box.imgNo, "face-no"},
                                                     {&box.imgAbort, "face-abort"},
                                                     {&box.imgRetry, "face-retry"},
                                                     {&box.imgIgnore, "face-ignore"},
                                                     {&box.imgInfo, "msg-info"},
                                                     {&box.imgExclamation, "msg-exclamation"},
                                                     {&box.imgQuestion, "msg-question"},
                                                     {&box.imgCritical, "msg-critical"},
                                                     {&box.imgJa, "mark-enter"},
                                                     {&box.imgNein, "mark-escape"},
                                                     {&box.imgBlank, "blank"}};
    for (const auto& [image, picture] : images) {
      EXPECT_TRUE(image->isHidden()) << picture;
      EXPECT_EQ(image->Picture(), picture);
      EXPECT_FALSE(PicturePixmap(picture, QSize(32, 32), 1).isNull()) << picture;
    }
  });
}

// Every set, icon and default in the real window: what shows, what it looks like and what it is for.
TEST_F(MessageBox, ShowsWhatItsFlagsAskFor) {
  for (const int set : {0, 1, 2, 3, 4, 5, 6, 7}) {
    for (const int icon : {0, 16, 32, 48, 64}) {
      for (const int standard : {0, 256, 512}) {
        const int flags = set + icon + standard;
        SCOPED_TRACE("flags " + std::to_string(flags));
        Ask(flags, [flags](NewMsgBox& box) {
          const MsgBoxState state = MsgBoxStateFor(static_cast<std::int16_t>(flags));
          const QString icons[] = {"blank", "msg-critical", "msg-question", "msg-exclamation", "msg-info"};
          const QString faces[] = {"face-ok",    "face-cancel", "face-yes",   "face-no",
                                   "face-abort", "face-retry",  "face-ignore"};
          EXPECT_EQ(box.imgMsgBox.Picture(), icons[static_cast<int>(state.icon)]);
          FlatButton* const buttons[] = {&box.fbnButton1, &box.fbnButton2, &box.fbnButton3};
          Label* const markers[] = {&box.imgC1, &box.imgC2, &box.imgC3};
          for (int index = 0; index < 3; ++index) {
            const MsgButton& row = state.buttons.at(static_cast<std::size_t>(index));
            EXPECT_EQ(buttons[index]->isVisible(), row.shown);
            EXPECT_EQ(buttons[index]->isEnabled(), row.shown);
            if (row.shown) {
              EXPECT_EQ(buttons[index]->Picture(), faces[static_cast<int>(row.face)]);
            }
            EXPECT_EQ(buttons[index]->IsDefault(), row.isDefault);
            EXPECT_EQ(buttons[index]->IsCancel(), row.isCancel);
            EXPECT_EQ(markers[index]->isVisible(), row.markerShown);
            EXPECT_EQ(markers[index]->Picture(),
                      row.marker == MsgMarker::Green ? "mark-enter" : "mark-escape");
          }
        });
      }
    }
  }
}

TEST_F(MessageBox, AClickOnAButtonAnswersWhatItsFaceSays) {
  const struct {
    int flags;
    std::vector<int> answers;
  } rows[] = {{0, {1}}, {1, {1, 2}}, {2, {3, 4, 5}}, {3, {6, 7, 2}}, {4, {6, 7}}, {5, {4, 2}}, {7, {4, 2}}};
  for (const auto& row : rows) {
    for (std::size_t index = 0; index < row.answers.size(); ++index) {
      const int answer = Ask(row.flags, [index](NewMsgBox& box) {
        ClickControl(*std::array{&box.fbnButton1, &box.fbnButton2, &box.fbnButton3}.at(index));
      });
      EXPECT_EQ(answer, row.answers[index]) << "flags " << row.flags << " button " << index + 1;
      EXPECT_FALSE(stayedUp);
      EXPECT_FALSE(The<NewMsgBox>().Visible());
    }
  }
}

TEST_F(MessageBox, Flags36AskYesOrNo) {
  EXPECT_EQ(AskWithKey(36, Qt::Key_Return), 6);
  EXPECT_EQ(AskWithKey(36, Qt::Key_Enter), 6);
  EXPECT_EQ(AskWithKey(36, Qt::Key_Escape), 7);
}

TEST_F(MessageBox, Flags64TellWithOneButton) {
  EXPECT_EQ(AskWithKey(64, Qt::Key_Return), 1);
  EXPECT_EQ(AskWithKey(64, Qt::Key_Escape), 0);
  EXPECT_TRUE(stayedUp) << "Escape does nothing in a box with OK alone";
}

TEST_F(MessageBox, Flags292MakeNoTheDefaultAndLeaveEscapeWithoutEffect) {
  EXPECT_EQ(AskWithKey(292, Qt::Key_Return), 7);
  EXPECT_EQ(AskWithKey(292, Qt::Key_Escape), 0);
  EXPECT_TRUE(stayedUp);
}

TEST_F(MessageBox, Flags48ShowOkOnly) {
  EXPECT_EQ(AskWithKey(48, Qt::Key_Return), 1);
}

TEST_F(MessageBox, EscapeAndEnterFollowTheRolesOfEachSet) {
  const struct {
    int flags, enter, escape;
  } rows[] = {{1, 1, 2}, {2, 4, 3}, {3, 6, 2}, {5, 4, 2}, {3 + 256, 7, 2}, {2 + 512, 5, 3}};
  for (const auto& row : rows) {
    EXPECT_EQ(AskWithKey(row.flags, Qt::Key_Return), row.enter) << row.flags;
    EXPECT_EQ(AskWithKey(row.flags, Qt::Key_Escape), row.escape) << row.flags;
  }
}

TEST_F(MessageBox, EnterPressesTheDefaultWhereverTheFocusIs) {
  const int answer = Ask(36, [](NewMsgBox& box) {
    box.fbnButton2.setFocus();
    QTest::keyClick(&box.fbnButton2, Qt::Key_Return);
  });
  EXPECT_EQ(answer, 6);
}

TEST_F(MessageBox, SpacePressesTheFocusedButton) {
  const int answer = Ask(36, [](NewMsgBox& box) {
    box.fbnButton2.setFocus();
    QTest::keyClick(&box.fbnButton2, Qt::Key_Space);
  });
  EXPECT_EQ(answer, 7);
}

TEST_F(MessageBox, TheFocusStartsOnTheDefault) {
  EXPECT_EQ(AskWithKey(292, Qt::Key_Space), 7);
  EXPECT_EQ(AskWithKey(36, Qt::Key_Space), 6);
  EXPECT_EQ(AskWithKey(2, Qt::Key_Space), 4);
}

TEST_F(MessageBox, AClosedFrameAnswersZero) {
  EXPECT_EQ(Ask(36, [](NewMsgBox& box) { box.close(); }), 0);
  EXPECT_EQ(AskWithKey(36, Qt::Key_Return), 6);
  EXPECT_EQ(Ask(36, [](NewMsgBox& box) { box.close(); }), 0) << "the answer before is forgotten";
}

TEST_F(MessageBox, TheCaptionCarriesTheProductName) {
  Ask(
      0, [](NewMsgBox& box) { EXPECT_EQ(box.Caption(), "Brolk Plus - Close file?"); }, "Close file?");
  Ask(
      0, [](NewMsgBox& box) { EXPECT_EQ(box.Caption(), "Brolk Plus"); }, "");
  Ask(
      0, [](NewMsgBox& box) { EXPECT_EQ(box.Caption(), "Brolk Plus -  "); }, " ");
}

TEST_F(MessageBox, OneWindowServesEveryCall) {
  NewMsgBox* first = nullptr;
  Ask(3, [&](NewMsgBox& box) { first = &box; });
  Ask(0, [&](NewMsgBox& box) {
    EXPECT_EQ(&box, first);
    EXPECT_FALSE(box.fbnButton2.isVisible()) << "the box before is wiped";
    EXPECT_FALSE(box.imgC1.isVisible());
  });
}

TEST_F(MessageBox, ALongTextIsCutAndTheWindowDoesNotGrow) {
  QTimer::singleShot(0, [] {
    auto& box = The<NewMsgBox>();
    EXPECT_EQ(box.size(), QSize(359, 129));
    EXPECT_EQ(box.lblMsg.size(), QSize(177, 65));
    EXPECT_GT(box.lblMsg.heightForWidth(177), 65) << "the text would need more";
    box.close();
  });
  ShowMsgBox(QStringLiteral("word ").repeated(200), 64, QString());
}

TEST_F(MessageBox, ALoneCarriageReturnBreaksALine) {
  QTimer::singleShot(0, [] {
    auto& box = The<NewMsgBox>();
    EXPECT_EQ(box.lblMsg.text(), "one\n\ntwo");
    EXPECT_EQ(box.lblMsg.Text(), "one\r\rtwo");
    box.close();
  });
  ShowMsgBox(QStringLiteral("one\r\rtwo"), 64, QString());
}

TEST_F(MessageBox, MarkUpAndAmpersandsShowAsTheyAre) {
  QTimer::singleShot(0, [] {
    auto& box = The<NewMsgBox>();
    EXPECT_EQ(box.lblMsg.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.lblMsg.text(), "<b>R&D</b>");
    box.close();
  });
  ShowMsgBox(QStringLiteral("<b>R&D</b>"), 64, QString());
}

TEST_F(MessageBox, TheRestOfTheProgramGetsNoInput) {
  Ask(64, [](NewMsgBox& box) {
    EXPECT_EQ(QApplication::activeModalWidget(), &box);
    const bool checked = The<MainForm>().fbnBrowser.Checked();
    QTest::mouseClick(The<MainForm>().windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(26, 44));
    EXPECT_EQ(The<MainForm>().fbnBrowser.Checked(), checked);
  });
}

TEST_F(MessageBox, StandsInTheMiddleOfTheActiveWindow) {
  auto& frame = The<MainForm>();
  frame.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&frame));
  Ask(64, [&](NewMsgBox& box) {
    EXPECT_NEAR(box.Left() + box.Width() / 2, frame.Left() + frame.Width() / 2, 45);
    EXPECT_NEAR(box.Top() + box.Height() / 2, frame.Top() + frame.Height() / 2, 45);
  });
  auto& tool = The<ColorSet>();
  tool.SetLeft(1500);
  tool.SetTop(3000);
  tool.Show();
  tool.SetFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&tool));
  Ask(64, [&](NewMsgBox& box) {
    EXPECT_NEAR(box.Left() + box.Width() / 2, tool.Left() + tool.Width() / 2, 45);
    EXPECT_NEAR(box.Top() + box.Height() / 2, tool.Top() + tool.Height() / 2, 45);
  });
}

TEST_F(MessageBox, AScreenReaderHearsTextAndButtons) {
  Ask(3, [](NewMsgBox& box) {
    EXPECT_EQ(box.lblMsg.accessibleName(), "A question?");
    EXPECT_EQ(box.fbnButton1.accessibleName(), "Yes");
    EXPECT_EQ(box.fbnButton2.accessibleName(), "No");
    EXPECT_EQ(box.fbnButton3.accessibleName(), "Cancel");
  });
}

TEST_F(MessageBox, TakenAwayWhileItIsUpItAnswersZero) {
  EXPECT_EQ(Ask(36,
                [](NewMsgBox&) {
                  UnloadWindow<NewMsgBox>();
                  EXPECT_FALSE(IsLoaded<NewMsgBox>());
                }),
            0);
}

}  // namespace
}  // namespace brolk::test
