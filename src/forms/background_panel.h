// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "forms/look.h"

namespace brolk {

// A panel of a window with a background picture of its own.
class BackgroundPanel final : public QWidget {
 public:
  BackgroundPanel(QWidget& parent, const char* name, const QString& picture)
      : QWidget(&parent), picture_(picture) {
    setObjectName(QString::fromUtf8(name));
  }

 protected:
  void paintEvent(QPaintEvent*) override { PaintBackground(*this, picture_); }

 private:
  QString picture_;
};

}  // namespace brolk
