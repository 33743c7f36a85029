#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "runtime/error.h"

/// The one door to the disk. Every call on a file or a folder that matters passes here and is numbered, so
/// that a test can fail the n-th call, end the process at it, or record the calls and replay them. Paths use
/// the backslash and UTF-8; the door maps them to the system's own form.
namespace platform {

/// Bytes at once where a whole file is read.
inline constexpr std::size_t BlockSize = 1 << 20;

enum class DiskFault { NotFound, PathNotFound, AccessDenied, Sharing, NoSpace, Exists, IsFolder, Io, Rights };

/// A failed disk call. number() is the language's: 53 not found, 76 path not found, 75 access denied or
/// folder, 70 sharing, 61 no space, 58 exists, 57 I/O, 75 owner, rights or attributes that can't be kept.
class DiskError : public runtime::Error {
 public:
  DiskError(DiskFault fault, const std::string& path);
  DiskFault fault() const { return fault_; }
  const std::string& path() const { return path_; }

 private:
  DiskFault fault_;
  std::string path_;
};

enum class DiskOperation {
  Open,
  Create,
  Read,
  Write,
  Resize,
  Flush,
  Replace,
  Remove,
  FlushFolder,
  Lock,
  Dates,
  Inspect
};

/// One call, as an observer sees it before it is carried out.
struct DiskCall {
  std::uint64_t number;  // counts from 1 since the process began or the observer was set
  DiskOperation operation;
  std::string path;
  std::string otherPath;            // Replace: the new name
  std::uint64_t offset = 0;         // Read, Write; Resize: the new size
  std::span<const std::byte> data;  // Write
};

/// Sees each call before it happens; throwing a DiskError makes the call fail without being carried out.
class DiskObserver {
 public:
  virtual ~DiskObserver() = default;
  virtual void before(const DiskCall& call) = 0;
};

/// Sets the process-wide observer (nullptr: none) and returns the one before; the numbering starts again
/// at 1.
DiskObserver* observeDisk(DiskObserver* observer);

enum class OpenMode {
  Read,    // existing file, reading
  Update,  // existing file, reading and writing
  Create,  // new or emptied file, reading and writing, locked Exclusive; a file locked by another is Sharing
};
enum class LockMode { Shared, Exclusive };

/// Whom a file that is made anew lets in.
enum class NewFile {
  Usual,      // whom the user's new files let in
  Like,       // of these, nobody whom the model keeps out; it can be run where the model can
  InPlaceOf,  // exactly whom the model does: its owner, group, rights, access list and extended attributes
};

struct FileInfo {
  std::uint64_t size = 0;
  bool folder = false;
  double modified = 0;                       // days since 1899-12-30, local time, whole seconds
  std::int64_t modifiedUnixNanoseconds = 0;  // the same instant as the system keeps it
};

/// What tells whether a file is still as it was: which one it is, its size and when it was changed.
struct FileState {
  std::uint64_t volume = 0, number = 0;
  std::uint64_t size = 0;
  std::int64_t modified = 0;  // Unix nanoseconds
  std::int64_t changed = 0;   // the same of its entry, which nobody can set back; 0 where there is none
  std::uint64_t names = 0;    // more than one: hard links
  bool operator==(const FileState&) const = default;
};

/// An open file. Closing (by destruction) releases its lock; so does the end of the process.
class File {
 public:
  File();
  File(File&&) noexcept;
  File& operator=(File&&) noexcept;
  ~File();

  /// Reads at `offset` up to out.size() bytes; returns how many there were (fewer only at the file's end).
  std::size_t readAt(std::uint64_t offset, std::span<std::byte> out) const;
  /// Writes all of `data` at `offset`; throws if any byte could not be written.
  void writeAt(std::uint64_t offset, std::span<const std::byte> data);
  std::uint64_t size() const;
  void resize(std::uint64_t size);
  /// Returns once the content lies on the medium.
  void flush();
  /// Takes or converts the file's lock without waiting; false if another opener holds it. The lock is the
  /// system's, on the open file: it ends with the process. A lock held before a refused conversion stays
  /// held; if another opener took its place in between, it is lost and a Sharing error says so.
  bool tryLock(LockMode mode);
  /// Sets the modification time, as FileInfo::modifiedUnixNanoseconds gives it.
  void setModified(std::int64_t unixNanoseconds);
  /// True while `path` still names this very file (it may have been replaced meanwhile).
  bool isStillAt(const std::string& path) const;
  FileState state() const;
  explicit operator bool() const { return handle_ != nullptr; }
  const std::string& path() const;
  /// Lets go of the file now.
  void close();

 private:
  friend File openFile(const std::string& path, OpenMode mode);
  friend File createFile(const std::string& path, NewFile kind, const std::string& model);
  friend class Replacement;
  void beforeReplacement();
  void afterReplacement(const std::string& path);
  struct Handle;
  std::unique_ptr<Handle> handle_;
};

/// Opens a regular file; a folder is IsFolder in every mode, a device or a pipe is AccessDenied.
File openFile(const std::string& path, OpenMode mode);
/// Makes a file for reading and writing, locked Exclusive, under a name that must be free: Exists if anything
/// has it, a symbolic link too. InPlaceOf: where the model's rights can't all be had there is no new file and
/// the fault is Rights, with the model's path.
File createFile(const std::string& path, NewFile kind = NewFile::Usual, const std::string& model = {});
/// Gives the file at `from` the name `to` in one step, taking the place of a file that is there.
void replaceFile(const std::string& from, const std::string& to);
/// The same with a name that must be free: Exists. Numbered as Replace.
void renameFile(const std::string& from, const std::string& to);
void removeFile(const std::string& path);
/// Returns once the names in the folder lie on the medium.
void flushFolder(const std::string& folder);
/// Nothing if there is no such file or folder.
std::optional<FileInfo> inspectFile(const std::string& path);
/// Sets the modification time, as FileInfo::modifiedUnixNanoseconds gives it.
void setModified(const std::string& path, std::int64_t unixNanoseconds);
/// The file that `path` names in the end, symbolic links followed; the path itself if it is no link. Numbered
/// as Inspect.
std::string followLinks(const std::string& path);
/// Process that holds a lock on the file, as "nome (numero)", where the system tells; else empty. Not
/// numbered.
std::string lockHolder(const std::string& path);

}  // namespace platform
