// The running program: its path, its standard streams, another in its place.
#include "platform/program.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>

#include "platform/paths.h"
#include "runtime/error.h"

namespace platform {

void holdStandardStreams() {
  // Opened for the other direction, so that the stream's use is an error and no silent success.
  constexpr struct {
    int stream, direction;
  } streams[] = {{STDIN_FILENO, O_WRONLY}, {STDOUT_FILENO, O_RDONLY}, {STDERR_FILENO, O_RDONLY}};
  for (const auto& [stream, direction] : streams) {
    if (::fcntl(stream, F_GETFD) >= 0) continue;
    if (::open("/dev/null", direction) != stream) std::_Exit(EXIT_FAILURE);  // the lowest that is free
  }
}

bool hasStandardOutput() {
  const int flags = ::fcntl(STDOUT_FILENO, F_GETFL);
  return flags >= 0 && (flags & O_ACCMODE) != O_RDONLY;
}

void keepRunningOnWriteSignals() {
  std::signal(SIGXFSZ, SIG_IGN);
  std::signal(SIGPIPE, SIG_IGN);
}

int continueAs(const std::string& path, const std::vector<std::string>& arguments) {
  const std::string program = toSystemPath(path);
  std::vector<char*> list = {const_cast<char*>(program.c_str())};
  for (const std::string& argument : arguments) list.push_back(const_cast<char*>(argument.c_str()));
  list.push_back(nullptr);
  ::execv(program.c_str(), list.data());
  const int failure = errno;
  throw runtime::languageError(failure == ENOENT   ? runtime::FileNotFound
                               : failure == EACCES ? runtime::PathFileAccess
                                                   : runtime::InvalidCall);
}

}  // namespace platform
