#include "platform/paths.h"

#include <windows.h>

#include "platform/computer.h"
#include "platform/windows/wide.h"

namespace platform {

std::string executablePath() {
  static const std::string path = [] {
    std::wstring name(32768, L'\0');
    name.resize(::GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
    return windows::narrow(name);
  }();
  return path;
}

namespace {

/// Asked for before main, while the program still has the name it was started under.
[[maybe_unused]] const std::string atStart = executablePath();

}  // namespace

std::string toSystemPath(std::string_view path) {
  return std::string(path);
}

std::string fromSystemPath(std::string_view path) {
  const std::wstring given = windows::wide(path.empty() ? "." : path);
  std::wstring full(::GetFullPathNameW(given.c_str(), 0, nullptr, nullptr), L'\0');
  full.resize(::GetFullPathNameW(given.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  if (full.size() > 3 && full.back() == L'\\') full.pop_back();
  return windows::narrow(full);
}

std::string userSettingsFolder() {
  return environmentVariable("APPDATA");
}

std::string userStateFolder() {
  return environmentVariable("LOCALAPPDATA");
}

std::string executableFolder() {
  return folderOf(executablePath());
}

std::string executableName() {
  const std::string name = executablePath().substr(executablePath().rfind('\\') + 1);
  return name.substr(0, name.rfind('.'));
}

}  // namespace platform
