// The parts of a path that need no system.
#include "platform/paths.h"

#include <random>

namespace platform {

std::string folderOf(std::string_view path) {
  const std::size_t last = path.rfind('\\');
  return std::string(path.substr(0, last == std::string_view::npos ? 0 : last));
}

std::string containingFolder(std::string_view path) {
  const std::size_t last = path.rfind('\\');
  if (last == std::string_view::npos) return ".";
  return last == 0 ? "\\" : std::string(path.substr(0, last));
}

std::string newNameBeside(const std::string& path) {
  constexpr int digits = 16;
  std::random_device random;
  std::string name = path + ".tmp.";
  for (int i = 0; i < digits; ++i) name += "0123456789abcdef"[random() % 16];
  return name;
}

}  // namespace platform
