// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QMenu>
#include <functional>

namespace brolk {

// One item of a menu: a caption shown as it is ("&" included), a check mark, an enabled state. It has no
// shortcut.
class MenuItem final : public QAction {
 public:
  MenuItem(QObject& parent, const char* name, const QString& caption);

  [[nodiscard]] QString Caption() const { return caption_; }
  void SetCaption(const QString& caption);
  // The mark is the program's to set; a click leaves it alone.
  [[nodiscard]] bool Checked() const { return isCheckable() && marked_; }
  void SetChecked(bool marked);

  std::function<void()> Click;

 private:
  QString caption_;
  bool marked_ = false;
};

// Shows a menu at a point of a control, in pixels of the control, and returns when it has closed.
void PopupMenu(QMenu& menu, const QWidget& at, QPoint position);

}  // namespace brolk
