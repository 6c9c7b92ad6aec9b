// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QWidget>
#include <functional>

#include "runtime/surface.h"

namespace brolk {

// A surface as an image, without a copy: valid as long as the surface lives and keeps its size.
[[nodiscard]] QImage ImageOver(const Surface& surface);

// A control that keeps what was drawn on it. Positions are pixels of the control; on a scaled screen they
// have fractions, but no point inside lies beyond the last pixel.
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

  // Makes square cells of this size in pixels, asked for anew each time, work without a pointer: Tab reaches
  // the picture, the arrow keys move a mark (and raise MouseMove), Space presses the left button on the
  // marked cell, the menu key or Shift+F10 the right one.
  void SetCells(std::function<int()> cellPx);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  [[nodiscard]] QPointF Inside(QPointF at) const;
  void Press(int button, int shift, QPointF at);
  void MoveMark(QPoint step);
  // Answers whether the key is one of the arrows.
  bool MoveMarkByKey(int key);
  void ShowMark(bool on);
  // The marked cell, held inside the picture as it is now.
  [[nodiscard]] QRect MarkedCell() const;

  Surface canvas_;
  std::function<int()> cellPx_;
  QPoint mark_;  // column and row of the marked cell
  bool markShown_ = false;
};

}  // namespace brolk
