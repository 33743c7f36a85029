#include <gtest/gtest.h>

#include <random>

#include "bytes.h"
#include "crypto/EncUtils.h"
#include "runtime/shown.h"

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
  const std::string key = "2b7e151628aed2a6abf7158809cf4f3c762e7160f38b4da56a784d9045190cfe",
                    block = "3243f6a8885a308d313198a2e03707344a4093822299f31d0082efa98ec4e6c8",
                    standardKey = "000102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f",
                    standardBlock = "00112233445566778899aabbccddeeff", zeros(64, '0'),
                    one = "8" + std::string(63, '0'), two = "4" + std::string(63, '0');
  const struct {
    std::string key, block, expected;
  } cases[] = {
      // The standard's blocks of 16 bytes.
      {standardKey.substr(0, 32), standardBlock, "69c4e0d86a7b0430d8cdb78070b4c55a"},
      {standardKey.substr(0, 48), standardBlock, "dda97ca4864cdfe06eaf70a0ec0d7191"},
      {standardKey, standardBlock, "8ea2b7ca516745bfeafc49904b496089"},
      // Brian Gladman's, of every length of block and key.
      {key.substr(0, 32), block.substr(0, 40), "16e73aec921314c29df905432bc8968ab64b1f51"},
      {key.substr(0, 40), block.substr(0, 40), "0553eb691670dd8a5a5b5addf1aa7450f7a0e587"},
      {key.substr(0, 48), block.substr(0, 40), "73cd6f3423036790463aa9e19cfcde894ea16623"},
      {key.substr(0, 56), block.substr(0, 40), "601b5dcd1cf4ece954c740445340bf0afdc048df"},
      {key, block.substr(0, 40), "579e930b36c1529aa3e86628bacfe146942882cf"},
      {key.substr(0, 32), block.substr(0, 48), "b24d275489e82bb8f7375e0d5fcdb1f481757c538b65148a"},
      {key, block.substr(0, 48), "0ebacf199e3315c2e34b24fcc7c46ef4388aa475d66c194c"},
      {key.substr(0, 32), block.substr(0, 56), "b0a8f78f6b3c66213f792ffd2a61631f79331407a5e5c8d3793aceb1"},
      {key, block.substr(0, 56), "02fafc200176ed05deb8edb82a3555b0b10d47a388dfd59cab2f6c11"},
      {key.substr(0, 32), block, "7d15479076b69a46ffb3b3beae97ad8313f622f67fedb487de9f06b9ed9c8f19"},
      {key.substr(0, 40), block, "514f93fb296b5ad16aa7df8b577abcbd484decacccc7fb1f18dc567309ceeffd"},
      {key.substr(0, 48), block, "5d7101727bb25781bf6715b0e6955282b9610e23a43c2eb062699f0ebf5887b2"},
      {key.substr(0, 56), block, "d56c5a63627432579e1dd308b2c8f157b40a4bfb56fea1377b25d3ed3d6dbf80"},
      {key, block, "a49406115dfb30a40418aafa4869b7c6a886ff31602a7dd19c889dc64f7e4e7a"},
      // NESSIE's, of 32 bytes.
      {one, zeros, "e62abce069837b65309be4eda2c0e149fe56c07b7082d3287f592c4a4927a277"},
      {two, zeros, "1f00b4dd622c0b2951f25970b0ed47a65f513112daca242b5292ca314917bf94"},
      {zeros, one, "159a08e46e616e6e9978502010daff922eb362e77dcaaf02eaeb7354eb8b8dba"},
      {zeros, two, "2756ddecd7558b198962f092d7ba3eef45d9e287380aab8e852658092aa9dfa1"},
  };
  for (const auto& test : cases) {
    const EncUtils utils = keyed(test.block.size() / 2, fromHex(test.key));
    runtime::Bytes enciphered = bytes(fromHex(test.block));
    utils.encrypt(enciphered);
    EXPECT_EQ(toHex(numbers(enciphered)), test.expected);
    utils.decrypt(enciphered);
    EXPECT_EQ(toHex(numbers(enciphered)), test.block) << test.expected;
  }
}

TEST(Rijndael, GivesThePublishedCiphertextAfterAThousandTurns) {
  plain::Bytes key(32);
  key[0] = 0x80;
  const EncUtils utils = keyed(32, key);
  runtime::Bytes block(32);
  for (int turn = 0; turn < 1000; ++turn) utils.encrypt(block);
  EXPECT_EQ(toHex(numbers(block)), "16990d2f01f21a61678538bd10f1f231a1dcb8d4e73cddf6a33b5b5fa2368e14");
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
    return runtime::shown([&] {
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
  EXPECT_EQ(runtime::shown([&] { return EncUtils().decrypt(block), "ok"; }), "error 5");
}

}  // namespace
}  // namespace crypto
