#include <gtest/gtest.h>

#include <algorithm>

#include "bytes.h"
#include "crypto/EncUtils.h"
#include "runtime/text.h"
#include "support/errors.h"

namespace crypto {
namespace {

plain::Bytes ascii(std::string_view text) {
  return {text.begin(), text.end()};
}

/// A message of ASCII letters as it should be enciphered, by the definition.
std::string enciphered(const plain::Bytes& message, plain::Bytes password) {
  password.resize(32);
  plain::Bytes all((4 + message.size() + 31) / 32 * 32);
  all[0] = static_cast<std::uint8_t>(message.size());
  all[1] = static_cast<std::uint8_t>(message.size() / 256);
  std::copy(message.begin(), message.end(), all.begin() + 4);
  std::string digits;
  for (auto at = all.begin(); at != all.end(); at += 32)
    digits += toHex(plain::encrypted({at, at + 32}, password));
  return digits;
}

TEST(AesText, IsTheLengthTheLowEightBitsAndZerosInBlocks) {
  EncUtils utils;
  const struct {
    std::string text, password;
    plain::Bytes message, key;
    std::size_t digits;
  } cases[] = {
      {"", "", {}, {}, 64},
      {"testo", "parola", ascii("testo"), ascii("parola"), 64},
      {std::string(28, 'x'), "p", plain::Bytes(28, 'x'), ascii("p"), 64},
      {std::string(29, 'x'), "p", plain::Bytes(29, 'x'), ascii("p"), 128},
      {std::string(300, 'x'), std::string(40, 'p'), plain::Bytes(300, 'x'), plain::Bytes(32, 'p'), 640},
      {"è€Š", "€", {0xE8, 0xAC, 0x60}, {0xAC}, 64},
  };
  for (const auto& test : cases) {
    const std::string digits = utils.AESEncyptString(test.text, test.password);
    EXPECT_EQ(digits, enciphered(test.message, test.key)) << test.text;
    EXPECT_EQ(digits.size(), test.digits) << test.text;
  }
  const std::string blocks = utils.AESEncyptString(std::string(92, 'x'), "p");
  EXPECT_EQ(blocks.substr(64, 64), blocks.substr(128)) << "blocks stand alone";
}

TEST(AesText, ComesBackThroughTheCodePage) {
  EncUtils utils;
  const struct {
    std::string text, back;
  } cases[] = {{"", ""},       {"Forlì, perché", "Forlì, perché"},
               {"€", "¬"},     {"\u0080\u0092", "€’"},
               {"ÿ_x", "ÿ_x"}, {std::string(1000, 'q'), std::string(1000, 'q')},
               {"Š", "`"}};
  for (const auto& test : cases) {
    const std::string digits = utils.AESEncyptString(test.text, "chiave");
    EXPECT_EQ(utils.AESDecyptString(digits, "chiave"), test.back);
    EXPECT_EQ(utils.AESDecyptString(runtime::upperCase(digits), "chiave"), test.back);
  }
  EXPECT_EQ(
      utils.AESDecyptString(utils.AESEncyptString("x", std::string(32, 'p') + "1"), std::string(32, 'p')),
      "x");
  EXPECT_EQ(utils.AESDecyptString(utils.AESEncyptString("x", "€"), "¬"), "x");
}

TEST(AesText, IsEmptyWhereNothingCanBeDeciphered) {
  EncUtils utils;
  const std::string digits = utils.AESEncyptString("testo", "giusta");
  const struct {
    std::string digits, password, expected;
  } cases[] = {
      {digits, "sbagliata", ""},
      {digits.substr(0, 62), "giusta", ""},
      {digits + "00", "giusta", ""},
      {"", "giusta", ""},
      {digits + "f", "giusta", "testo"},
      {"zz" + digits.substr(2), "giusta", "error 13"},
      {"è0" + digits.substr(2), "giusta", "error 13"},
  };
  for (const auto& test : cases)
    EXPECT_EQ(support::shown([&] { return utils.AESDecyptString(test.digits, test.password); }),
              test.expected);
  EXPECT_EQ(EncUtils::StringToPairArray("1fÀ05"), (std::vector<std::string>{"&h1f", "&hÀ0"}));
}

TEST(AesArrays, GiveNothingForNothing) {
  EncUtils utils;
  const ByteArray none, empty = runtime::Bytes(), block = runtime::Bytes(32);
  EXPECT_FALSE(utils.AESEncrypt(none, block));
  EXPECT_FALSE(utils.AESEncrypt(block, none));
  EXPECT_FALSE(utils.AESDecrypt(none, block));
  EXPECT_FALSE(utils.AESDecrypt(block, none));
  EXPECT_FALSE(utils.AESDecrypt(empty, block));
  EXPECT_EQ(utils.AESDecrypt(utils.AESEncrypt(empty, empty), empty), empty);
}

TEST(AesArrays, BelieveTheLengthWithinOnlyIfItFits) {
  const struct {
    plain::Bytes length;
    int bytes;
  } cases[] = {{{28, 0, 0, 0}, 28}, {{29, 0, 0, 0}, -1},   {{0, 0, 0, 0}, 0},
               {{0, 1, 0, 0}, -1},  {{1, 0, 0, 0x80}, -1}, {{255, 255, 255, 255}, -1}};
  for (const auto& test : cases) {
    plain::Bytes block(32, 7);
    std::copy(test.length.begin(), test.length.end(), block.begin());
    const ByteArray message =
        EncUtils().AESDecrypt(bytes(plain::encrypted(block, plain::Bytes(32))), runtime::Bytes());
    EXPECT_EQ(message ? static_cast<int>(message->size()) : -1, test.bytes) << toHex(test.length);
    for (const std::byte byte : message.value_or(runtime::Bytes())) EXPECT_EQ(byte, std::byte{7});
  }
}

TEST(KepDc, DeciphersInTwoStages) {
  EncUtils utils;
  const std::string inner = utils.AESEncyptString("Provider=SQLOLEDB;Data Source=norvo", "4pezzoèk7");
  const auto outer = [&](const std::string& text) { return utils.AESEncyptString(text, "ÿchiave629"); };
  const struct {
    std::string text, key, expected;
  } cases[] = {
      {inner + "_pezzoè", "chiave", "Provider=SQLOLEDB;Data Source=norvo"},
      {inner + "_pezzoè_altro", "chiave", "Provider=SQLOLEDB;Data Source=norvo"},
      {inner + "_altro", "chiave", ""},
      {inner + "_", "chiave", "error 9"},
      {inner, "chiave", "error 9"},
      {inner + "_pezzoè", "altra", "error 9"},
  };
  for (const auto& test : cases)
    EXPECT_EQ(support::shown([&] { return utils.KepDc(outer(test.text), test.key); }), test.expected);
  EXPECT_EQ(EncUtils::KepChiaveEsterna("chiave"), "ÿchiave629");
  EXPECT_EQ(EncUtils::KepChiaveInterna("pezzoè"), "4pezzoèk7");
}

}  // namespace
}  // namespace crypto
