// SPDX-License-Identifier: MIT
#include "forms/flat_button.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "forms/form.h"
#include "forms/keys.h"
#include "forms/look.h"

namespace brolk {
namespace {

constexpr int kPictureMarginPx = 3;
// A button smaller than this in one direction gives its picture all the room it has.
constexpr int kSmallButtonPx = 24;
constexpr qreal kCornerPx = 3;

// The square or word picture of a button keeps its shape and stays inside the frame.
QRect PictureRect(const QRect& button, const QString& picture) {
  if (picture.startsWith(QLatin1String("face-")) ||
      std::min(button.width(), button.height()) < kSmallButtonPx)
    return button;
  return button.adjusted(kPictureMarginPx, kPictureMarginPx, -kPictureMarginPx, -kPictureMarginPx);
}

}  // namespace

FlatButton::FlatButton(QWidget& parent, const char* name, const QString& picture, const QString& toolTip,
                       Kind kind)
    : QAbstractButton(&parent), kind_(kind) {
  setObjectName(QString::fromUtf8(name));
  setToolTip(toolTip);
  setAccessibleName(toolTip.isEmpty() ? objectName() : toolTip);
  setCheckable(kind == Kind::Toggle);
  setFocusPolicy(kind == Kind::Separator ? Qt::NoFocus : Qt::TabFocus);
  setEnabled(kind != Kind::Separator);
  setAttribute(Qt::WA_Hover);
  SetPicture(picture);
  connect(this, &QAbstractButton::clicked, this, [this] {
    if (Click) Click();
  });
}

void FlatButton::SetChecked(bool checked) {
  setChecked(checked);
}

void FlatButton::SetPicture(const QString& name) {
  picture_ = name;
  icon_ = PictureIcon(name);
  update();
}

void FlatButton::SetCaption(const QString& caption) {
  setText(caption);
  update();
}

bool FlatButton::ClickRole(Form& form, Role role) {
  for (FlatButton* button : form.findChildren<FlatButton*>()) {
    const bool fits = role == Role::Default ? button->default_ : button->cancel_;
    if (!fits || !button->isEnabled() || button->isHidden() || button->window() != form.window()) continue;
    button->click();
    return true;
  }
  return false;
}

QSize FlatButton::sizeHint() const {
  return {34, 34};
}

void FlatButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (kind_ == Kind::Separator) {
    const bool upright = height() > width();
    painter.setPen(palette().color(QPalette::Mid));
    if (upright) painter.drawLine(QPointF(width() / 2.0, 2), QPointF(width() / 2.0, height() - 2));
    if (!upright) painter.drawLine(QPointF(0, height() / 2.0), QPointF(width(), height() / 2.0));
    return;
  }
  PaintFrame(painter);
  PaintFace(painter);
  if (hasFocus()) PaintFocus(painter);
}

void FlatButton::PaintFrame(QPainter& painter) const {
  const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  QColor edge = ScreenColor(kFrameColor);
  if (isChecked() || isDown()) {
    QColor inside = edge;
    inside.setAlpha(isDown() ? 90 : 56);
    painter.setPen(edge);
    painter.setBrush(inside);
    painter.drawRoundedRect(frame, kCornerPx, kCornerPx);
  } else if (underMouse() && isEnabled()) {
    edge.setAlpha(140);
    painter.setPen(edge);
    painter.setBrush(QColor(255, 255, 255, 120));
    painter.drawRoundedRect(frame, kCornerPx, kCornerPx);
  }
}

// Over the face, which may fill the whole button.
void FlatButton::PaintFocus(QPainter& painter) const {
  painter.setPen(QPen(ScreenColor(kLabelColor), 1, Qt::DotLine));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), kCornerPx, kCornerPx);
}

void FlatButton::PaintFace(QPainter& painter) const {
  if (!text().isEmpty()) {
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    painter.drawText(rect(), Qt::AlignCenter, text());
    return;
  }
  QRect place = PictureRect(rect(), picture_);
  if (isDown()) place.translate(1, 1);
  icon_.paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

void FlatButton::mousePressEvent(QMouseEvent* event) {
  const QPointF at = event->position();
  QAbstractButton::mousePressEvent(event);
  event->accept();
  if (MouseDown) {
    const bool wasDown = isDown();
    if (wasDown) setDown(false);
    MouseDown(ButtonBitsOf(event->button()), ShiftBitsOf(static_cast<unsigned int>(event->modifiers())),
              static_cast<float>(at.x()), static_cast<float>(at.y()));
  }
}

void FlatButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    event->ignore();
    return;
  }
  if (event->key() == Qt::Key_Space && MouseDown && !Click && !event->isAutoRepeat()) {
    // A button that acts on the press of the pointer acts on Space like on the left button.
    MouseDown(kLeftButton, 0, static_cast<float>(width()) / 2, static_cast<float>(height()) / 2);
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

bool FlatButton::event(QEvent* event) {
  if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave) update();
  return QAbstractButton::event(event);
}

}  // namespace brolk
