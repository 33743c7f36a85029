// Texts and blocks through the 32-byte-block cipher, in hexadecimal digits.
#include <algorithm>

#include "crypto/EncUtils.h"
#include "crypto/hexadecimal.h"
#include "crypto/shifts.h"
#include "platform/code_page.h"
#include "runtime/error.h"
#include "runtime/letters.h"
#include "runtime/text.h"

namespace crypto {

namespace {

constexpr std::int32_t columns = 8;
constexpr std::size_t blockLength = 32, lengthField = 4;

runtime::Bytes keyOf(runtime::Bytes password) {
  password.resize(blockLength);
  return password;
}

runtime::Bytes lowEightBits(std::string_view text) {
  runtime::Bytes bytes;
  for (const char32_t character : runtime::characters(text))
    bytes.push_back(std::byte{static_cast<unsigned char>(character)});
  return bytes;
}

const Rijndael& keyed(const std::optional<Rijndael>& cipher) {
  if (!cipher) throw languageError(runtime::InvalidCall);
  return *cipher;
}

}  // namespace

void EncUtils::gkey(std::int32_t nb, std::int32_t nk, std::span<const std::byte> chiave) {
  cipher_.emplace(nb, nk, chiave);
}

void EncUtils::encrypt(std::span<std::byte> blocco) const {
  keyed(cipher_).encrypt(blocco);
}

void EncUtils::decrypt(std::span<std::byte> blocco) const {
  keyed(cipher_).decrypt(blocco);
}

ByteArray EncUtils::AESEncrypt(const ByteArray& messaggio, const ByteArray& password) {
  if (!messaggio || !password) return std::nullopt;
  gentables();
  gkey(columns, columns, keyOf(*password));
  const std::size_t used = messaggio->size() + lengthField;
  runtime::Bytes bytes((used + blockLength - 1) / blockLength * blockLength);
  auto length = static_cast<std::uint32_t>(messaggio->size());
  for (std::size_t i = 0; i < lengthField; ++i, length = shiftRight(length, 8))
    bytes[i] = std::byte{static_cast<std::uint8_t>(length)};
  std::copy(messaggio->begin(), messaggio->end(), bytes.begin() + lengthField);
  for (std::size_t at = 0; at < bytes.size(); at += blockLength)
    encrypt(std::span(bytes).subspan(at, blockLength));
  return bytes;
}

ByteArray EncUtils::AESDecrypt(const ByteArray& cifrato, const ByteArray& password) {
  if (!cifrato || !password || cifrato->empty() || cifrato->size() % blockLength != 0) return std::nullopt;
  gentables();
  gkey(columns, columns, keyOf(*password));
  runtime::Bytes bytes = *cifrato;
  for (std::size_t at = 0; at < bytes.size(); at += blockLength)
    decrypt(std::span(bytes).subspan(at, blockLength));
  std::uint32_t length = 0;
  for (std::size_t i = lengthField; i-- > 0;)
    length = shiftLeft(length, 8) | std::to_integer<std::uint8_t>(bytes[i]);
  if (length > bytes.size() - lengthField) return std::nullopt;
  return runtime::Bytes(bytes.begin() + lengthField, bytes.begin() + lengthField + length);
}

std::vector<std::string> EncUtils::StringToPairArray(std::string_view esadecimale) {
  const std::u32string digits = runtime::characters(esadecimale);
  std::vector<std::string> pairs;
  for (std::size_t at = 0; at + 2 <= digits.size(); at += 2)
    pairs.push_back("&h" + runtime::toUtf8(std::u32string_view(digits).substr(at, 2)));
  return pairs;
}

std::string EncUtils::AESEncyptString(std::string_view testo, std::string_view password) {
  return runtime::lowerCase(hexadecimal(AESEncrypt(lowEightBits(testo), lowEightBits(password)).value()));
}

std::string EncUtils::AESDecyptString(std::string_view esadecimale, std::string_view password) {
  runtime::Bytes bytes;
  for (const std::string& pair : StringToPairArray(esadecimale))
    bytes.push_back(std::byte{runtime::Variant(pair).toByte()});
  const ByteArray message = AESDecrypt(bytes, lowEightBits(password));
  if (!message) return {};
  return platform::fromCodePage1252({reinterpret_cast<const char*>(message->data()), message->size()});
}

}  // namespace crypto
