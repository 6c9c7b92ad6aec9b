// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QObject>
#include <functional>
#include <string>
#include <vector>

#include "forms/label.h"

namespace brolk::test {

// Keeps every text that a label really shows on screen, in order; repeats in a row count once.
class ShownTexts final : public QObject {
 public:
  explicit ShownTexts(Label& label) : label_(label) { label.installEventFilter(this); }

  std::vector<std::string> texts;
  // Hears each of them when it comes.
  std::function<void(const std::string&)> Heard;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    const std::string text = label_.Text().toStdString();
    if (event->type() != QEvent::Paint || (!texts.empty() && texts.back() == text)) return false;
    texts.push_back(text);
    if (Heard) Heard(text);
    return false;
  }

 private:
  Label& label_;
};

}  // namespace brolk::test
