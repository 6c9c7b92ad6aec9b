// SPDX-License-Identifier: MIT
#include "forms/common_dialog.h"

#include <QColorDialog>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStringList>

#include "forms/form.h"
#include "forms/look.h"

namespace brolk {

QStringList NameFilters(const QString& filter) {
  QStringList result;
  const QStringList pieces = filter.split(QLatin1Char('|'));
  for (qsizetype at = 0; at + 1 < pieces.size(); at += 2) {
    QStringList patterns = pieces[at + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (QString& pattern : patterns) {
      if (pattern == QLatin1String("*.*")) pattern = QStringLiteral("*");
    }
    result << pieces[at] + QStringLiteral(" (") + patterns.join(QLatin1Char(' ')) + QLatin1Char(')');
  }
  return result;
}

CommonDialog::CommonDialog(QWidget& owner, const char* name) : QObject(&owner), owner_(owner) {
  setObjectName(QString::fromUtf8(name));
}

void CommonDialog::ShowFile(Kind kind) {
  if (Answer) {
    Answer(*this, kind);
    return;
  }
  QFileDialog dialog(owner_.window());
  dialog.setObjectName(objectName());
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.setAcceptMode(kind == Kind::Open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
  dialog.setFileMode(kind == Kind::Open && MustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  const QStringList filters = NameFilters(Filter);
  dialog.setNameFilters(filters);
  if (FilterIndex >= 1 && FilterIndex <= filters.size()) dialog.selectNameFilter(filters[FilterIndex - 1]);
  if (!InitDir.trimmed().isEmpty() && QFileInfo(InitDir).isDir()) dialog.setDirectory(InitDir);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
  FileName = QDir::toNativeSeparators(dialog.selectedFiles().constFirst());
  FileTitle = QFileInfo(FileName).fileName();
  const auto* types = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
  if (types != nullptr && types->currentIndex() >= 0) FilterIndex = types->currentIndex() + 1;
}

void CommonDialog::ShowColor() {
  if (Answer) {
    Answer(*this, Kind::Color);
    return;
  }
  QColorDialog dialog(owner_.window());
  dialog.setObjectName(objectName());
  dialog.setOption(QColorDialog::DontUseNativeDialog);
  dialog.setCurrentColor(ScreenColor(Color));
  if (dialog.exec() == QDialog::Accepted) Color = ColorValueOf(dialog.selectedColor());
}

}  // namespace brolk
