// SPDX-License-Identifier: MIT
#include "forms/label.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "forms/look.h"

namespace brolk {
namespace {

constexpr QChar kBreakingPlace(0x200B);  // a blank without a width

QString ShownMessage(QString text) {
  text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
  for (QChar& character : text) {
    if (character.unicode() < 32 && character != QLatin1Char('\n') && character != QLatin1Char('\t'))
      character = QLatin1Char(' ');
  }
  return text;
}

QString ShownLine(QString text) {
  for (QChar& character : text) {
    if (character.category() == QChar::Other_Control) character = QLatin1Char(' ');
  }
  return text;
}

QString ShownPath(const QString& text) {
  QString shown;
  for (const QChar character : text) {
    shown += character;
    if (character == QLatin1Char('/') || character == QLatin1Char('\\')) shown += kBreakingPlace;
  }
  return shown;
}

}  // namespace

Label::Label(QWidget& parent, const char* name, const QString& text, const QString& toolTip)
    : QLabel(&parent), textColor_(kLabelColor) {
  setObjectName(QString::fromUtf8(name));
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  setToolTip(toolTip);
  setAccessibleName(!toolTip.isEmpty() ? toolTip : !text.isEmpty() ? text : objectName());
  SetText(text);
  ApplyColors();
}

void Label::SetText(const QString& text) {
  text_ = text;
  switch (content_) {
    case Content::Message:
      return setText(ShownMessage(text));
    case Content::RawLine:
      return setText(ShownLine(text));
    case Content::Path:
      return setText(ShownPath(text));
  }
}

void Label::SetContent(Content content) {
  content_ = content;
  SetText(text_);
}

void Label::Refresh() {
  if (isVisible()) repaint();
}

void Label::SetBold() {
  setFont(ProgramFont(true));
}
void Label::SetBorder() {
  setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
}
void Label::SetWrap() {
  setWordWrap(true);
}
void Label::SetCentered() {
  setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
}

void Label::SetTextColor(ColorValue color) {
  textColor_ = color;
  ApplyColors();
}

void Label::SetBackColor(ColorValue color) {
  backColor_ = color;
  ApplyColors();
}

void Label::SetPicture(const QString& name) {
  picture_ = name;
  update();
}

void Label::SetClick(std::function<void()> click) {
  click_ = std::move(click);
  setFocusPolicy(Qt::TabFocus);
}

void Label::ApplyColors() {
  QPalette colors = palette();
  colors.setColor(QPalette::WindowText, ScreenColor(textColor_));
  if (backColor_) colors.setColor(QPalette::Window, ScreenColor(*backColor_));
  setPalette(colors);
  setAutoFillBackground(backColor_.has_value());
}

void Label::mousePressEvent(QMouseEvent* event) {
  if (click_) {
    event->accept();
  } else {
    QLabel::mousePressEvent(event);
  }
}

void Label::mouseReleaseEvent(QMouseEvent* event) {
  if (click_ && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
    click_();
  } else {
    QLabel::mouseReleaseEvent(event);
  }
}

void Label::keyPressEvent(QKeyEvent* event) {
  if (click_ && event->key() == Qt::Key_Space) {
    click_();
  } else {
    QLabel::keyPressEvent(event);
  }
}

void Label::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  QPainter painter(this);
  if (!picture_.isEmpty()) painter.drawPixmap(0, 0, PicturePixmap(picture_, size(), devicePixelRatioF()));
  if (hasFocus()) {
    painter.setPen(QPen(ScreenColor(textColor_), 1, Qt::DotLine));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }
}

}  // namespace brolk
