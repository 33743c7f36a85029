// System calls on descriptors, and their errors as disk faults.
#include "platform/posix/calls.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <csignal>
#include <mutex>

#include "platform/paths.h"

namespace platform::system {

std::string native(const std::string& path) {
  if (path.find('\0') != std::string::npos) throw DiskError(DiskFault::PathNotFound, path.c_str());
  return toSystemPath(path);
}

namespace {

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

}  // namespace

void fail(int error, const std::string& path) {
  throw DiskError(faultOf(error, path), path);
}

void ignoreFileSizeSignal() {
  static std::once_flag once;
  std::call_once(once, [] {
    struct sigaction now;
    if (::sigaction(SIGXFSZ, nullptr, &now) == 0 && now.sa_handler == SIG_DFL) ::signal(SIGXFSZ, SIG_IGN);
  });
}

int openDescriptor(const std::string& path, int flags, unsigned rights) {
  const std::string name = native(path);
  const int number =
      uninterrupted([&] { return ::open(name.c_str(), flags | O_CLOEXEC | O_NOCTTY, rights); });
  if (number < 0) fail(errno, path);
  return number;
}

}  // namespace platform::system
