#include <gtest/gtest.h>

#include <cstdio>

#include "bytes.h"
#include "crypto/EncUtils.h"
#include "platform/code_page.h"
#include "support/case_file.h"
#include "support/errors.h"

namespace crypto {
namespace {

TEST(Digests, AreThePublishedOnes) {
  support::CaseFile(CASES "/digests.cases").expectResults([](const support::Case& each) {
    const std::vector<std::string> fields = support::fieldsOf(each.statement);
    std::string text;
    for (int times = fields.size() > 1 ? std::stoi(fields[1]) : 1; times > 0; --times) text += fields[0];
    return EncUtils::MD5(text) + " " + EncUtils::SHA1(text);
  });
}

/// The bytes of the code page that RC4 gives, from `from` on.
std::string stream(EncUtils& utils, const std::string& text, const std::string& key, std::size_t from = 0) {
  runtime::Bytes bytes;
  for (const char byte : platform::toCodePage1252(utils.RC4(text, key)).substr(from))
    bytes.push_back(static_cast<std::byte>(byte));
  return toHex(bytes);
}

TEST(Rc4, GivesThePublishedStreams) {
  support::CaseFile(CASES "/rc4.cases").expectResults([](const support::Case& each) {
    EncUtils utils;
    std::size_t keyLength = 0, place = 0;
    if (std::sscanf(each.statement.c_str(), "key of %zu, from %zu", &keyLength, &place) == 2) {
      std::string key;
      for (std::size_t i = 1; i <= keyLength; ++i) key += static_cast<char>(i);
      return stream(utils, std::string(place + 16, '\0'), key, place);
    }
    const std::vector<std::string> fields = support::fieldsOf(each.statement);
    return stream(utils, fields.at(0), fields.at(1));
  });
}

TEST(Rc4, IsItsOwnInverseForWhatTheCodePageHas) {
  EncUtils utils;
  std::string page;
  for (int byte = 0; byte < 256; ++byte) page += static_cast<char>(byte);
  page = platform::fromCodePage1252(page);
  const std::string enciphered = utils.RC4(page, "perché €");
  EXPECT_NE(enciphered, page);
  EXPECT_EQ(utils.RC4(enciphered, "perché €"), page);
  EXPECT_EQ(utils.RC4(utils.RC4("Жx", "k"), "k"), "?x");
  EXPECT_EQ(utils.RC4("", "k"), "");
}

TEST(Rc4, DividesByZeroForAnEmptyKey) {
  EncUtils utils;
  EXPECT_EQ(support::shown([&] { return utils.RC4("testo", ""); }), "error 11");
  EXPECT_EQ(support::shown([&] { return utils.RC4Initialize(""), "ok"; }), "error 11");
}

}  // namespace
}  // namespace crypto
