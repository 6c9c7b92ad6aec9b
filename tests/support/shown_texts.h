// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QObject>
#include <string>
#include <vector>

#include "forms/label.h"

namespace brolk::test {

// Keeps every text that a label really shows on screen, in order; repeats in a row count once.
class ShownTexts final : public QObject {
 public:
  explicit ShownTexts(Label& label) : label_(label) { label.installEventFilter(this); }

  std::vector<std::string> texts;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    const std::string text = label_.Text().toStdString();
    if (event->type() == QEvent::Paint && (texts.empty() || texts.back() != text)) texts.push_back(text);
    return false;
  }

 private:
  Label& label_;
};

}  // namespace brolk::test
