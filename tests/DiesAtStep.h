// Lets the process die while it changes the disk, as a power cut would have it.
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>

#include "system/SystemCalls.h"

namespace kladez {

// Runs the action in a process of its own that dies at its `step`th change of the disk; false when
// it came to its end before.
inline bool DiesAtStep(int step, const std::function<void()>& action) {
  const pid_t child = ::fork();
  if (child == 0) {
    int calls = 0;
    syscalls::SetFaultHook([&](auto, auto&) {
      if (++calls == step) ::_exit(9);
      return 0;
    });
    try {
      action();
    } catch (...) {
      ::_exit(1);
    }
    ::_exit(0);
  }
  int status = 0;
  EXPECT_EQ(::waitpid(child, &status, 0), child);
  const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  EXPECT_TRUE(code == 0 || code == 9) << "step " << step << " ended with " << code;
  return code == 9;
}

}  // namespace kladez
