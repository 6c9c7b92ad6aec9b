// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <functional>

#include "runtime/fault.h"

namespace brolk {

// The event loop, and the one place that catches a fault: it shows the fault's text in a plain box and ends
// the process with status 1.
class Application final : public QApplication {
 public:
  // The toolkit gets the program's name as its only argument, so that no switch of its own is read from the
  // command line.
  Application(int& argumentCount, char** arguments);

  bool notify(QObject* receiver, QEvent* event) override;

  // Runs the start-up, then the event loop; the status of the process.
  int Run(const std::function<void()>& startUp);

  // Ends the process with status 0 once the running event is through.
  static void End();
  // End was called.
  [[nodiscard]] static bool Ending();

  // Takes the place of the box and the end of the process, for tests that look at a fault.
  static inline std::function<void(const Fault&)> OnFault;

 private:
  void Report(const Fault& fault);
};

}  // namespace brolk
