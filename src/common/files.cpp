#include "common/files.h"

#include "platform/disk.h"
#include "platform/paths.h"

namespace common {

bool EsisteFile(const std::string& percorso) {
  try {
    platform::openFile(percorso, platform::OpenMode::Read);
    return true;
  } catch (const runtime::Error&) {
    return false;
  }
}

std::string PercorsoInterno(const std::string& percorso) {
  return percorso.find('/') == std::string::npos ? percorso : platform::fromSystemPath(percorso);
}

}  // namespace common
