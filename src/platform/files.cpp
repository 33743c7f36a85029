// Whole files read, compared, written, renamed and removed.
#include "platform/files.h"

#include <vector>

namespace platform {

namespace {

std::span<const std::byte> bytesOf(std::string_view text) {
  return std::as_bytes(std::span(text));
}

}  // namespace

bool fileExists(const std::string& path) {
  const std::optional<FileInfo> info = inspectFile(path);
  return info && !info->folder;
}

std::string readWholeFile(const std::string& path) {
  const File file = openFile(path, OpenMode::Read);
  std::string content(file.size(), '\0');
  content.resize(file.readAt(0, std::as_writable_bytes(std::span(content))));
  return content;
}

void writeWholeFile(const std::string& path, std::string_view content) {
  File file = openFile(path, OpenMode::Create);
  file.writeAt(0, bytesOf(content));
  file.flush();
}

void appendToFile(const std::string& path, std::string_view content) {
  File file = openFile(path, inspectFile(path) ? OpenMode::Update : OpenMode::Create);
  file.writeAt(file.size(), bytesOf(content));
  file.flush();
}

bool sameContent(const std::string& a, const std::string& b) {
  const File first = openFile(a, OpenMode::Read), second = openFile(b, OpenMode::Read);
  std::vector<std::byte> left(BlockSize), right(BlockSize);
  for (std::uint64_t offset = 0;; offset += BlockSize) {
    const std::size_t count = first.readAt(offset, left);
    if (second.readAt(offset, right) != count) return false;
    if (!std::equal(left.begin(), left.begin() + static_cast<std::ptrdiff_t>(count), right.begin()))
      return false;
    if (count < BlockSize) return true;
  }
}

}  // namespace platform
