// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <functional>

#include "runtime/surface.h"

class QWidget;

namespace brolk {

// The file and colour dialogs. Set the members, show, read the members: a cancel leaves them as they were. No
// dialog changes the current folder of the process, and a typed name is taken as typed.
class CommonDialog final : public QObject {
 public:
  enum class Kind { Open, Save, Color };

  CommonDialog(QWidget& owner, const char* name);

  // "name|pattern;pattern|name|pattern ..."
  QString Filter;
  // The full path, native separators; empty for none.
  QString FileName;
  // The name without folder.
  QString FileTitle;
  // The chosen pair of the filter, from 1.
  int FilterIndex = 1;
  QString InitDir;
  // The file must exist.
  bool MustExist = false;
  ColorValue Color = 0;

  void ShowOpen() { ShowFile(Kind::Open); }
  void ShowSave() { ShowFile(Kind::Save); }
  void ShowColor();

  // Answers in place of the user, for tests in which the dialog itself is not what is tested: set the members
  // and return.
  static inline std::function<void(CommonDialog&, Kind)> Answer;

 private:
  void ShowFile(Kind kind);

  QWidget& owner_;
};

// The filter as the toolkit's name filters, one for each pair, in order.
[[nodiscard]] QStringList NameFilters(const QString& filter);

}  // namespace brolk
