// SPDX-License-Identifier: MIT
#include "forms/scroll_bar.h"

#include <QWheelEvent>
#include <algorithm>

namespace brolk {

ScrollBar::ScrollBar(Qt::Orientation orientation, QWidget& parent, const char* name, int minimum, int maximum,
                     int value)
    : QScrollBar(orientation, &parent), minimum_(minimum), maximum_(maximum), value_(value) {
  setObjectName(QString::fromUtf8(name));
  setAccessibleName(objectName());
  setFocusPolicy(Qt::TabFocus);
  setSingleStep(1);
  setPageStep(1);
  // The toolkit turns the keys of its scroll bars over in both directions; only upright ones want that.
  setInvertedControls(orientation == Qt::Vertical);
  ShowValue();
  connect(this, &QScrollBar::sliderPressed, this, [this] { valueBeforeDrag_ = value_; });
  connect(this, &QScrollBar::valueChanged, this, [this](int shown) {
    if (showing_) return;
    if (!isSliderDown()) {
      TakeValue(shown);
      return;
    }
    value_ = shown;
    if (Scroll) Scroll();
  });
  connect(this, &QScrollBar::sliderReleased, this, [this] {
    if (value_ != valueBeforeDrag_ && Change) Change();
  });
}

void ScrollBar::SetMax(int maximum) {
  maximum_ = maximum;
  const int highest = std::max(maximum_, minimum_);
  const bool pulled = value_ > highest;
  if (pulled) value_ = highest;
  ShowValue();
  if (pulled && Change) Change();
}

void ScrollBar::SetValue(int value) {
  TakeValue(maximum_ < minimum_ ? minimum_ : std::max(value, minimum_));
}

void ScrollBar::wheelEvent(QWheelEvent* event) {
  const QPoint turn = event->angleDelta();
  wheelRest_ += turn.y() != 0 ? turn.y() : turn.x();
  const int notches = wheelRest_ / QWheelEvent::DefaultDeltasPerStep;
  wheelRest_ -= notches * QWheelEvent::DefaultDeltasPerStep;
  setValue(value() - notches * singleStep());
  event->accept();
}

void ScrollBar::TakeValue(int value) {
  const bool changed = value != value_;
  value_ = value;
  ShowValue();
  if (changed && Change) Change();
}

void ScrollBar::ShowValue() {
  const bool before = showing_;
  showing_ = true;
  setRange(minimum_, std::max(minimum_, maximum_));
  setValue(value_);
  showing_ = before;
}

}  // namespace brolk
