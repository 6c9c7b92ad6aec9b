// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <string>
#include <vector>

#include "forms/windows.h"
#include "palette/color_sets.h"
#include "palette/palette_model.h"
#include "palette/windows/color_set.h"
#include "support/program.h"

namespace brolk::test {

// The colour set tool on the screen, with an empty list.
class ColorSetTool : public ::testing::Test {
 protected:
  void SetUp() override {
    StartProgram();
    tool = &The<ColorSet>();
    tool->Show();
  }

  // Adds a set of this name whose colours are all the same.
  void Add(const QString& name, ColorValue color) {
    Palette.fill(color);
    tool->txtName.SetText(name);
    ClickControl(tool->fbnAddSet);
  }

  void PressLine(int line) {
    QTest::mouseClick(tool->lstSets.viewport(), Qt::LeftButton, {}, CenterOf(line));
  }
  void DoubleClickLine(int line) {
    PressLine(line);
    QTest::mouseDClick(tool->lstSets.viewport(), Qt::LeftButton, {}, CenterOf(line));
  }
  QPoint CenterOf(int line) { return tool->lstSets.visualItemRect(tool->lstSets.item(line)).center(); }

  void Delete(Qt::MouseButton button = Qt::LeftButton) {
    QTest::mousePress(&tool->fbnDeleteSet, button);
    QTest::mouseRelease(&tool->fbnDeleteSet, button);
  }

  void Press(Qt::MouseButton button, QPointF at) {
    QMouseEvent press(QEvent::MouseButtonPress, at, tool->picColor.mapToGlobal(at), button, button,
                      Qt::NoModifier);
    QApplication::sendEvent(&tool->picColor, &press);
  }

  [[nodiscard]] std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    for (int line = 0; line < tool->lstSets.ListCount(); ++line)
      lines.push_back(tool->lstSets.List(line).toStdString());
    return lines;
  }

  void ExpectPictureOf(int set) {
    const int cell = tool->picColor.width() / 16;
    for (int y = 0; y < tool->picColor.height(); ++y) {
      for (int x = 0; x < tool->picColor.width(); ++x) {
        ASSERT_EQ(tool->picColor.Canvas().GetPixel(x, y), Sets[set].Colors[y / cell * 16 + x / cell])
            << x << ',' << y;
      }
    }
  }

  ColorSet* tool = nullptr;
};

}  // namespace brolk::test
