// SPDX-License-Identifier: MIT
#pragma once

#include "forms/form.h"
#include "runtime/surface.h"

namespace brolk {

// A window that keeps what was drawn on it until it is drawn over. Its surface has the size of the client
// area in pixels; a larger window keeps the old picture and shows the back colour where it grew.
class DrawingForm : public Form {
 public:
  DrawingForm(const FormStyle& style, ColorValue backColor);

  // The picture of the client area. Draw on it, then Refresh.
  [[nodiscard]] Surface& Canvas();

  // Pointer events: button bits, shift bits, position in pixels of the client area, also outside of it while
  // a button is held. A press and a move carry all the buttons that are down, a release the one that was let
  // go.
  virtual void Form_MouseDown(int button, int shift, float x, float y);
  virtual void Form_MouseMove(int button, int shift, float x, float y);
  virtual void Form_MouseUp(int button, int shift, float x, float y);
  // Answers whether the window has a use for double clicks; if not, the second press counts as a press.
  virtual bool Form_DblClick();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  // The wheel moves the window's scroll bar of its direction.
  void wheelEvent(QWheelEvent* event) override;

 private:
  Surface canvas_;
  ColorValue backColor_;
  // A wheel event is with a scroll bar; a bar at its end hands it back to its window.
  bool wheeling_ = false;
};

}  // namespace brolk
