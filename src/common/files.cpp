// Whether a file can be read now, by the lock that a reader would need.
#include "common/files.h"

#include "platform/disk.h"
#include "platform/paths.h"

namespace common {

bool EsisteFile(const std::string& percorso) {
  try {
    return platform::openFile(percorso, platform::OpenMode::Read).tryLock(platform::LockMode::Shared);
  } catch (const runtime::Error&) {
    return false;
  }
}

bool FileOccupato(const std::string& percorso) {
  try {
    return !platform::openFile(percorso, platform::OpenMode::Read).tryLock(platform::LockMode::Shared);
  } catch (const platform::DiskError& error) {
    return error.fault() == platform::DiskFault::Sharing;
  }
}

std::string PercorsoInterno(const std::string& percorso) {
  return percorso.find('/') == std::string::npos ? percorso : platform::fromSystemPath(percorso);
}

}  // namespace common
