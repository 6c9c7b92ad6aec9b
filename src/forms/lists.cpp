// SPDX-License-Identifier: MIT
#include "forms/lists.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>

#include "forms/look.h"

namespace brolk {
namespace {

constexpr int kMostLinesDropped = 20;

}  // namespace

void ApplyBoxColors(QWidget& control) {
  QPalette colors = control.palette();
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    colors.setColor(group, QPalette::Base, ScreenColor(kBoxColor));
    colors.setColor(group, QPalette::Button, ScreenColor(kBoxColor));
    colors.setColor(group, QPalette::Text, ScreenColor(kBoxTextColor));
    colors.setColor(group, QPalette::ButtonText, ScreenColor(kBoxTextColor));
    colors.setColor(group, QPalette::Highlight, ScreenColor(kBoxTextColor));
    colors.setColor(group, QPalette::HighlightedText, ScreenColor(kBoxColor));
  }
  control.setPalette(colors);
}

ComboList::ComboList(QWidget& parent, const char* name, const QString& toolTip, Kind kind)
    : QComboBox(&parent) {
  setObjectName(QString::fromUtf8(name));
  setToolTip(toolTip);
  setAccessibleName(toolTip.isEmpty() ? objectName() : toolTip);
  setEditable(kind == Kind::FreeText);
  setInsertPolicy(QComboBox::NoInsert);
  setMaxVisibleItems(kMostLinesDropped);
  ApplyBoxColors(*this);
  ApplyBoxColors(*view());
  connect(this, &QComboBox::activated, this, [this] {
    if (Click) Click();
  });
}

void ComboList::AddItems(const QStringList& texts) {
  for (const QString& text : texts) AddItem(text);
}

void ComboList::Clear() {
  clear();
  setCurrentIndex(-1);
}

void ComboList::SetListIndex(int index) {
  setCurrentIndex(index);
  if (Click) Click();
}

void ComboList::keyPressEvent(QKeyEvent* event) {
  // A letter with Ctrl is a command of the window, not the start of a line to look for.
  const bool letter = event->key() >= Qt::Key_A && event->key() <= Qt::Key_Z;
  if (letter && !isEditable() && event->modifiers() == Qt::ControlModifier) {
    event->ignore();
    return;
  }
  QComboBox::keyPressEvent(event);
}

ListBox::ListBox(QWidget& parent, const char* name, const QString& toolTip) : QListWidget(&parent) {
  setObjectName(QString::fromUtf8(name));
  setToolTip(toolTip);
  setAccessibleName(toolTip.isEmpty() ? objectName() : toolTip);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  ApplyBoxColors(*this);
}

void ListBox::RaiseClick() {
  if (Click) Click();
}

void ListBox::mousePressEvent(QMouseEvent* event) {
  QListWidget::mousePressEvent(event);
  if (itemAt(event->position().toPoint()) != nullptr) RaiseClick();
}

void ListBox::mouseMoveEvent(QMouseEvent* event) {
  const int before = currentRow();
  QListWidget::mouseMoveEvent(event);
  if (currentRow() != before && currentRow() >= 0) RaiseClick();
}

void ListBox::mouseDoubleClickEvent(QMouseEvent* event) {
  if (itemAt(event->position().toPoint()) != nullptr && event->button() == Qt::LeftButton && DblClick)
    DblClick();
}

void ListBox::keyPressEvent(QKeyEvent* event) {
  const int before = currentRow();
  QListWidget::keyPressEvent(event);
  if (currentRow() != before && currentRow() >= 0) RaiseClick();
}

void ListBox::focusInEvent(QFocusEvent* event) {
  const int before = currentRow();
  QListWidget::focusInEvent(event);
  if (currentRow() != before) setCurrentRow(before);
}

QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex& index,
                                                              const QEvent* event) const {
  const auto flags = QListWidget::selectionCommand(index, event);
  const bool takesBack =
      flags.testFlag(QItemSelectionModel::Deselect) || flags.testFlag(QItemSelectionModel::Toggle);
  return takesBack ? QItemSelectionModel::ClearAndSelect : flags;
}

}  // namespace brolk
