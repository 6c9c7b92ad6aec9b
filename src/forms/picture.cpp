// SPDX-License-Identifier: MIT
#include "forms/picture.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include "forms/keys.h"

namespace brolk {
namespace {

constexpr ColorValue kEmptyColor = 0xFFFFFF;

}  // namespace

QImage ImageOver(const Surface& surface) {
  return QImage(reinterpret_cast<const uchar*>(surface.Data()), surface.Width(), surface.Height(),
                surface.Width() * 4, QImage::Format_RGBX8888);
}

Picture::Picture(QWidget& parent, const char* name) : QWidget(&parent) {
  setObjectName(QString::fromUtf8(name));
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

// A control that is not on the screen yet learns of its size only when it is shown, and may be drawn on
// before.
Surface& Picture::Canvas() {
  canvas_.Resize(width(), height(), kEmptyColor);
  return canvas_;
}

void Picture::Refresh() {
  repaint();
}

void Picture::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.drawImage(event->rect(), ImageOver(Canvas()), event->rect());
}

void Picture::mousePressEvent(QMouseEvent* event) {
  const QPointF at = event->position();
  if (MouseDown) {
    MouseDown(ButtonBitsOf(event->button()), ShiftBitsOf(static_cast<unsigned int>(event->modifiers())),
              static_cast<float>(at.x()), static_cast<float>(at.y()));
  }
}

void Picture::mouseMoveEvent(QMouseEvent* event) {
  const QPointF at = event->position();
  if (MouseMove) {
    MouseMove(ButtonBitsOf(event->buttons()), ShiftBitsOf(static_cast<unsigned int>(event->modifiers())),
              static_cast<float>(at.x()), static_cast<float>(at.y()));
  }
}

}  // namespace brolk
