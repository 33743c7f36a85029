#include "common/directories.h"

#include "platform/computer.h"
#include "runtime/text.h"

namespace common {
namespace {

std::string chiusa(const std::string& cartella) {
  std::string percorso = TroncaAlNul(cartella);
  if (!percorso.empty()) AggiungiBarra(percorso);
  return percorso;
}

}  // namespace

std::string DirWindows() {
  return chiusa(platform::windowsFolder());
}

std::string DirSystem() {
  return chiusa(platform::systemFolder());
}

std::string NomeComputer() {
  return platform::computerName();
}

std::string TroncaAlNul(std::string_view testo) {
  return std::string(testo.substr(0, testo.find('\0')));
}

void AggiungiBarra(std::string& percorso) {
  const std::string_view senzaSpazi = runtime::trimmed(percorso);
  if (senzaSpazi.ends_with('/') || senzaSpazi.ends_with('\\')) return;
  percorso = std::string(runtime::rightTrimmed(percorso)) + "\\";
}

}  // namespace common
