// Registry values by their type, as texts and numbers.
#include "common/registry.h"

#include <cstddef>
#include <span>

#include "runtime/error.h"
#include "runtime/text.h"

namespace common {
namespace {

/// The text without as many characters at its end.
runtime::Variant senzaChiusura(const std::string& dati, std::int64_t caratteri) {
  const auto lunghezza = static_cast<std::int64_t>(runtime::length(dati));
  return runtime::left(dati, std::max<std::int64_t>(lunghezza - caratteri, 0));
}

runtime::Bytes bytesDi(const std::string& dati) {
  const auto bytes = std::as_bytes(std::span(dati));
  return {bytes.begin(), bytes.end()};
}

std::int32_t numeroDi(const std::string& dati) {
  std::uint32_t numero = 0;
  for (std::size_t byte = 0; byte < std::min<std::size_t>(dati.size(), 4); ++byte)
    numero |= static_cast<std::uint32_t>(static_cast<unsigned char>(dati[byte])) << (8 * byte);
  return static_cast<std::int32_t>(numero);
}

}  // namespace

runtime::Variant LeggiRegistro(platform::RegistryRoot radice, const std::string& chiave,
                               const std::string& nomeValore, const runtime::Variant& predefinito) {
  const auto valore = platform::readRegistry(radice, chiave, nomeValore);
  if (!valore) return predefinito;
  switch (valore->type) {
    case platform::RegistryText:
    case platform::RegistryExpandText:
      return senzaChiusura(valore->data, 1);
    case platform::RegistryBinary:
      return bytesDi(valore->data);
    case platform::RegistryDWord:
      return numeroDi(valore->data);
    case platform::RegistryMultiText:
      return senzaChiusura(valore->data, 2);
    default:
      throw runtime::Error(1001, "LeggiRegistro", "Unsupported value type");
  }
}

std::string LeggiAppPath(const std::string& nomeExe) {
  const std::string chiave = "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\" + nomeExe;
  return LeggiRegistro(platform::RegistryRoot::LocalMachine, chiave, "").toText();
}

}  // namespace common
