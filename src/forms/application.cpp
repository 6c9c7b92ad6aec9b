// SPDX-License-Identifier: MIT
#include "forms/application.h"

#include <QMessageBox>
#include <cstdio>
#include <cstdlib>

#include "forms/look.h"

namespace brolk {
namespace {

bool ending = false;

}  // namespace

Application::Application(int& argumentCount, char** arguments) : QApplication(argumentCount, arguments) {
  setApplicationName(QStringLiteral("brolkplus"));
  setApplicationDisplayName(QString());
  setDesktopFileName(QStringLiteral("org.example.brolkplus"));
  setQuitOnLastWindowClosed(false);
  ApplyLook(*this);
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const Fault& fault) {
    Report(fault);
    return true;
  }
}

int Application::Run(const std::function<void()>& startUp) {
  try {
    startUp();
  } catch (const Fault& fault) {
    Report(fault);
  }
  return ending ? 0 : exec();
}

void Application::End() {
  ending = true;
  QCoreApplication::exit(0);
}

bool Application::Ending() {
  return ending;
}

void Application::Report(const Fault& fault) {
  if (OnFault) {
    OnFault(fault);
    return;
  }
  std::fprintf(stderr, "Brolk Plus: %s\n", fault.what());
  QMessageBox box(QMessageBox::Critical, QStringLiteral("Brolk Plus"), QString::fromUtf8(fault.what()),
                  QMessageBox::Ok);
  box.exec();
  std::_Exit(1);
}

}  // namespace brolk
