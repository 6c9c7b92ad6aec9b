// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <functional>
#include <optional>

#include "runtime/surface.h"

namespace brolk {

// A text, a swatch of one colour, or a picture. A lone carriage return breaks a line. Nothing is marked up.
class Label : public QLabel {
 public:
  Label(QWidget& parent, const char* name, const QString& text, const QString& toolTip = QString());

  [[nodiscard]] QString Text() const { return text_; }
  void SetText(const QString& text);
  // Shows a changed text at once, also while a long action runs.
  void Refresh();

  void SetBold();
  void SetBorder();
  void SetWrap();
  // How a text becomes what is on screen; the caption keeps it as it was given.
  enum class Content {
    Message,  // control characters show as blanks, but a line end breaks the line
    RawLine,  // every control character shows as one blank
    Path,     // a wrapped label may break it behind each separator
  };
  void SetContent(Content content);
  void SetCentered();
  void SetTextColor(ColorValue color);
  [[nodiscard]] ColorValue BackColor() const { return backColor_.value_or(0xFFFFFF); }
  void SetBackColor(ColorValue color);
  // Shows a picture of assets/icons instead of a text.
  [[nodiscard]] QString Picture() const { return picture_; }
  void SetPicture(const QString& name);
  // A label that can be clicked can be reached by the keyboard as well: Space clicks it.
  void SetClick(std::function<void()> click);

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void ApplyColors();

  QString text_;
  Content content_ = Content::Message;
  QString picture_;
  std::function<void()> click_;
  std::optional<ColorValue> backColor_;
  ColorValue textColor_;
};

}  // namespace brolk
