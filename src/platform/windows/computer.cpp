// Names and folders of the computer from the system.
#include "platform/computer.h"

#include <windows.h>

#include "platform/windows/wide.h"

namespace platform {

namespace {

/// What a call that fills a buffer and returns its length tells; empty if it fails or finds no room.
std::string folder(UINT(WINAPI* call)(wchar_t*, UINT)) {
  constexpr UINT room = 255;
  wchar_t buffer[room];
  const UINT length = call(buffer, room);
  return length < room ? windows::narrow({buffer, length}) : "";
}

}  // namespace

std::string windowsFolder() {
  return folder(::GetWindowsDirectoryW);
}

std::string systemFolder() {
  return folder(::GetSystemDirectoryW);
}

std::string computerName() {
  wchar_t buffer[MAX_COMPUTERNAME_LENGTH + 1];
  DWORD length = MAX_COMPUTERNAME_LENGTH + 1;
  return ::GetComputerNameW(buffer, &length) ? windows::narrow({buffer, length}) : "";
}

std::string environmentVariable(const std::string& name) {
  const std::wstring key = windows::wide(name);
  std::wstring value(::GetEnvironmentVariableW(key.c_str(), nullptr, 0), L'\0');
  value.resize(::GetEnvironmentVariableW(key.c_str(), value.data(), static_cast<DWORD>(value.size())));
  return windows::narrow(value);
}

void useComputerFile(const std::string&) {}

}  // namespace platform
