#include "platform/program.h"

#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "platform/paths.h"
#include "runtime/error.h"

namespace platform {

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
