// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QPoint>
#include <QWidget>

namespace brolk::test {

// A person's mouse. Positions are pixels of a window or control and may lie outside of it; the events come in
// through the platform, so the toolkit decides who gets them. What is pressed stays down until it is let go.
class Mouse {
 public:
  explicit Mouse(QWidget& over) : over_(over) {}

  void Press(QPoint at, Qt::MouseButton button = Qt::LeftButton);
  void Move(QPoint at);
  void Release(QPoint at, Qt::MouseButton button = Qt::LeftButton);

  void Click(QPoint at, Qt::MouseButton button = Qt::LeftButton);
  // Press, a move to the end, release.
  void Drag(QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton);

 private:
  void Send(QEvent::Type type, QPoint at, Qt::MouseButton button);

  QWidget& over_;
  Qt::MouseButtons down_;
};

// Turns the wheel by one notch over a place: towards the user when `down`.
void TurnWheel(QWidget& over, QPoint at, bool down);

}  // namespace brolk::test
