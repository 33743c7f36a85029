// The suite's two-stage deciphering, and the keys of both stages.
#include "common/text.h"
#include "crypto/EncUtils.h"
#include "runtime/error.h"

namespace crypto {

namespace {

const std::string& item(const std::vector<std::string>& items, std::size_t index) {
  if (index >= items.size())
    throw runtime::Error(runtime::SubscriptOutOfRange, "EncUtils", "Il testo in chiaro non ha le due parti");
  return items[index];
}

}  // namespace

std::string EncUtils::KepChiaveEsterna(std::string_view chiave) {
  return "ÿ" + std::string(chiave) + "6" + "29";
}

std::string EncUtils::KepChiaveInterna(std::string_view pezzo) {
  return "4" + std::string(pezzo) + "k7";
}

std::string EncUtils::KepDc(std::string_view cifrato, std::string_view chiave) {
  const std::vector<std::string> parts =
      common::Dividi(AESDecyptString(cifrato, KepChiaveEsterna(chiave)), "_", -1, common::ConfrontoEsatto);
  return AESDecyptString(item(parts, 0), KepChiaveInterna(item(parts, 1)));
}

}  // namespace crypto
