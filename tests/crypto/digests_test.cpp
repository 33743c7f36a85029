#include <gtest/gtest.h>

#include "bytes.h"
#include "crypto/EncUtils.h"
#include "platform/code_page.h"
#include "runtime/shown.h"

namespace crypto {
namespace {

std::string letters(std::size_t count) {
  return std::string(count, 'a');
}

TEST(Digests, AreThePublishedOnes) {
  const std::string alphabet = "abcdefghijklmnopqrstuvwxyz", digits = "1234567890";
  std::string eighty;
  for (int i = 0; i < 8; ++i) eighty += digits;
  const struct {
    std::string text, md5, sha1;
  } cases[] = {
      // clang-format off
      {"", "d41d8cd98f00b204e9800998ecf8427e", "da39a3ee5e6b4b0d3255bfef95601890afd80709"},
      {"a", "0cc175b9c0f1b6a831c399e269772661",
       "86f7e437faa5a7fce15d1ddcb9eaeaea377667b8"},
      {"abc", "900150983cd24fb0d6963f7d28e17f72", "a9993e364706816aba3e25717850c26c9cd0d89d"},
      {"message digest", "f96b697d7cb7938d525a2f31aaf161d0",
       "c12252ceda8be8994d5fa0290a47231c1d16aae3"},
      {alphabet, "c3fcd3d76192e4007dfb496cca67e13b",
       "32d10c7b8cf96570ca04ce37f2a19d84240d3a89"},
      {"ABCDEFGHIJKLMNOPQRSTUVWXYZ" + alphabet + "0123456789", "d174ab98d277d9f5a5611c2c9f419d9f",
       "761c457bf73b14d27e9e9265c46f4b4dda11f940"},
      {eighty, "57edf4a22be3c955ac49da2e2107b67a",
       "50abf5706a150990a08b2c5ea40fa0e585554732"},
      {"abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq", "8215ef0796a20bcaaae116d3876c664a",
       "84983e441c3bd26ebaae4aa1f95129e5e54670f1"},
      {letters(1000000), "7707d6ae4e027c70eea2a935c2296f21", "34aa973cd4c4daa4f61eeb2bdbad27316534016f"},
      // Around the ends of a block, as md5sum and sha1sum print them.
      {letters(55), "ef1772b6dff9a122358552954ad0df65", "c1c8bbdc22796e28c0e15163d20899b65621d65a"},
      {letters(56), "3b0c8ac703f828b04c6c197006d17218", "c2db330f6083854c99d4b5bfb6e8f29f201be699"},
      {letters(57), "652b906d60af96844ebd21b674f35e93", "f08f24908d682555111be7ff6f004e78283d989a"},
      {letters(63), "b06521f39153d618550606be297466d5", "03f09f5b158a7a8cdad920bddc29b81c18a551f5"},
      {letters(64), "014842d480b571495a4a0363793f7367", "0098ba824b5c16427bd7a1122a5a442a25ec644d"},
      {letters(65), "c743a45e0d2e6a95cb859adae0248435", "11655326c708d70319be2610e8a57d9a5b959d3b"},
      {letters(119), "8a7bd0732ed6a28ce75f6dabc90e1613", "ee971065aaa017e0632a8ca6c77bb3bf8b1dfc56"},
      {letters(120), "5f61c0ccad4cac44c75ff505e1f1e537", "f34c1488385346a55709ba056ddd08280dd4c6d6"},
      // The bytes 70 65 72 63 68 E9 20 80 of the code page.
      {"perché €", "4bf009a500e6235b4566c5bdc28cd696", "33917a36b85b9aa75e4bee009ba663cad4c63920"},
      // clang-format on
  };
  for (const auto& test : cases) {
    EXPECT_EQ(EncUtils::MD5(test.text), test.md5) << test.text.size();
    EXPECT_EQ(EncUtils::SHA1(test.text), test.sha1) << test.text.size();
  }
}

TEST(Digests, TakeAQuestionMarkForWhatTheCodePageDoesNotHave) {
  EXPECT_EQ(EncUtils::MD5("Ж"), EncUtils::MD5("?"));
  EXPECT_EQ(EncUtils::SHA1("Ж"), EncUtils::SHA1("?"));
}

/// The bytes of the code page that RC4 gives, from `from` on.
std::string stream(EncUtils& utils, const std::string& text, const std::string& key, std::size_t from = 0) {
  const std::string bytes = platform::toCodePage1252(utils.RC4(text, key)).substr(from);
  return toHex({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
}

TEST(Rc4, GivesThePublishedStreams) {
  const struct {
    std::string text, key, expected;
  } texts[] = {
      {"Plaintext", "Key", "bbf316e8d940af0ad3"},
      {"pedia", "Wiki", "1021bf0420"},
      {"Attack at dawn", "Secret", "45a01f645fc35b383552544b9bf5"},
  };
  EncUtils utils;
  for (const auto& test : texts) EXPECT_EQ(stream(utils, test.text, test.key), test.expected);

  const struct {
    std::size_t keyLength;
    std::string first, from240, from4096;
  } keys[] = {
      {5, "b2396305f03dc027ccc3524a0a1118a8", "28cb1132c96ce286421dcaadb8b69eae",
       "ff25b58995996707e51fbdf08b34d875"},
      {7, "293f02d47f37c9b633f2af5285feb46b", "914f02531c9218810df60f67e338154c",
       "e74b0b9731227fd37c0ec08a47ddd8b8"},
      {10, "ede3b04643e586cc907dc21851709902", "3cfd6cb58ee0fdde640176ad0000044d",
       "08b6be45124a43e2eb77953f84dc8553"},
      {32, "eaa6bd25880bf93d3f5d1e4ca2611d91", "114ae344ded71b35f2e60febad727fd8",
       "f3e4c0a2e02d1d01f7f0a74618af2b48"},
  };
  for (const auto& test : keys) {
    std::string key;
    for (std::size_t i = 1; i <= test.keyLength; ++i) key += static_cast<char>(i);
    EXPECT_EQ(stream(utils, std::string(16, '\0'), key), test.first) << test.keyLength;
    EXPECT_EQ(stream(utils, std::string(256, '\0'), key, 240), test.from240) << test.keyLength;
    EXPECT_EQ(stream(utils, std::string(4112, '\0'), key, 4096), test.from4096) << test.keyLength;
  }
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
  EXPECT_EQ(runtime::shown([&] { return utils.RC4("testo", ""); }), "error 11");
  EXPECT_EQ(runtime::shown([&] { return utils.RC4Initialize(""), "ok"; }), "error 11");
}

}  // namespace
}  // namespace crypto
