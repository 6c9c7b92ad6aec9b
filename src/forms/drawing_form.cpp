// SPDX-License-Identifier: MIT
#include "forms/drawing_form.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>

#include "forms/keys.h"
#include "forms/picture.h"
#include "forms/scroll_bar.h"

namespace brolk {
namespace {

// 256 MiB. A page size out of a spoilt settings file can ask for a window far beyond any screen; the lines
// below this are not kept.
constexpr int kMostCanvasPixels = 1 << 26;

}  // namespace

DrawingForm::DrawingForm(const FormStyle& style, ColorValue backColor) : Form(style), backColor_(backColor) {
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  canvas_.Resize(width(), height(), backColor_);
}

// A window that is not on the screen yet learns of its size only when it is shown, and may be drawn on
// before.
Surface& DrawingForm::Canvas() {
  canvas_.Resize(width(), std::min(height(), kMostCanvasPixels / std::max(width(), 1)), backColor_);
  return canvas_;
}

void DrawingForm::Form_MouseDown(int, int, float, float) {}
void DrawingForm::Form_MouseMove(int, int, float, float) {}
void DrawingForm::Form_MouseUp(int, int, float, float) {}
bool DrawingForm::Form_DblClick() {
  return false;
}

void DrawingForm::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.drawImage(event->rect(), ImageOver(Canvas()), event->rect());
}

void DrawingForm::resizeEvent(QResizeEvent* event) {
  static_cast<void>(Canvas());
  Form::resizeEvent(event);
}

void DrawingForm::mousePressEvent(QMouseEvent* event) {
  setFocus(Qt::MouseFocusReason);
  BecomeActive();
  const QPointF at = event->position();
  Form_MouseDown(ButtonBitsOf(event->buttons()), ShiftBitsOf(static_cast<unsigned int>(event->modifiers())),
                 static_cast<float>(at.x()), static_cast<float>(at.y()));
}

void DrawingForm::mouseMoveEvent(QMouseEvent* event) {
  const QPointF at = event->position();
  Form_MouseMove(ButtonBitsOf(event->buttons()), ShiftBitsOf(static_cast<unsigned int>(event->modifiers())),
                 static_cast<float>(at.x()), static_cast<float>(at.y()));
}

void DrawingForm::mouseReleaseEvent(QMouseEvent* event) {
  const QPointF at = event->position();
  Form_MouseUp(ButtonBitsOf(event->button()), ShiftBitsOf(static_cast<unsigned int>(event->modifiers())),
               static_cast<float>(at.x()), static_cast<float>(at.y()));
}

void DrawingForm::mouseDoubleClickEvent(QMouseEvent* event) {
  // The second press of a double click raises the double click alone.
  if (event->button() == Qt::LeftButton && Form_DblClick()) return;
  mousePressEvent(event);
}

void DrawingForm::wheelEvent(QWheelEvent* event) {
  event->accept();
  if (wheeling_) return;
  wheeling_ = true;
  const Qt::Orientation direction = event->angleDelta().y() != 0 ? Qt::Vertical : Qt::Horizontal;
  for (ScrollBar* bar : findChildren<ScrollBar*>()) {
    if (bar->orientation() == direction && bar->isVisible()) QCoreApplication::sendEvent(bar, event);
  }
  wheeling_ = false;
}

}  // namespace brolk
