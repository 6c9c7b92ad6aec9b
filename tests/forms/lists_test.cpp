// SPDX-License-Identifier: MIT
#include "forms/lists.h"

#include <gtest/gtest.h>

#include <QTest>

#include "forms/label.h"
#include "forms/menu.h"
#include "forms/text_box.h"

namespace brolk {
namespace {

struct Lists : ::testing::Test {
  void SetUp() override {
    list.setGeometry(0, 0, 200, 100);
    list.Click = [this] { ++clicks; };
    list.DblClick = [this] { ++doubleClicks; };
    window.show();
    for (const char* line : {"one", "two", "three"}) list.AddItem(line);
  }
  QPoint At(int line) { return list.visualItemRect(list.item(line)).center(); }
  QWidget window;
  ListBox list{window, "lstTest"};
  int clicks = 0;
  int doubleClicks = 0;
};

TEST_F(Lists, StartWithoutASelectedLine) {
  EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(Lists, RaiseAClickForAPressOnALineAndForTheArrowKeys) {
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, At(1));
  EXPECT_EQ(list.ListIndex(), 1);
  EXPECT_EQ(clicks, 1);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(list.ListIndex(), 2);
  EXPECT_EQ(clicks, 2);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(clicks, 2) << "the line did not change";
}

TEST_F(Lists, RaiseNothingWhereThereIsNoLine) {
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, {50, 90});
  EXPECT_EQ(clicks, 0);
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, {50, 90});
  EXPECT_EQ(doubleClicks, 0);
}

TEST_F(Lists, RaiseTheClickBeforeTheDoubleClick) {
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, At(2));
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, At(2));
  EXPECT_EQ(doubleClicks, 1);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(list.ListIndex(), 2);
}

TEST_F(Lists, TheKeyboardsArrivalSelectsNoLine) {
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  list.setFocus(Qt::TabFocusReason);
  ASSERT_TRUE(list.hasFocus());
  EXPECT_EQ(list.ListIndex(), -1);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(list.ListIndex(), 0);
  EXPECT_EQ(clicks, 1);
}

TEST_F(Lists, AChosenLineStaysChosenUnderControl) {
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, At(1));
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, At(1));
  EXPECT_EQ(list.ListIndex(), 1);
  EXPECT_TRUE(list.item(1)->isSelected());
}

TEST_F(Lists, AreClearedInSilence) {
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, At(1));
  list.Clear();
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(clicks, 1);
}

TEST(ComboLists, RaiseAClickWhenThePositionIsAssignedEvenTheSame) {
  QWidget window;
  ComboList combo(window, "cboTest");
  combo.AddItems({"a", "b"});
  int clicks = 0;
  combo.Click = [&] { ++clicks; };
  combo.SetListIndex(1);
  combo.SetListIndex(1);
  EXPECT_EQ(clicks, 2);
  QTest::keyClick(&combo, Qt::Key_Up);
  EXPECT_EQ(combo.ListIndex(), 0);
  EXPECT_EQ(clicks, 3);
}

TEST(TextBoxes, RaiseChangeForTypingAndAssigningButNotForTheSameText) {
  QWidget window;
  TextBox box(window, "txtTest", "0");
  int changes = 0;
  box.Change = [&] { ++changes; };
  box.SetText("0");
  EXPECT_EQ(changes, 0);
  box.SetText("12");
  QTest::keyClicks(&box, "3");
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(box.Text(), "123");
  box.AcceptsCharacter = [](QChar character) { return character != QLatin1Char(';'); };
  QTest::keyClicks(&box, ";4");
  EXPECT_EQ(box.Text(), "1234");
}

TEST(Labels, BreakALineAtALoneCarriageReturnAndBlankControlCharacters) {
  QWidget window;
  Label label(window, "lblTest", "");
  label.SetText(QStringLiteral("a\rb") + QChar(0) + "c");
  EXPECT_EQ(label.text(), "a\nb c");
  EXPECT_EQ(label.Text().size(), 5) << "the caption keeps what it was given";
}

TEST(Labels, ShowEveryControlCharacterOfARawLineAsOneBlank) {
  QWidget window;
  Label label(window, "lblTest", "old");
  label.SetContent(Label::Content::RawLine);
  const QString text = QStringLiteral("a\r\n\tb") + QChar(0) + QChar(0x7F) + QChar(0x81) + "c";
  label.SetText(text);
  EXPECT_EQ(label.text(), "a   b   c");
  EXPECT_EQ(label.Text(), text);
}

TEST(Labels, MayBreakAPathBehindItsSeparators) {
  QWidget window;
  Label label(window, "lblTest", "/a/b\\c");
  label.SetContent(Label::Content::Path);
  EXPECT_EQ(label.Text(), "/a/b\\c");
  EXPECT_EQ(label.text().remove(QChar(0x200B)), "/a/b\\c");
  EXPECT_EQ(label.text().count(QChar(0x200B)), 3);
  label.SetWrap();
  label.SetText(QString(40, QLatin1Char('x')) + "/" + QString(40, QLatin1Char('y')));
  EXPECT_GT(label.heightForWidth(label.fontMetrics().horizontalAdvance(QString(45, QLatin1Char('x')))),
            label.fontMetrics().height() + 4)
      << "two lines";
}

TEST(MenuItems, ShowAnAmpersandAsItIsAndKeepTheirMark) {
  QObject parent;
  MenuItem item(parent, "mnuTest", "Tom & Jerry.nes");
  EXPECT_EQ(item.text(), "Tom && Jerry.nes");
  EXPECT_EQ(item.Caption(), "Tom & Jerry.nes");
  item.SetChecked(true);
  int clicks = 0;
  item.Click = [&] { ++clicks; };
  item.trigger();
  EXPECT_EQ(clicks, 1);
  EXPECT_TRUE(item.isChecked()) << "a click leaves the mark alone";
  EXPECT_TRUE(item.shortcut().isEmpty());
}

}  // namespace
}  // namespace brolk
