// SPDX-License-Identifier: MIT
#include "forms/screen.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLockFile>
#include <QScreen>
#include <QTime>
#include <QUrl>
#include <memory>

#include "forms/form.h"

namespace brolk {

int ScreenHeightTwips() {
  return QGuiApplication::primaryScreen()->size().height() * kTwipsPerPixel;
}

void ShellOpen(const QString& target) {
  if (ShellOpener) {
    ShellOpener(target);
    return;
  }
  const QFileInfo file(target);
  if (file.exists()) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(file.absoluteFilePath()));
  } else if (target.contains(QLatin1Char(':'))) {
    QDesktopServices::openUrl(QUrl(target));
  }
}

bool PreviousInstance(const QString& lockPath) {
  static std::unique_ptr<QLockFile> lock;
  if (lock != nullptr) return false;
  QDir().mkpath(QFileInfo(lockPath).absolutePath());
  auto candidate = std::make_unique<QLockFile>(lockPath);
  candidate->setStaleLockTime(0);
  const bool taken = candidate->tryLock(0);
  if (!taken && candidate->error() == QLockFile::LockFailedError) return true;
  lock = std::move(candidate);
  return false;
}

float SecondsSinceMidnight() {
  return static_cast<float>(QTime::currentTime().msecsSinceStartOfDay()) / 1000.0F;
}

}  // namespace brolk
