// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <QListWidget>
#include <functional>

namespace brolk {

// Yellow text on purple, as text boxes and lists have it.
void ApplyBoxColors(QWidget& control);

// A drop-down list. Assigning the position raises Click, also when it is the position that stood there; a
// choice by the user does too.
class ComboList final : public QComboBox {
 public:
  enum class Kind { List, FreeText };

  ComboList(QWidget& parent, const char* name, const QString& toolTip = QString(), Kind kind = Kind::List);

  void AddItem(const QString& text) { addItem(text); }
  void AddItems(const QStringList& texts);
  void Clear();
  // The position from 0, -1 for none.
  [[nodiscard]] int ListIndex() const { return currentIndex(); }
  void SetListIndex(int index);
  [[nodiscard]] QString Text() const { return currentText(); }
  void SetText(const QString& text) { setEditText(text); }

  std::function<void()> Click;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

// A list of lines. Click is any change of the current line by the user and any press on a line; where there
// is no line nothing is raised.
class ListBox final : public QListWidget {
 public:
  ListBox(QWidget& parent, const char* name, const QString& toolTip = QString());

  void AddItem(const QString& text) { addItem(text); }
  // Takes all lines away; no line is selected afterwards and nothing is raised.
  void Clear() { clear(); }
  [[nodiscard]] int ListIndex() const { return currentRow(); }
  // Selects a line without raising a click.
  void SetListIndex(int index) { setCurrentRow(index); }
  [[nodiscard]] int ListCount() const { return count(); }
  [[nodiscard]] QString List(int index) const { return item(index)->text(); }

  std::function<void()> Click;
  std::function<void()> DblClick;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  // The keyboard's arrival selects no line.
  void focusInEvent(QFocusEvent* event) override;
  // A line that was chosen stays chosen until another one is: Ctrl does not take it back.
  [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                                     const QEvent* event) const override;

 private:
  void RaiseClick();
};

}  // namespace brolk
