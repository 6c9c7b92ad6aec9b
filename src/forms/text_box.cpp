// SPDX-License-Identifier: MIT
#include "forms/text_box.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include "forms/lists.h"

namespace brolk {

TextBox::TextBox(QWidget& parent, const char* name, const QString& text, const QString& toolTip)
    : QLineEdit(&parent) {
  setObjectName(QString::fromUtf8(name));
  setText(text);
  setToolTip(toolTip);
  setAccessibleName(toolTip.isEmpty() ? objectName() : toolTip);
  ApplyBoxColors(*this);
  connect(this, &QLineEdit::textChanged, this, [this] {
    if (Change) Change();
  });
}

void TextBox::Refresh() {
  if (isVisible()) repaint();
}

void TextBox::mouseDoubleClickEvent(QMouseEvent* event) {
  QLineEdit::mouseDoubleClickEvent(event);
  if (DblClick && event->button() == Qt::LeftButton) DblClick();
}

void TextBox::keyPressEvent(QKeyEvent* event) {
  const QString typed = event->text();
  if (AcceptsCharacter && typed.size() == 1 && typed[0].isPrint() && !AcceptsCharacter(typed[0])) {
    event->accept();
    return;
  }
  QLineEdit::keyPressEvent(event);
}

}  // namespace brolk
