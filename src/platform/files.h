#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/disk.h"

namespace platform {

/// A file that takes another's place as a whole: written beside it under a new name of its own, then flushed
/// and renamed over it. At every instant `path` holds the whole old file or the whole new one. A symbolic
/// link at `path` stays: the file that it names is replaced. The new file has the owner, group, rights,
/// access list and extended attributes of the old one, or is refused before a byte is written (75). It is
/// locked Exclusive from the start.
class Replacement {
 public:
  enum class Name {
    NewOrTaken,
    New,  // taken exclusively by publish(): error 58 if anything has it, a symbolic link too
  };
  /// A file that replaces none lets in whom the one at `model` does, or who is usual for new files.
  explicit Replacement(std::string path, const std::string& model = {}, Name name = Name::NewOrTaken);
  /// Removes the unpublished file; a failure there leaves it behind, where it is in nobody's way.
  ~Replacement();
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  File& file() { return file_; }
  /// Flushes, converts the new file's lock to `lock` when given, renames it over `path` and flushes the
  /// folder. Where there was no file at `path`, one that has come meanwhile stays: error 58. Returns the open
  /// new file. An error leaves the old file as it was unless renamed() is true: then the new file is in
  /// place, and only whether a power cut would undo that is uncertain.
  File publish(std::optional<LockMode> lock = std::nullopt);
  bool renamed() const { return renamed_; }

 private:
  std::string path_;
  bool replaces_;
  std::string temporary_;
  File file_;
  bool renamed_ = false;
};

/// Copies a file whole, keeping its date; a file at `to` is replaced in one step and survives any error. A
/// copy under a new name can be run if the source can, and keeps out whom the source keeps out. Error 53 no
/// source, 70 either file is open elsewhere or the source was changed meanwhile, 75 access, 76 path, 61 disk
/// full, 57 I/O, 58 a file that came meanwhile.
void copyFile(const std::string& from, const std::string& to);
/// The same under a name that must be free, also when all is copied: error 58.
void copyToNewFile(const std::string& from, const std::string& to);
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
