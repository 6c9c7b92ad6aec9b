// SPDX-License-Identifier: MIT
#include "support/endless_child.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>
#include <chrono>
#include <cstdlib>
#include <thread>

namespace brolk::test {
namespace {

const char* const kPathVariable = "BROLK_ENDLESS_CHILD";
constexpr int kPatienceMs = 30000;

std::string RunningTest() {
  const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
  return std::string(test->test_suite_name()) + "." + test->name();
}

}  // namespace

bool EndlessChild::Running() {
  static const bool running = [] {
    if (std::getenv(kPathVariable) == nullptr) return false;
    std::thread([] {
      std::this_thread::sleep_for(std::chrono::minutes(1));
      std::_Exit(3);
    }).detach();
    return true;
  }();
  return running;
}

std::string EndlessChild::Path() {
  return std::getenv(kPathVariable);
}

EndlessChild::EndlessChild(const std::string& path) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QString::fromLatin1(kPathVariable), QString::fromStdString(path));
  // CTest's sharding or output settings are for the first process alone.
  environment.remove(QStringLiteral("GTEST_OUTPUT"));
  process_.setProcessEnvironment(environment);
  process_.setProcessChannelMode(QProcess::ForwardedChannels);
  process_.start(QCoreApplication::applicationFilePath(),
                 {QStringLiteral("--gtest_filter=") + QString::fromStdString(RunningTest())});
  EXPECT_TRUE(process_.waitForStarted());
}

EndlessChild::~EndlessChild() {
  process_.kill();
  process_.waitForFinished();
}

bool EndlessChild::Until(const std::function<bool()>& condition) {
  QElapsedTimer watch;
  watch.start();
  while (watch.elapsed() < kPatienceMs && !process_.waitForFinished(0)) {
    if (condition()) return true;
    QThread::msleep(5);
  }
  return false;
}

bool EndlessChild::StillRuns() const {
  return process_.state() == QProcess::Running;
}

}  // namespace brolk::test
