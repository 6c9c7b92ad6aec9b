// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include "forms/common_dialog.h"
#include "support/program.h"

namespace brolk {
namespace {

// Types a name into the file dialog that is up and accepts it.
void TypeName(const QString& name) {
  auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
  ASSERT_NE(dialog, nullptr);
  auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  ASSERT_NE(edit, nullptr);
  edit->setText(name);
  QTest::keyClick(edit, Qt::Key_Return);
}

TEST(NameFilters, KeepTheGivenTextAndTheirPatterns) {
  EXPECT_EQ(NameFilters("NES Roms (*.nes,*.fds)|*.nes;*.fds|All files (*.*)|*.*"),
            QStringList({"NES Roms (*.nes,*.fds) (*.nes *.fds)", "All files (*.*) (*)"}));
}

TEST(CommonDialogs, AnswerWithPathTitleAndFilterIndex) {
  const std::string path = test::MakeFile("game.nes", "x");
  QWidget window;
  CommonDialog dialog(window, "cdlTest");
  dialog.Filter = "Any|*.*|NES|*.nes";
  dialog.FilterIndex = 2;
  const QString before = QDir::currentPath();
  QTimer::singleShot(0, [&] { TypeName(QString::fromStdString(path)); });
  dialog.ShowOpen();
  EXPECT_EQ(dialog.FileName.toStdString(), path);
  EXPECT_EQ(dialog.FileTitle, "game.nes");
  EXPECT_EQ(dialog.FilterIndex, 2);
  EXPECT_EQ(QDir::currentPath(), before) << "no dialog changes the current folder";
}

TEST(CommonDialogs, LeaveTheNameAsItWasOnCancel) {
  QWidget window;
  CommonDialog dialog(window, "cdlTest");
  dialog.Filter = "Any|*.*";
  QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
  dialog.ShowOpen();
  EXPECT_EQ(dialog.FileName, "");
}

TEST(CommonDialogs, TakeASaveNameAsTyped) {
  QWidget window;
  CommonDialog dialog(window, "cdlTest");
  dialog.Filter = "Bitmap|*.bmp";
  const QString wanted = QString::fromStdString(test::TestFolder()) + "plain";
  QTimer::singleShot(0, [&] { TypeName(wanted); });
  dialog.ShowSave();
  EXPECT_EQ(dialog.FileName, wanted);
}

TEST(CommonDialogs, KeepTheColourOnCancelAndStartBlack) {
  QWidget window;
  CommonDialog dialog(window, "cdlTest");
  QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
  dialog.ShowColor();
  EXPECT_EQ(dialog.Color, 0);
  QTimer::singleShot(0, [] {
    auto* picker = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
    picker->setCurrentColor(QColor(1, 2, 3));
    QTest::keyClick(picker, Qt::Key_Return);
  });
  dialog.ShowColor();
  EXPECT_EQ(dialog.Color, 0x030201);
}

}  // namespace
}  // namespace brolk
