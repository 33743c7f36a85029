#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <exception>
#include <utility>

namespace support {

/// A copy of this process that runs `work` and ends with what it returns (99: it threw); killed at the end of
/// its scope if it is still running.
class Child {
 public:
  template <class Work>
  explicit Child(Work work) : process_(::fork()) {
    if (process_ != 0) return;
    int status = 99;
    try {
      status = work();
    } catch (const std::exception& error) {
      std::fprintf(stderr, "child: %s\n", error.what());
    }
    ::_exit(status);
  }
  ~Child() {
    kill();
    wait();
  }
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  pid_t process() const { return process_; }
  void kill() {
    if (running_) ::kill(process_, SIGKILL);
  }
  /// Exit status, or minus the number of the signal that ended it.
  int wait() {
    if (std::exchange(running_, false)) {
      int status = 0;
      ::waitpid(process_, &status, 0);
      result_ = WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
    }
    return result_;
  }

 private:
  pid_t process_;
  bool running_ = true;
  int result_ = 0;
};

/// Runs `work` in a child to its end: exit status, or minus a signal's number.
template <class Work>
int runInChild(Work work) {
  return Child(work).wait();
}

}  // namespace support
