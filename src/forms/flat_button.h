// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QIcon>
#include <functional>

namespace brolk {

class Form;

// A picture button without a frame until the pointer is over it. It can have two states and be the default
// (Enter) or cancel (Escape) button of its window. Assigning the checked state raises no click.
class FlatButton final : public QAbstractButton {
 public:
  enum class Kind { Command, Toggle, Separator };
  enum class Role { None, Default, Cancel };

  // picture: name in assets/icons. toolTip also serves as accessible name; without one the given name does.
  FlatButton(QWidget& parent, const char* name, const QString& picture, const QString& toolTip,
             Kind kind = Kind::Command);

  [[nodiscard]] bool Checked() const { return isChecked(); }
  void SetChecked(bool checked);

  [[nodiscard]] QString Picture() const { return picture_; }
  void SetPicture(const QString& name);

  // Text instead of a picture.
  [[nodiscard]] QString Caption() const { return text(); }
  void SetCaption(const QString& caption);

  [[nodiscard]] bool IsDefault() const { return default_; }
  [[nodiscard]] bool IsCancel() const { return cancel_; }
  void SetDefault(bool on) { default_ = on; }
  void SetCancel(bool on) { cancel_ = on; }

  // Clicks the enabled and visible button of a window that has this role; false when there is none.
  static bool ClickRole(Form& form, Role role);

  // A click with the left button, Space, or the role's key. A toggle has changed its state before.
  std::function<void()> Click;
  // A press of any button: button bit, shift bits, x, y in pixels of the button.
  std::function<void(int, int, float, float)> MouseDown;

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void PaintFace(class QPainter& painter) const;
  void PaintFrame(class QPainter& painter) const;
  void PaintFocus(class QPainter& painter) const;

  Kind kind_;
  QString picture_;
  QIcon icon_;
  bool default_ = false;
  bool cancel_ = false;
};

}  // namespace brolk
