// Child processes by fork and exec.
#include "platform/process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <utility>
#include <vector>

#include "platform/command_line.h"
#include "platform/paths.h"
#include "platform/posix/computer_file.h"
#include "runtime/error.h"

namespace platform {

namespace {

/// The words with the administrator's command in the place of the program, if there is one for its name.
std::vector<std::string> withConfiguredProgram(std::vector<std::string> words) {
  const std::string& program = words.front();
  const auto command = computerFile().value("Comandi", program.substr(program.rfind('\\') + 1));
  if (!command) return words;
  std::vector<std::string> result = splitCommandLine(*command);
  result.insert(result.end(), std::make_move_iterator(words.begin() + 1),
                std::make_move_iterator(words.end()));
  return result;
}

std::vector<std::string> wordsOf(const std::string& commandLine) {
  std::vector<std::string> words = splitCommandLine(commandLine);
  if (!words.empty()) words = withConfiguredProgram(std::move(words));
  if (words.empty() || words.front().empty() || commandLine.find('\0') != std::string::npos)
    throw runtime::languageError(runtime::FileNotFound);
  for (std::string& word : words) word = toSystemPath(word);
  return words;
}

/// What the child has of this process: no input, no output, the signals as a program expects them.
class Inheritance {
 public:
  Inheritance() {
    ::posix_spawn_file_actions_init(&files);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
      ::posix_spawn_file_actions_addopen(&files, stream, "/dev/null", O_RDWR, 0);
    sigset_t ignored;
    ::sigemptyset(&ignored);
    for (const int signal : {SIGXFSZ, SIGPIPE}) ::sigaddset(&ignored, signal);
    ::posix_spawnattr_init(&attributes);
    ::posix_spawnattr_setsigdefault(&attributes, &ignored);
    ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
  }
  ~Inheritance() {
    ::posix_spawnattr_destroy(&attributes);
    ::posix_spawn_file_actions_destroy(&files);
  }
  Inheritance(const Inheritance&) = delete;
  Inheritance& operator=(const Inheritance&) = delete;

  posix_spawn_file_actions_t files;
  posix_spawnattr_t attributes;
};

}  // namespace

Process::Process(const std::string& commandLine, int) {
  std::vector<std::string> words = wordsOf(commandLine);
  std::vector<char*> list;
  for (std::string& word : words) list.push_back(word.data());
  list.push_back(nullptr);
  const Inheritance inheritance;
  pid_t process = 0;
  const int failure =
      ::posix_spawnp(&process, list[0], &inheritance.files, &inheritance.attributes, list.data(), environ);
  if (failure != 0)
    throw runtime::languageError(failure == ENOENT || failure == ENOTDIR ? runtime::FileNotFound
                                 : failure == EACCES                     ? runtime::PathFileAccess
                                                                         : runtime::InvalidCall);
  process_ = process;
}

Process::~Process() = default;

bool Process::running() {
  if (process_ == 0) return false;
  int status = 0;
  if (::waitpid(static_cast<pid_t>(process_), &status, WNOHANG) == 0) return true;
  process_ = 0;
  return false;
}

}  // namespace platform
