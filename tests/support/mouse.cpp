// SPDX-License-Identifier: MIT
#include "support/mouse.h"

#include <QGuiApplication>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

namespace brolk::test {

void Mouse::Press(QPoint at, Qt::MouseButton button) {
  down_ |= button;
  Send(QEvent::MouseButtonPress, at, button);
}

void Mouse::Move(QPoint at) {
  Send(QEvent::MouseMove, at, Qt::NoButton);
}

void Mouse::Release(QPoint at, Qt::MouseButton button) {
  down_ &= ~Qt::MouseButtons(button);
  Send(QEvent::MouseButtonRelease, at, button);
}

void Mouse::Click(QPoint at, Qt::MouseButton button) {
  Press(at, button);
  Release(at, button);
}

void Mouse::Drag(QPoint from, QPoint to, Qt::MouseButton button) {
  Press(from, button);
  Move(to);
  Release(to, button);
}

void Mouse::Send(QEvent::Type type, QPoint at, Qt::MouseButton button) {
  QWidget* window = over_.window();
  const QPoint inWindow = over_.mapTo(window, at);
  QMouseEvent event(type, inWindow, window->mapToGlobal(inWindow), button, down_, Qt::NoModifier);
  QGuiApplication::sendEvent(window->windowHandle(), &event);
}

void TurnWheel(QWidget& over, QPoint at, bool down) {
  QWheelEvent event(at, over.mapToGlobal(at), {}, {0, down ? -120 : 120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QGuiApplication::sendEvent(&over, &event);
}

}  // namespace brolk::test
