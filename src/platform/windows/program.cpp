// The running program: its path, its standard streams, another in its place.
#include "platform/program.h"

#include <windows.h>

#include "platform/command_line.h"
#include "platform/windows/handle.h"
#include "platform/windows/wide.h"
#include "runtime/error.h"

namespace platform {

/// The library keeps its own three descriptors, whatever it was started with. What may be left is a handle of
/// the one who started the program, not handed on: its number would be given to a file.
void holdStandardStreams() {
  for (const DWORD stream : {STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE}) {
    const HANDLE handle = ::GetStdHandle(stream);
    if (handle == nullptr || handle == INVALID_HANDLE_VALUE) continue;
    ::SetLastError(NO_ERROR);
    if (::GetFileType(handle) == FILE_TYPE_UNKNOWN && ::GetLastError() != NO_ERROR)
      ::SetStdHandle(stream, nullptr);
  }
}

bool hasStandardOutput() {
  const HANDLE handle = ::GetStdHandle(STD_OUTPUT_HANDLE);
  return handle != nullptr && handle != INVALID_HANDLE_VALUE;
}

void keepRunningOnWriteSignals() {}

int continueAs(const std::string& path, const std::vector<std::string>& arguments) {
  std::vector<std::string> words = {path + ".exe"};
  words.insert(words.end(), arguments.begin(), arguments.end());
  const std::wstring program = windows::wide(words.front());
  std::wstring line = windows::wide(joinCommandLine(words));
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process;
  if (!::CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                        &process)) {
    const DWORD error = ::GetLastError();
    throw runtime::languageError(error == ERROR_FILE_NOT_FOUND  ? runtime::FileNotFound
                                 : error == ERROR_ACCESS_DENIED ? runtime::PathFileAccess
                                                                : runtime::InvalidCall);
  }
  const windows::Handle child(process.hProcess), thread(process.hThread);
  DWORD status = 1;
  ::WaitForSingleObject(child.get(), INFINITE);
  ::GetExitCodeProcess(child.get(), &status);
  return static_cast<int>(status);
}

}  // namespace platform
