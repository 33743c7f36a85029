#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <mutex>

#include "platform/disk_system.h"
#include "platform/local_time.h"
#include "platform/paths.h"

namespace platform::system {

namespace {

/// A path as the system's calls take it. A NUL inside would end it early and name another file.
std::string native(const std::string& path) {
  if (path.find('\0') != std::string::npos) throw DiskError(DiskFault::PathNotFound, path.c_str());
  return toSystemPath(path);
}

/// Repeats a system call as long as signals interrupt it.
template <class Call>
auto uninterrupted(Call call) {
  for (;;) {
    const auto result = call();
    if (result >= 0 || errno != EINTR) return result;
  }
}

DiskFault faultOf(int error, const std::string& path) {
  switch (error) {
    case ENOENT: {
      struct stat folder;
      const bool there =
          ::stat(native(containingFolder(path)).c_str(), &folder) == 0 && S_ISDIR(folder.st_mode);
      return there ? DiskFault::NotFound : DiskFault::PathNotFound;
    }
    case ENOTDIR:
      return DiskFault::PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
      return DiskFault::AccessDenied;
    case EISDIR:
      return DiskFault::IsFolder;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return DiskFault::NoSpace;
    case EEXIST:
      return DiskFault::Exists;
    case ETXTBSY:
    case EBUSY:
    case EAGAIN:
      return DiskFault::Sharing;
    default:
      return DiskFault::Io;
  }
}

[[noreturn]] void fail(int error, const std::string& path) {
  throw DiskError(faultOf(error, path), path);
}

int descriptor(NativeFile file) {
  return static_cast<int>(file);
}

/// Without this a write beyond the process's file size limit would kill it; ignored, it is an error like any
/// other.
void ignoreFileSizeSignal() {
  static std::once_flag once;
  std::call_once(once, [] {
    struct sigaction now;
    if (::sigaction(SIGXFSZ, nullptr, &now) == 0 && now.sa_handler == SIG_DFL) ::signal(SIGXFSZ, SIG_IGN);
  });
}

/// An open descriptor until it is released to its owner.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int number() const { return number_; }
  NativeFile release() { return std::exchange(number_, -1); }

 private:
  int number_;
};

int openDescriptor(const std::string& path, int flags) {
  const std::string name = native(path);
  const int number = uninterrupted([&] { return ::open(name.c_str(), flags | O_CLOEXEC | O_NOCTTY, 0666); });
  if (number < 0) fail(errno, path);
  return number;
}

/// A pipe would block and a folder opens for reading, so both are refused before they are opened.
void refuseUnlessRegular(const std::string& path) {
  struct stat info;
  if (::stat(native(path).c_str(), &info) != 0 || S_ISREG(info.st_mode)) return;
  throw DiskError(S_ISDIR(info.st_mode) ? DiskFault::IsFolder : DiskFault::AccessDenied, path);
}

/// The pair of times that the system's calls take; the time of the last access stays as it is.
std::array<timespec, 2> modifiedTime(std::int64_t unixNanoseconds) {
  constexpr std::int64_t second = 1'000'000'000;
  const std::int64_t part = (unixNanoseconds % second + second) % second;
  return {{{0, UTIME_OMIT}, {static_cast<time_t>((unixNanoseconds - part) / second), part}}};
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

void takePermissions(NativeFile file, const std::string& model) noexcept {
  struct stat old, fresh;
  if (::stat(toSystemPath(model).c_str(), &old) != 0 || ::fstat(descriptor(file), &fresh) != 0) return;
  mode_t permissions = old.st_mode & 0777;
  // Only members may hand a file to a group; what the old group was granted must not go to another.
  if (old.st_gid != fresh.st_gid && ::fchown(descriptor(file), static_cast<uid_t>(-1), old.st_gid) != 0)
    permissions &= ~static_cast<mode_t>(S_IRWXG);
  ::fchmod(descriptor(file), permissions);
}

void grantLike(NativeFile file, const std::string& model) noexcept {
  struct stat old, fresh;
  if (::stat(toSystemPath(model).c_str(), &old) != 0 || ::fstat(descriptor(file), &fresh) != 0) return;
  const mode_t readers = fresh.st_mode & 0444;
  const mode_t permissions = (fresh.st_mode & old.st_mode & 0777) | (readers >> 2 & old.st_mode);
  ::fchmod(descriptor(file), permissions | S_IRUSR | S_IWUSR);
}

void replace(const std::string& from, const std::string& to) {
  const std::string source = native(from), target = native(to);
  if (::rename(source.c_str(), target.c_str()) == 0) return;
  const int error = errno;
  struct stat info;
  fail(error, ::stat(source.c_str(), &info) == 0 ? to : from);
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
  constexpr std::int64_t second = 1'000'000'000,
                         farthest = 9'000'000'000;  // what 64 bits of nanoseconds hold
  const std::int64_t seconds = std::clamp<std::int64_t>(info.st_mtim.tv_sec, -farthest, farthest);
  FileInfo result;
  result.size = static_cast<std::uint64_t>(info.st_size);
  result.folder = S_ISDIR(info.st_mode);
  result.modifiedUnixNanoseconds = seconds * second + info.st_mtim.tv_nsec;
  result.modified = localDate(result.modifiedUnixNanoseconds).days;
  return result;
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
    at = at.parent_path() / target;
  }
  throw DiskError(DiskFault::Io, path);
}

std::uint64_t freeSpace(const std::string& folder) {
  struct statvfs info;
  if (uninterrupted([&] { return ::statvfs(native(folder).c_str(), &info); }) != 0) fail(errno, folder);
  return static_cast<std::uint64_t>(info.f_bavail) * info.f_frsize;
}

}  // namespace platform::system
