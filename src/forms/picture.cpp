// SPDX-License-Identifier: MIT
#include "forms/picture.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

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

void Picture::SetCells(std::function<int()> cellPx) {
  cellPx_ = std::move(cellPx);
  setFocusPolicy(Qt::TabFocus);
}

void Picture::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.drawImage(event->rect(), ImageOver(Canvas()), event->rect());
  if (!markShown_) return;
  // Black dots on white can be seen on every colour.
  const QRect frame = MarkedCell().adjusted(0, 0, -1, -1);
  painter.setPen(Qt::white);
  painter.drawRect(frame);
  painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
  painter.drawRect(frame);
}

// The last pixel of a scaled screen has positions that would round to the one behind it.
QPointF Picture::Inside(QPointF at) const {
  if (at.x() < width()) at.setX(std::min(at.x(), width() - 1.0));
  if (at.y() < height()) at.setY(std::min(at.y(), height() - 1.0));
  return at;
}

void Picture::Press(int button, int shift, QPointF at) {
  if (MouseDown) MouseDown(button, shift, static_cast<float>(at.x()), static_cast<float>(at.y()));
}

void Picture::mousePressEvent(QMouseEvent* event) {
  ShowMark(false);
  Press(ButtonBitsOf(event->button()), ShiftBitsOf(static_cast<unsigned int>(event->modifiers())),
        Inside(event->position()));
}

void Picture::mouseMoveEvent(QMouseEvent* event) {
  const QPointF at = Inside(event->position());
  if (MouseMove) {
    MouseMove(ButtonBitsOf(event->buttons()), ShiftBitsOf(static_cast<unsigned int>(event->modifiers())),
              static_cast<float>(at.x()), static_cast<float>(at.y()));
  }
}

QRect Picture::MarkedCell() const {
  const int cell = std::clamp(cellPx_(), 1, std::max(std::min(width(), height()), 1));
  const QPoint last(width() / cell - 1, height() / cell - 1);
  return {std::clamp(mark_.x(), 0, last.x()) * cell, std::clamp(mark_.y(), 0, last.y()) * cell, cell, cell};
}

void Picture::ShowMark(bool on) {
  markShown_ = on && cellPx_;
  update();
}

void Picture::MoveMark(QPoint step) {
  const QRect before = MarkedCell();
  mark_ = QPoint(before.x() / before.width(), before.y() / before.height()) + step;
  const QPoint at = MarkedCell().center();
  mark_ = at / before.width();
  ShowMark(true);
  if (MouseMove) MouseMove(0, 0, static_cast<float>(at.x()), static_cast<float>(at.y()));
}

bool Picture::MoveMarkByKey(int key) {
  struct Step {
    int key;
    QPoint cells;
  };
  static constexpr Step kSteps[] = {
      {Qt::Key_Left, {-1, 0}}, {Qt::Key_Right, {1, 0}}, {Qt::Key_Up, {0, -1}}, {Qt::Key_Down, {0, 1}}};
  for (const Step& step : kSteps) {
    if (step.key != key) continue;
    MoveMark(step.cells);
    return true;
  }
  return false;
}

void Picture::keyPressEvent(QKeyEvent* event) {
  const bool menuKey = event->key() == Qt::Key_Menu ||
                       (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier);
  if (cellPx_ && MoveMarkByKey(event->key())) return;
  if (!cellPx_ || (event->key() != Qt::Key_Space && !menuKey)) {
    QWidget::keyPressEvent(event);
    return;
  }
  ShowMark(true);
  Press(menuKey ? kRightButton : kLeftButton, 0, MarkedCell().center());
}

void Picture::focusInEvent(QFocusEvent* event) {
  ShowMark(event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason);
}

void Picture::focusOutEvent(QFocusEvent*) {
  ShowMark(false);
}

}  // namespace brolk
