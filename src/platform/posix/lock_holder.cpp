// Who holds a lock, from /proc.
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <fstream>
#include <sstream>

#include "platform/disk.h"
#include "platform/paths.h"

namespace platform {

namespace {

/// One line of the system's table: "1: FLOCK  ADVISORY  WRITE 6618 fe:00:10952893 0 EOF".
struct Lock {
  long process = 0;
  unsigned major = 0, minor = 0;
  unsigned long long inode = 0;
};

bool parse(const std::string& line, Lock& lock) {
  std::istringstream fields(line);
  std::string number, kind, manner, access, file;
  if (!(fields >> number >> kind >> manner >> access >> lock.process >> file) || kind == "->") return false;
  std::istringstream place(file);
  char colon = 0;
  return static_cast<bool>(place >> std::hex >> lock.major >> colon >> lock.minor >> colon >> std::dec >>
                           lock.inode);
}

std::string describe(long process) {
  std::ifstream name("/proc/" + std::to_string(process) + "/comm");
  std::string text;
  if (!std::getline(name, text)) return "";
  return text + " (" + std::to_string(process) + ")";
}

}  // namespace

std::string lockHolder(const std::string& path) {
  struct stat info;
  if (::stat(toSystemPath(path).c_str(), &info) != 0) return "";
  std::ifstream locks("/proc/locks");
  std::string own;
  for (std::string line; std::getline(locks, line);) {
    Lock lock;
    if (!parse(line, lock) || lock.inode != info.st_ino || lock.major != major(info.st_dev) ||
        lock.minor != minor(info.st_dev) || lock.process <= 0)
      continue;
    const std::string holder = describe(lock.process);
    if (lock.process != ::getpid() && !holder.empty()) return holder;
    own = holder;
  }
  return own;
}

}  // namespace platform
