// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>
#include <string>
#include <vector>

#include "forms/lists.h"

// A person's hands on a list.
namespace brolk::test {

inline QPoint LineCenter(ListBox& list, int line) {
  list.scrollToItem(list.item(line));
  return list.visualItemRect(list.item(line)).center();
}

inline void ClickLine(ListBox& list, int line) {
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, LineCenter(list, line));
}

inline void DoubleClickLine(ListBox& list, int line) {
  ClickLine(list, line);
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, LineCenter(list, line));
}

inline std::vector<std::string> LinesOf(const ListBox& list) {
  std::vector<std::string> lines;
  for (int line = 0; line < list.ListCount(); ++line) lines.push_back(list.List(line).toStdString());
  return lines;
}

}  // namespace brolk::test
