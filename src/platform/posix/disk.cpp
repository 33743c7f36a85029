// Files and folders by POSIX calls: locks, rights, flushes.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>

#include "platform/disk_system.h"
#include "platform/local_time.h"
#include "platform/paths.h"
#include "platform/posix/calls.h"

namespace platform::system {

namespace {

int descriptor(NativeFile file) {
  return static_cast<int>(file);
}

/// A pipe would block and a folder opens for reading, so both are refused before they are opened.
void refuseUnlessRegular(const std::string& path) {
  struct stat info;
  if (::stat(native(path).c_str(), &info) != 0 || S_ISREG(info.st_mode)) return;
  throw DiskError(S_ISDIR(info.st_mode) ? DiskFault::IsFolder : DiskFault::AccessDenied, path);
}

std::int64_t nanoseconds(const timespec& time) {
  constexpr std::int64_t second = 1'000'000'000,
                         farthest = 9'000'000'000;  // what 64 bits of nanoseconds hold
  return std::clamp<std::int64_t>(time.tv_sec, -farthest, farthest) * second + time.tv_nsec;
}

/// The pair of times that the system's calls take; the time of the last access stays as it is.
std::array<timespec, 2> modifiedTime(std::int64_t unixNanoseconds) {
  constexpr std::int64_t second = 1'000'000'000;
  const std::int64_t part = (unixNanoseconds % second + second) % second;
  return {{{0, UTIME_OMIT}, {static_cast<time_t>((unixNanoseconds - part) / second), part}}};
}

/// A failed renaming: of what isn't there, or to where it can't be.
[[noreturn]] void failNaming(int error, const std::string& from, const std::string& to) {
  struct stat info;
  fail(error, ::lstat(native(from).c_str(), &info) == 0 ? to : from);
}

/// Empties the file only under its lock, and only if no one has meanwhile renamed it to another place.
NativeFile create(const std::string& path) {
  for (;;) {
    Descriptor file(openDescriptor(path, O_RDWR | O_CREAT));
    if (!lock(file.number(), path, LockMode::Exclusive)) throw DiskError(DiskFault::Sharing, path);
    if (!isAt(file.number(), path)) continue;
    resize(file.number(), path, 0);
    return file.release();
  }
}

}  // namespace

NativeFile open(const std::string& path, OpenMode mode) {
  ignoreFileSizeSignal();
  refuseUnlessRegular(path);
  if (mode == OpenMode::Create) return create(path);
  return openDescriptor(path, mode == OpenMode::Read ? O_RDONLY : O_RDWR);
}

void close(NativeFile file) noexcept {
  ::close(descriptor(file));
}

std::size_t read(NativeFile file, const std::string& path, std::uint64_t offset, std::span<std::byte> out) {
  std::size_t done = 0;
  while (done < out.size()) {
    const ssize_t count = uninterrupted([&] {
      return ::pread(descriptor(file), out.data() + done, out.size() - done,
                     static_cast<off_t>(offset + done));
    });
    if (count < 0) fail(errno, path);
    if (count == 0) break;
    done += static_cast<std::size_t>(count);
  }
  return done;
}

void write(NativeFile file, const std::string& path, std::uint64_t offset, std::span<const std::byte> data) {
  std::size_t done = 0;
  while (done < data.size()) {
    const ssize_t count = uninterrupted([&] {
      return ::pwrite(descriptor(file), data.data() + done, data.size() - done,
                      static_cast<off_t>(offset + done));
    });
    if (count < 0) fail(errno, path);
    if (count == 0) throw DiskError(DiskFault::Io, path);
    done += static_cast<std::size_t>(count);
  }
}

std::uint64_t size(NativeFile file, const std::string& path) {
  struct stat info;
  if (::fstat(descriptor(file), &info) != 0) fail(errno, path);
  return static_cast<std::uint64_t>(info.st_size);
}

void resize(NativeFile file, const std::string& path, std::uint64_t size) {
  if (uninterrupted([&] { return ::ftruncate(descriptor(file), static_cast<off_t>(size)); }) != 0)
    fail(errno, path);
}

void flush(NativeFile file, const std::string& path) {
  if (uninterrupted([&] { return ::fsync(descriptor(file)); }) != 0) fail(errno, path);
}

bool lock(NativeFile file, const std::string& path, LockMode mode) {
  const int operation = (mode == LockMode::Shared ? LOCK_SH : LOCK_EX) | LOCK_NB;
  if (uninterrupted([&] { return ::flock(descriptor(file), operation); }) == 0) return true;
  if (errno == EWOULDBLOCK) return false;
  fail(errno, path);
}

bool isAt(NativeFile file, const std::string& path) {
  struct stat open, named;
  if (::fstat(descriptor(file), &open) != 0) fail(errno, path);
  if (::stat(native(path).c_str(), &named) != 0) {
    if (errno == ENOENT || errno == ENOTDIR) return false;
    fail(errno, path);
  }
  return open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

void replace(const std::string& from, const std::string& to) {
  const std::string source = native(from), target = native(to);
  if (::rename(source.c_str(), target.c_str()) != 0) failNaming(errno, from, to);
}

void rename(const std::string& from, const std::string& to) {
  const std::string source = native(from), target = native(to);
  if (::renameat2(AT_FDCWD, source.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0) return;
  if (errno != EINVAL && errno != ENOSYS) failNaming(errno, from, to);
  // File systems of other computers don't know the call. A second name is as exclusive.
  if (::link(source.c_str(), target.c_str()) == 0) {
    if (::unlink(source.c_str()) != 0) fail(errno, from);
    return;
  }
  struct stat info;
  if (errno == EEXIST || ::lstat(target.c_str(), &info) == 0) fail(EEXIST, to);
  if (::rename(source.c_str(), target.c_str()) != 0) failNaming(errno, from, to);
}

void closeForReplacement(NativeFile&) noexcept {}

void openAfterReplacement(NativeFile&, const std::string&, std::optional<LockMode>) {}

void remove(const std::string& path) {
  if (::unlink(native(path).c_str()) != 0) fail(errno, path);
}

void flushFolder(const std::string& folder) {
  Descriptor open(openDescriptor(folder, O_RDONLY | O_DIRECTORY));
  const int result = uninterrupted([&] { return ::fsync(open.number()); });
  // EINVAL: a file system without such a call, which keeps its names by itself.
  if (result != 0 && errno != EINVAL) fail(errno, folder);
}

std::optional<FileInfo> inspect(const std::string& path) {
  struct stat info;
  if (::stat(native(path).c_str(), &info) != 0) {
    if (errno == ENOENT || errno == ENOTDIR) return std::nullopt;
    fail(errno, path);
  }
  FileInfo result;
  result.size = static_cast<std::uint64_t>(info.st_size);
  result.folder = S_ISDIR(info.st_mode);
  result.modifiedUnixNanoseconds = nanoseconds(info.st_mtim);
  result.modified = localDate(result.modifiedUnixNanoseconds).days;
  return result;
}

FileState state(NativeFile file, const std::string& path) {
  struct stat info;
  if (::fstat(descriptor(file), &info) != 0) fail(errno, path);
  return {info.st_dev,
          info.st_ino,
          static_cast<std::uint64_t>(info.st_size),
          nanoseconds(info.st_mtim),
          nanoseconds(info.st_ctim),
          info.st_nlink};
}

void setModified(NativeFile file, const std::string& path, std::int64_t unixNanoseconds) {
  if (::futimens(descriptor(file), modifiedTime(unixNanoseconds).data()) != 0) fail(errno, path);
}

void setModified(const std::string& path, std::int64_t unixNanoseconds) {
  const auto times = modifiedTime(unixNanoseconds);
  if (::utimensat(AT_FDCWD, native(path).c_str(), times.data(), 0) != 0) fail(errno, path);
}

std::string followLinks(const std::string& path) {
  std::filesystem::path at = native(path);
  for (int hops = 0; hops < 40; ++hops) {
    std::error_code noLink;
    const std::filesystem::path target = std::filesystem::read_symlink(at, noLink);
    if (noLink) {
      std::string result = at.string();
      std::replace(result.begin(), result.end(), '/', '\\');
      return result;
    }
    if (target.native().find('\\') != std::string::npos) throw DiskError(DiskFault::PathNotFound, path);
    at = at.parent_path() / target;
  }
  throw DiskError(DiskFault::Io, path);
}

}  // namespace platform::system
