#include <gtest/gtest.h>

#include "bytes.h"
#include "crypto/EncUtils.h"
#include "runtime/text.h"
#include "support/case_file.h"
#include "support/errors.h"

namespace crypto {
namespace {

/// Blocks that are enciphered one by one under the first 32 bytes of a password, by the cipher itself.
std::string enciphered(runtime::Bytes blocks, runtime::Bytes password) {
  password.resize(32);
  EncUtils utils;
  EncUtils::gentables();
  utils.gkey(8, 8, password);
  std::string digits;
  for (auto at = blocks.begin(); at < blocks.end(); at += 32) {
    runtime::Bytes block(at, at + 32);
    utils.encrypt(block);
    digits += toHex(block);
  }
  return digits;
}

TEST(AesText, IsTheLengthTheLowEightBitsAndZerosInBlocks) {
  EncUtils utils;
  const struct {
    std::string text, password;
    std::string message, key;  // hexadecimal digits
    std::size_t blocks;
  } cases[] = {
      {"", "", "00000000", "", 1},
      {"testo", "parola", "05000000746573746f", "7061726f6c61", 1},
      {std::string(28, '0'), "p", "1c000000" + toHex(runtime::Bytes(28, std::byte{'0'})), "70", 1},
      {std::string(29, '0'), "p", "1d000000" + toHex(runtime::Bytes(29, std::byte{'0'})), "70", 2},
      {std::string(300, '0'), std::string(40, 'p'), "2c010000" + toHex(runtime::Bytes(300, std::byte{'0'})),
       toHex(runtime::Bytes(32, std::byte{'p'})), 10},
      {"è€Š", "€", "03000000e8ac60", "ac", 1},
  };
  for (const auto& test : cases) {
    runtime::Bytes blocks = fromHex(test.message);
    blocks.resize(32 * test.blocks);
    EXPECT_EQ(utils.AESEncyptString(test.text, test.password), enciphered(blocks, fromHex(test.key)))
        << test.text;
  }
}

TEST(AesText, ComesBackThroughTheCodePageOrIsEmpty) {
  EncUtils utils;
  support::CaseFile(CASES "/aes.cases").expectResults([&](const support::Case& each) {
    const auto fields = support::fieldsOf(each.statement);
    std::string digits = utils.AESEncyptString(fields.at(0), fields.at(1));
    if (each.one("cut") != "") digits.resize(std::stoul(each.one("cut")));
    digits = each.one("before") + digits.substr(std::stoul(each.one("from", "0"))) + each.one("behind");
    const auto back = [&] { return utils.AESDecyptString(digits, each.one("key", fields[1].c_str())); };
    const std::string text = support::shown(back);
    digits = runtime::upperCase(digits);
    EXPECT_EQ(support::shown(back), text);
    return text;
  });
  EXPECT_EQ(utils.AESDecyptString("", "x"), "");
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
    const char* length;
    int bytes;
  } cases[] = {{"1c000000", 28}, {"1d000000", -1}, {"00000000", 0},
               {"00010000", -1}, {"01000080", -1}, {"ffffffff", -1}};
  for (const auto& test : cases) {
    runtime::Bytes block = fromHex(test.length);
    block.resize(32, std::byte{7});
    const ByteArray message = EncUtils().AESDecrypt(fromHex(enciphered(block, {})), runtime::Bytes());
    EXPECT_EQ(message ? static_cast<int>(message->size()) : -1, test.bytes) << test.length;
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
