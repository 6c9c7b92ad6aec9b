// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "editor/windows/editor_control.h"
#include "forms/windows.h"
#include "shell/windows/options.h"

namespace brolk::test {

// Saves all tiles of the Editor in a child process, without the warning. With a file open the save never
// comes back, so the child is ended after a while; what it wrote is in the file.
inline void SaveAllInAChild() {
  The<Options>().fbnSaveWarning.SetChecked(false);
  const pid_t child = fork();
  if (child == 0) {
    alarm(3);
    The<EditorControl>().fbnSaveEdit_Click();
    _exit(0);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM) << status;
}

}  // namespace brolk::test
