// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTest>
#include <string>

#include "support/program.h"

// The program as the desktop starts it: the built file, in processes of its own.
namespace brolk::test {
namespace {

constexpr int kStartMs = 60000;

class RunningProgram {
 public:
  explicit RunningProgram(const QString& settings, const QStringList& arguments = {}) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("BROLKPLUS_SETTINGS"), settings);
    process_.setProcessEnvironment(environment);
    process_.start(QStringLiteral(BROLK_PROGRAM), arguments);
  }
  ~RunningProgram() {
    process_.kill();
    process_.waitForFinished();
  }

  QProcess& process() { return process_; }
  bool EndsByItself() {
    return process_.waitForFinished(kStartMs) && process_.exitStatus() == QProcess::NormalExit;
  }

 private:
  QProcess process_;
};

class Processes : public ::testing::Test {
 protected:
  QString Settings() { return folder.filePath(QStringLiteral("settings")); }
  QByteArray Stored() {
    QFile file(Settings());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  void Store(const QByteArray& content) {
    // In one go, since the running program may read at any time.
    QSaveFile file(Settings());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    ASSERT_TRUE(file.commit());
  }
  // The last value of a first run is in the file.
  bool HasStarted() {
    return QTest::qWaitFor([this] { return Stored().contains("\nBenchmark=No\n"); }, kStartMs);
  }
  QTemporaryDir folder;
};

TEST_F(Processes, ASecondStartEndsAtOnceAndLeavesTheFirstAlone) {
  RunningProgram first(Settings());
  ASSERT_TRUE(HasStarted());
  // Every start writes the notice, so its line tells whether one has run.
  QByteArray withoutNotice = Stored();
  withoutNotice.replace("Copyright=Copyright (c) 2026 The Brolk Plus developers\n", "");
  Store(withoutNotice);
  RunningProgram second(Settings());
  ASSERT_TRUE(second.EndsByItself());
  EXPECT_EQ(second.process().exitCode(), 0);
  EXPECT_EQ(second.process().readAllStandardOutput(), "");
  EXPECT_EQ(Stored().toStdString(), withoutNotice.toStdString());
  EXPECT_EQ(first.process().state(), QProcess::Running);
}

TEST_F(Processes, TheLockOfADeadProcessDoesNotKeepTheProgramFromStarting) {
  {
    RunningProgram first(Settings());
    ASSERT_TRUE(HasStarted());
  }
  EXPECT_TRUE(QFile::exists(Settings() + QStringLiteral(".lock"))) << "left by a process that was killed";
  QFile(Settings()).remove();
  RunningProgram next(Settings());
  EXPECT_TRUE(HasStarted());
}

TEST_F(Processes, MovedSettingsHaveTheirOwnLock) {
  RunningProgram first(Settings());
  ASSERT_TRUE(HasStarted());
  RunningProgram other(folder.filePath(QStringLiteral("elsewhere/settings")));
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return QFile::exists(folder.filePath(QStringLiteral("elsewhere/settings"))); }, kStartMs));
  EXPECT_EQ(other.process().state(), QProcess::Running);
}

// Not even the toolkit's own switches are read.
TEST_F(Processes, TheCommandLineIsNotRead) {
  RunningProgram program(Settings(),
                         {QStringLiteral("--help"), QStringLiteral("-platform"), QStringLiteral("none"),
                          QStringLiteral("-style"), QStringLiteral("nothing"), QStringLiteral("some.gb")});
  EXPECT_TRUE(HasStarted());
  EXPECT_EQ(program.process().state(), QProcess::Running);
}

}  // namespace
}  // namespace brolk::test
