#pragma once

#include <unistd.h>

#include <cerrno>
#include <string>
#include <utility>

#include "platform/disk_system.h"

/// How the door to the disk calls a POSIX system.
namespace platform::system {

/// A path as the system's calls take it. A NUL inside would end it early and name another file: PathNotFound.
std::string native(const std::string& path);

/// Repeats a system call as long as signals interrupt it.
template <class Call>
auto uninterrupted(Call call) {
  for (;;) {
    const auto result = call();
    if (result >= 0 || errno != EINTR) return result;
  }
}

/// Throws the DiskError that the system's number stands for.
[[noreturn]] void fail(int error, const std::string& path);

/// Without this a write beyond the process's file size limit would kill it; ignored, it is an error like any
/// other.
void ignoreFileSizeSignal();

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

/// `rights` are those of a file that this makes, less what the user's mask takes away.
int openDescriptor(const std::string& path, int flags, unsigned rights = 0666);

}  // namespace platform::system
