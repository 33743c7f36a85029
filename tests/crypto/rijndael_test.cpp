#include <gtest/gtest.h>

#include "bytes.h"
#include "crypto/EncUtils.h"
#include "support/case_file.h"
#include "support/errors.h"

namespace crypto {
namespace {

EncUtils keyed(std::size_t blockLength, const runtime::Bytes& key) {
  EncUtils utils;
  EncUtils::gentables();
  utils.gkey(static_cast<std::int32_t>(blockLength / 4), static_cast<std::int32_t>(key.size() / 4), key);
  return utils;
}

TEST(Rijndael, GivesThePublishedCiphertexts) {
  support::CaseFile(CASES "/rijndael.cases").expectResults([](const support::Case& each) {
    const auto between = each.statement.find(' ');
    const std::string block = each.statement.substr(between + 1);
    const EncUtils utils = keyed(block.size() / 2, fromHex(each.statement.substr(0, between)));
    runtime::Bytes bytes = fromHex(block);
    utils.encrypt(bytes);
    const std::string enciphered = toHex(bytes);
    utils.decrypt(bytes);
    EXPECT_EQ(toHex(bytes), block);
    return enciphered;
  });
}

TEST(Rijndael, RefusesWhatDoesNotFit) {
  const struct {
    std::int32_t nb, nk;
    std::size_t keyLength, blockLength;
    const char* outcome;
  } cases[] = {{8, 8, 33, 32, "ok"},      {3, 8, 32, 32, "error 5"}, {9, 8, 32, 36, "error 5"},
               {8, 3, 32, 32, "error 5"}, {8, 9, 36, 32, "error 5"}, {8, 8, 31, 32, "error 9"},
               {8, 8, 32, 31, "error 9"}, {0, 0, 0, 32, "error 5"}};
  for (const auto& test : cases)
    EXPECT_EQ(support::shown([&] {
                EncUtils utils;
                if (test.nb != 0) utils.gkey(test.nb, test.nk, runtime::Bytes(test.keyLength));
                runtime::Bytes block(test.blockLength);
                utils.decrypt(block);
                utils.encrypt(block);
                return "ok";
              }),
              test.outcome)
        << test.nb << " " << test.nk << " " << test.keyLength << " " << test.blockLength;
}

}  // namespace
}  // namespace crypto
