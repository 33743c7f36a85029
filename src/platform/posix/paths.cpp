// Paths between backslashes and slashes, links, and the user's folders.
#include "platform/paths.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

namespace platform {

std::string executablePath() {
  static const std::string path = [] {
    std::error_code failure;
    return fromSystemPath(std::filesystem::read_symlink("/proc/self/exe", failure).string());
  }();
  return path;
}

namespace {

/// Asked for before main, while the program still has the name it was started under.
[[maybe_unused]] const std::string atStart = executablePath();

std::string homeFolder() {
  if (const char* home = std::getenv("HOME"); home && *home) return home;
  const passwd* user = ::getpwuid(::getuid());
  return user && user->pw_dir ? user->pw_dir : "/";
}

/// The folder that the variable names, else the one below the user's home.
std::string userFolder(const char* variable, const char* belowHome) {
  const char* folder = std::getenv(variable);
  if (folder && *folder == '/') return fromSystemPath(folder);
  return fromSystemPath(homeFolder() + belowHome);
}

}  // namespace

namespace {

/// What ".." leads to behind `path`, as the system finds it.
std::filesystem::path folderAbove(const std::filesystem::path& path) {
  std::error_code failure;
  if (!std::filesystem::is_directory(path, failure)) return path / "..";
  if (!std::filesystem::is_symlink(path, failure)) return path.parent_path();
  const auto folder = std::filesystem::canonical(path, failure);
  return failure ? path / ".." : folder.parent_path();
}

}  // namespace

std::string toSystemPath(std::string_view path) {
  std::string result(path);
  std::replace(result.begin(), result.end(), '\\', '/');
  return result;
}

std::string fromSystemPath(std::string_view path) {
  std::filesystem::path found;
  for (const auto& part : std::filesystem::absolute(path.empty() ? "." : path)) {
    if (part == "..")
      found = folderAbove(found);
    else if (!part.empty() && part != ".")
      found /= part;
  }
  std::string result = found.string();
  std::replace(result.begin(), result.end(), '/', '\\');
  return result;
}

std::string realPath(const std::string& path) {
  std::error_code failure;
  const auto found = std::filesystem::weakly_canonical(toSystemPath(path), failure);
  return failure ? path : fromSystemPath(found.string());
}

std::string userSettingsFolder() {
  return userFolder("XDG_CONFIG_HOME", "/.config");
}

std::string userStateFolder() {
  return userFolder("XDG_STATE_HOME", "/.local/state");
}

std::string executableFolder() {
  return folderOf(executablePath());
}

std::string executableName() {
  return std::filesystem::path(toSystemPath(executablePath())).stem().string();
}

}  // namespace platform
