// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QSet>

#include "forms/flat_button.h"
#include "forms/label.h"
#include "forms/lists.h"
#include "forms/picture.h"
#include "forms/scroll_bar.h"
#include "forms/text_box.h"
#include "program/all_windows.h"
#include "shell/windows/main_form.h"
#include "support/program.h"

namespace brolk::test {
namespace {

void CheckButton(const ControlRow& row, const QWidget& control) {
  const auto* button = dynamic_cast<const FlatButton*>(&control);
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(button->isCheckable(), row.kind == ControlKind::Toggle);
  EXPECT_EQ(button->Checked(), row.value != 0);
}

void CheckBar(const ControlRow& row, const QWidget& control) {
  const auto* bar = dynamic_cast<const ScrollBar*>(&control);
  ASSERT_NE(bar, nullptr);
  EXPECT_EQ(bar->Min(), row.minimum);
  EXPECT_EQ(bar->Max(), row.maximum);
  EXPECT_EQ(bar->Value(), row.value);
}

void CheckControl(const ControlRow& row, const QWidget& control) {
  EXPECT_EQ(control.toolTip().toStdString(), row.toolTip);
  switch (row.kind) {
    case ControlKind::Button:
    case ControlKind::Toggle:
      CheckButton(row, control);
      break;
    case ControlKind::Bar:
      CheckBar(row, control);
      break;
    case ControlKind::Label:
      ASSERT_NE(dynamic_cast<const Label*>(&control), nullptr);
      if (row.text != nullptr) {
        EXPECT_EQ(dynamic_cast<const Label&>(control).Text().toStdString(), row.text);
      }
      break;
    case ControlKind::Text:
      ASSERT_NE(dynamic_cast<const TextBox*>(&control), nullptr);
      EXPECT_EQ(dynamic_cast<const TextBox&>(control).Text().toStdString(), row.text);
      break;
    case ControlKind::Combo:
      EXPECT_NE(dynamic_cast<const ComboList*>(&control), nullptr);
      break;
    case ControlKind::List:
      EXPECT_NE(dynamic_cast<const ListBox*>(&control), nullptr);
      break;
    case ControlKind::Picture:
      EXPECT_NE(dynamic_cast<const Picture*>(&control), nullptr);
      break;
  }
}

// Each window before it has loaded, against the table.
class Controls : public ::testing::TestWithParam<std::size_t> {};

TEST_P(Controls, HaveTheirNamesTextsToolTipsRangesAndStartValues) {
  const WindowRow& row = AllWindows()[GetParam()];
  const auto window = row.make();
  EXPECT_EQ(window->objectName(), row.name);
  if (row.caption != nullptr) {
    EXPECT_EQ(window->Caption().toStdString(), row.caption);
  }
  for (const ControlRow& control : row.controls) {
    SCOPED_TRACE(std::string(row.name) + "." + control.name);
    CheckControl(control, FindControl(*window, control.name));
  }
}

// A control that the table does not know would be checked by nobody.
TEST_P(Controls, AreAllInTheTable) {
  const WindowRow& row = AllWindows()[GetParam()];
  const auto window = row.make();
  QSet<QString> known;
  for (const ControlRow& control : row.controls) known.insert(QString::fromUtf8(control.name));
  for (const QWidget* control : window->findChildren<QWidget*>()) {
    const bool ours = dynamic_cast<const FlatButton*>(control) != nullptr ||
                      dynamic_cast<const Label*>(control) != nullptr ||
                      dynamic_cast<const ScrollBar*>(control) != nullptr ||
                      dynamic_cast<const ComboList*>(control) != nullptr ||
                      dynamic_cast<const TextBox*>(control) != nullptr ||
                      dynamic_cast<const ListBox*>(control) != nullptr ||
                      dynamic_cast<const Picture*>(control) != nullptr;
    if (ours) {
      EXPECT_TRUE(known.contains(control->objectName())) << control->objectName().toStdString();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(OfEveryWindow, Controls, ::testing::Range<std::size_t>(0, 16), NameOf);

TEST(ControlTable, KnowsEveryWindow) {
  EXPECT_EQ(AllWindows().size(), 16U);
}

}  // namespace
}  // namespace brolk::test
