// SPDX-License-Identifier: MIT
#include "forms/picture.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include "forms/keys.h"

namespace brolk {

QImage ImageOver(const Surface& surface) {
  return QImage(reinterpret_cast<const uchar*>(surface.Data()), surface.Width(), surface.Height(),
                surface.Width() * 4, QImage::Format_RGBX8888);
}

Picture::Picture(QWidget& parent, const char* name) : QWidget(&parent) {
  setObjectName(QString::fromUtf8(name));
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void Picture::Refresh() {
  repaint();
}

void Picture::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.drawImage(event->rect(), ImageOver(canvas_), event->rect());
}

void Picture::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  canvas_.Resize(width(), height(), 0xFFFFFF);
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
