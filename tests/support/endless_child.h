// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <functional>
#include <string>

namespace brolk::test {

// For commands that never come back: a second process runs the same test, and the first one watches what it
// does to a file and kills it. In the second process Running() is true; it does the command and fails if it
// comes back. It ends by itself after a minute, should the first process be gone.
class EndlessChild {
 public:
  [[nodiscard]] static bool Running();
  // In the second process: the path that the first one gave it.
  [[nodiscard]] static std::string Path();

  // In the first process: starts the running test once more.
  explicit EndlessChild(const std::string& path);
  ~EndlessChild();

  // Waits until the condition holds; false when it does not within half a minute or the process has ended.
  [[nodiscard]] bool Until(const std::function<bool()>& condition);
  [[nodiscard]] bool StillRuns() const;

 private:
  QProcess process_;
};

}  // namespace brolk::test
