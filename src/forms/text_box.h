// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <functional>

namespace brolk {

// One line of text, yellow on purple.
class TextBox final : public QLineEdit {
 public:
  TextBox(QWidget& parent, const char* name, const QString& text, const QString& toolTip = QString());

  [[nodiscard]] QString Text() const { return text(); }
  // Raises Change when the text differs from what stood there.
  void SetText(const QString& text) { setText(text); }
  void Refresh();

  // Any change of the text, by the user or by an assignment.
  std::function<void()> Change;
  std::function<void()> DblClick;
  // Answers whether a typed character is taken.
  std::function<bool(QChar)> AcceptsCharacter;

 protected:
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace brolk
