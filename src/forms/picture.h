// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QWidget>
#include <functional>

#include "runtime/surface.h"

namespace brolk {

// A surface as an image, without a copy: valid as long as the surface lives and keeps its size.
[[nodiscard]] QImage ImageOver(const Surface& surface);

// A control that keeps what was drawn on it. Positions are pixels of the control.
class Picture final : public QWidget {
 public:
  Picture(QWidget& parent, const char* name);

  // The picture, of the size of the control. Draw on it, then Refresh.
  [[nodiscard]] Surface& Canvas();
  [[nodiscard]] int ScaleWidth() const { return width(); }
  [[nodiscard]] int ScaleHeight() const { return height(); }
  void Refresh();

  // Button bits, shift bits, x, y. A press carries the pressed button, a move all that are down.
  std::function<void(int, int, float, float)> MouseDown;
  std::function<void(int, int, float, float)> MouseMove;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  Surface canvas_;
};

}  // namespace brolk
