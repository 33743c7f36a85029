// Paths in the long form, links, and the user's folders.
#include "platform/paths.h"

#include <windows.h>

#include "platform/computer.h"
#include "platform/windows/handle.h"
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

std::string realPath(const std::string& path) {
  const std::string whole = fromSystemPath(path);
  const windows::Handle file(::CreateFileW(windows::native(whole).c_str(), 0,
                                           FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                           OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  std::string found = file ? windows::finalPath(file.get()) : "";
  if (found.ends_with('\\')) found.pop_back();  // a drive's root, which a name follows
  const std::string folder = folderOf(whole);
  if (!found.empty() || folder.empty()) return found.empty() ? whole : found;
  return realPath(folder) + whole.substr(folder.size());
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
