// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollBar>
#include <functional>

namespace brolk {

// A scroll bar over a minimum, a maximum and a value.
//
// The user moves the value inside the range. An assignment by the program may stand beyond the maximum: the
// thumb then shows the end and the value is the assigned one, until the user moves it or a lowered maximum
// pulls it down. Change is raised only when the value really changes, at once, inside the running handler.
// While the thumb is dragged only Scroll is raised, with the value following the thumb; Change comes on the
// release. The wheel over the bar moves it by one step a notch. A maximum below the minimum is kept as the
// number and leaves nothing to scroll: the value stays at the minimum.
class ScrollBar final : public QScrollBar {
 public:
  ScrollBar(Qt::Orientation orientation, QWidget& parent, const char* name, int minimum, int maximum,
            int value);

  [[nodiscard]] int Min() const { return minimum_; }
  [[nodiscard]] int Max() const { return maximum_; }
  [[nodiscard]] int Value() const { return value_; }
  void SetMax(int maximum);
  void SetValue(int value);
  void SetLargeChange(int step) { setPageStep(step); }

  std::function<void()> Change;
  std::function<void()> Scroll;

 protected:
  void wheelEvent(QWheelEvent* event) override;

 private:
  void TakeValue(int value);
  void ShowValue();

  int minimum_;
  int maximum_;
  int value_;
  int valueBeforeDrag_ = 0;
  int wheelRest_ = 0;  // eighths of a degree short of a notch
  bool showing_ = false;
};

}  // namespace brolk
