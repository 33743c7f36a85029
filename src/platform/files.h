#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/disk.h"

namespace platform {

/// A file that takes another's place as a whole: written beside it under the name path + ".tmp", then flushed
/// and renamed over it. At every instant `path` holds the whole old file or the whole new one. A symbolic
/// link at `path` stays: the file that it names is replaced. The new file takes over the old one's
/// permissions where the system allows it, and is locked Exclusive from the start.
class Replacement {
 public:
  /// A file that replaces none grants what the one at `model` does, or what is usual for new files.
  explicit Replacement(std::string path, const std::string& model = {});
  /// Removes the unpublished file; a failure there leaves it behind, and the next Replacement overwrites it.
  ~Replacement();
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  File& file() { return file_; }
  /// Flushes, converts the new file's lock to `lock` when given, renames it over `path` and flushes the
  /// folder. Returns the open new file. An error leaves the old file as it was unless renamed() is true: then
  /// the new file is in place, and only whether a power cut would undo that is uncertain.
  File publish(std::optional<LockMode> lock = std::nullopt);
  bool renamed() const { return renamed_; }

 private:
  std::string path_;
  std::string temporary_;
  File file_;
  bool renamed_ = false;
};

/// Copies a file whole, keeping its date; a file at `to` is replaced in one step and survives any error. A
/// copy under a new name can be run if the source can. Error 53 no source, 70 either file is open elsewhere,
/// 75 access, 76 path, 61 disk full, 57 I/O.
void copyFile(const std::string& from, const std::string& to);
/// True if there is a file (not a folder) at `path`.
bool fileExists(const std::string& path);
/// Whole file, or error 53, 75, 76, 57.
std::string readWholeFile(const std::string& path);
/// Overwrites or makes the file with these bytes and flushes it.
void writeWholeFile(const std::string& path, std::string_view content);
/// Adds these bytes at the end of the file, made if there is none, and flushes it.
void appendToFile(const std::string& path, std::string_view content);
/// True if both hold the same bytes.
bool sameContent(const std::string& a, const std::string& b);

}  // namespace platform
