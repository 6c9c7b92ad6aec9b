// SPDX-License-Identifier: MIT
#include "forms/menu.h"

#include <QWidget>

namespace brolk {

MenuItem::MenuItem(QObject& parent, const char* name, const QString& caption) : QAction(&parent) {
  setObjectName(QString::fromUtf8(name));
  setMenuRole(QAction::NoRole);
  SetCaption(caption);
  connect(this, &QAction::triggered, this, [this] {
    // The toolkit has turned the mark over; the program decides about it.
    if (isCheckable()) setChecked(marked_);
    if (Click) Click();
  });
}

void MenuItem::SetCaption(const QString& caption) {
  caption_ = caption;
  QString shown = caption;
  setText(shown.replace(QLatin1Char('&'), QLatin1String("&&")));
}

void MenuItem::SetChecked(bool marked) {
  marked_ = marked;
  setCheckable(true);
  setChecked(marked);
}

void PopupMenu(QMenu& menu, const QWidget& at, QPoint position) {
  menu.exec(at.mapToGlobal(position));
}

}  // namespace brolk
