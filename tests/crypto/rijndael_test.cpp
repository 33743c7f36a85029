#include <gtest/gtest.h>

#include <random>

#include "bytes.h"
#include "crypto/EncUtils.h"
#include "support/case_file.h"
#include "support/errors.h"

namespace crypto {
namespace {

constexpr std::int32_t sizes[] = {4, 5, 6, 7, 8};

EncUtils keyed(std::size_t blockLength, const plain::Bytes& key) {
  EncUtils utils;
  EncUtils::gentables();
  utils.gkey(static_cast<std::int32_t>(blockLength / 4), static_cast<std::int32_t>(key.size() / 4),
             bytes(key));
  return utils;
}

TEST(Rijndael, GivesThePublishedCiphertexts) {
  support::CaseFile(CASES "/rijndael.cases").expectResults([](const support::Case& each) {
    const auto between = each.statement.find(' ');
    const std::string key = each.statement.substr(0, between), block = each.statement.substr(between + 1);
    const EncUtils utils = keyed(block.size() / 2, fromHex(key));
    runtime::Bytes bytes = crypto::bytes(fromHex(block));
    utils.encrypt(bytes);
    const std::string enciphered = toHex(numbers(bytes));
    utils.decrypt(bytes);
    EXPECT_EQ(toHex(numbers(bytes)), block);
    return enciphered;
  });
}

TEST(Rijndael, AgreesWithItsDefinitionOnRandomKeysAndBlocks) {
  std::mt19937 random(19980612);
  const auto randomBytes = [&](std::int32_t columns) {
    plain::Bytes drawn(static_cast<std::size_t>(4 * columns));
    for (std::uint8_t& byte : drawn) byte = static_cast<std::uint8_t>(random());
    return drawn;
  };
  const auto compare = [&](std::int32_t blockColumns, std::int32_t keyColumns) {
    const plain::Bytes block = randomBytes(blockColumns), key = randomBytes(keyColumns);
    const EncUtils utils = keyed(block.size(), key);
    runtime::Bytes ours = bytes(block);
    utils.encrypt(ours);
    EXPECT_EQ(toHex(numbers(ours)), toHex(plain::encrypted(block, key))) << toHex(block) << " " << toHex(key);
    ours = bytes(block);
    utils.decrypt(ours);
    EXPECT_EQ(toHex(numbers(ours)), toHex(plain::decrypted(block, key))) << toHex(block) << " " << toHex(key);
  };
  for (const std::int32_t blockColumns : sizes)
    for (const std::int32_t keyColumns : sizes) compare(blockColumns, keyColumns);
  for (int turn = 0; turn < 40; ++turn) compare(8, 8);
}

TEST(Rijndael, RefusesWhatDoesNotFit) {
  const auto shown = [](std::int32_t nb, std::int32_t nk, std::size_t keyLength, std::size_t blockLength) {
    return support::shown([&] {
      EncUtils utils;
      utils.gkey(nb, nk, runtime::Bytes(keyLength));
      runtime::Bytes block(blockLength);
      utils.encrypt(block);
      utils.decrypt(block);
      return "ok";
    });
  };
  EXPECT_EQ(shown(8, 8, 33, 32), "ok");
  EXPECT_EQ(shown(3, 8, 32, 32), "error 5");
  EXPECT_EQ(shown(9, 8, 32, 36), "error 5");
  EXPECT_EQ(shown(8, 3, 32, 32), "error 5");
  EXPECT_EQ(shown(8, 9, 36, 32), "error 5");
  EXPECT_EQ(shown(8, 8, 31, 32), "error 9");
  EXPECT_EQ(shown(8, 8, 32, 31), "error 9");
  runtime::Bytes block(32);
  EXPECT_EQ(support::shown([&] { return EncUtils().decrypt(block), "ok"; }), "error 5");
}

}  // namespace
}  // namespace crypto
