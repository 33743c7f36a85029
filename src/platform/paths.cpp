#include "platform/paths.h"

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

}  // namespace platform
