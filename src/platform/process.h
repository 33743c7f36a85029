#pragma once

#include <cstdint>
#include <string>

namespace platform {

/// A child process. It runs on when this object goes.
class Process {
 public:
  /// Starts the program that the command line names with the arguments behind it, without a shell: the line
  /// is taken apart by the rules of platform/command_line.h. `windowStyle`: how the child's first window is
  /// shown, where the system has that. Error 53 if the program isn't found, 75 or 5 if it can't be started.
  explicit Process(const std::string& commandLine, int windowStyle = 1);
  ~Process();
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  /// False once the process has ended, in whatever way.
  bool running();

 private:
  std::intptr_t process_ = 0;  // the system's number or handle; 0 once it has ended
};

}  // namespace platform
