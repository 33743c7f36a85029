// Child processes by CreateProcess.
#include "platform/process.h"

#include <windows.h>

#include "platform/command_line.h"
#include "platform/windows/wide.h"
#include "runtime/error.h"
#include "runtime/text.h"

namespace platform {

namespace {

[[noreturn]] void refuse(DWORD error) {
  throw runtime::languageError(error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND
                                   ? runtime::FileNotFound
                               : error == ERROR_ACCESS_DENIED ? runtime::PathFileAccess
                                                              : runtime::InvalidCall);
}

/// Where the system finds the program that a command line begins with. The system would give a file of
/// commands to its shell, so that is refused.
std::wstring programOf(const std::string& commandLine) {
  const std::vector<std::string> words = splitCommandLine(commandLine);
  if (words.empty() || commandLine.find('\0') != std::string::npos) refuse(ERROR_FILE_NOT_FOUND);
  std::wstring found(32768, L'\0');
  const DWORD length = ::SearchPathW(nullptr, windows::wide(words.front()).c_str(), L".exe",
                                     static_cast<DWORD>(found.size()), found.data(), nullptr);
  if (length == 0 || length >= found.size()) refuse(::GetLastError());
  found.resize(length);
  const std::string ending = runtime::lowerCase(runtime::right(windows::narrow(found), 4));
  if (ending == ".bat" || ending == ".cmd") refuse(ERROR_BAD_FORMAT);
  return found;
}

}  // namespace

Process::Process(const std::string& commandLine, int windowStyle) {
  const std::wstring program = programOf(commandLine);
  std::wstring line = windows::wide(commandLine);
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESHOWWINDOW;
  start.wShowWindow = static_cast<WORD>(windowStyle);
  PROCESS_INFORMATION process;
  if (!::CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &process))
    refuse(::GetLastError());
  ::CloseHandle(process.hThread);
  process_ = reinterpret_cast<std::intptr_t>(process.hProcess);
}

Process::~Process() {
  ::CloseHandle(reinterpret_cast<HANDLE>(process_));
}

bool Process::running() {
  return ::WaitForSingleObject(reinterpret_cast<HANDLE>(process_), 0) == WAIT_TIMEOUT;
}

}  // namespace platform
