#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "crypto/rijndael.h"
#include "runtime/variant.h"

namespace crypto {

/// 32 bits, big-endian: index 0 is the most significant byte.
using Word = std::array<std::uint8_t, 4>;

/// An array of bytes of the suite; no value is one that was never dimensioned.
using ByteArray = std::optional<runtime::Bytes>;

/// The digests and ciphers of the suite, so that data written long ago stay readable; nothing new should be
/// protected with them.
class EncUtils {
 public:
  /// Digests of the text's bytes in code page 1252, as 32 and 40 hexadecimal digits in small letters.
  static std::string MD5(std::string_view testo);
  static std::string SHA1(std::string_view testo);

  /// Fills the box from the key's bytes in code page 1252. Error 11 for an empty key.
  void RC4Initialize(std::string_view chiave);
  /// The text, its bytes in code page 1252 xored with the key's stream: a second call with the same key gives
  /// back what the page holds of the text. Error 11 for an empty key.
  std::string RC4(std::string_view testo, std::string_view chiave);

  /// Bit by bit.
  static Word AndW(const Word& a, const Word& b);
  static Word OrW(const Word& a, const Word& b);
  static Word XorW(const Word& a, const Word& b);
  static Word NotW(const Word& a);
  /// Sum modulo 2^32.
  static Word AddW(const Word& a, const Word& b);
  /// `a` * 2^bits or `a` / 2^(32 - bits), each modulo 2^32: a rotation for 0 to 32 bits. Error 6 where a
  /// power leaves the doubles.
  static Word CircShiftLeftW(const Word& a, std::int32_t bits);
  /// 8 hexadecimal digits in capitals.
  static std::string WordToHex(const Word& a);
  /// Of a text that the language reads as a number behind "&h"; up to four digits with the top bit set are a
  /// negative number, as eight are ("FFFF" is FFFFFFFF). Error 13 for another text, error 6 beyond 32 bits.
  static Word HexToWord(std::string_view esadecimale);
  /// The integer part modulo 2^32; -1 is FFFFFFFF. Error 6 for a value that rounds to 2^32.
  static Word DoubleToWord(double valore);
  static double WordToDouble(const Word& a);
  /// `valore` modulo `divisore`, from 0 up to the divisor. Error 11 for a divisor of 0, error 6 if the value
  /// is 0 as well.
  static double DMod(double valore, double divisore);
  /// The function of SHA-1's round `t`, from 0 on; beyond 79 that of the last.
  static Word f(std::int32_t t, const Word& b, const Word& c, const Word& d);

  /// The tables are made with the program, so this does nothing; the call belongs before `gkey`.
  static void gentables() {}
  /// Expands the first 4 * `nk` bytes of the key for blocks of 4 * `nb` bytes. Error 5 unless both are 4 to
  /// 8, error 9 for a shorter key.
  void gkey(std::int32_t nb, std::int32_t nk, std::span<const std::byte> chiave);
  /// One block in place; AESEncrypt and AESDecrypt change the key. Error 5 before `gkey`, error 9 for fewer
  /// bytes than a block; bytes behind the block stay.
  void encrypt(std::span<std::byte> blocco) const;
  void decrypt(std::span<std::byte> blocco) const;

  /// Length (four bytes, low first), message and zeros, enciphered in blocks of 32 bytes, each alone; nothing
  /// if an argument has no value. Of the password 32 bytes count; a shorter one is filled up with zeros.
  ByteArray AESEncrypt(const ByteArray& messaggio, const ByteArray& password);
  /// The message of such blocks; nothing if an argument has no value, the length is no multiple of 32 or 0,
  /// or the length within, the only sign of a wrong password, is impossible.
  ByteArray AESDecrypt(const ByteArray& cifrato, const ByteArray& password);

  /// "&h1f" for each pair of characters; one that is left over at the end is dropped.
  static std::vector<std::string> StringToPairArray(std::string_view esadecimale);
  /// Of each character of text and password the low eight bits are enciphered. Hexadecimal digits in small
  /// letters, 64 for each block; an empty text gives one block.
  std::string AESEncyptString(std::string_view testo, std::string_view password);
  /// The message's bytes are read in code page 1252, so above ASCII they may differ from what AESEncyptString
  /// took. Empty where AESDecrypt gives nothing; error 13 for what is no hexadecimal number.
  std::string AESDecyptString(std::string_view esadecimale, std::string_view password);

  /// The text that was enciphered in two stages: with KepChiaveInterna(piece), and its digits, "_" and the
  /// piece again with KepChiaveEsterna(`chiave`). Error 9 if the outer stage gives no two parts.
  std::string KepDc(std::string_view cifrato, std::string_view chiave);
  static std::string KepChiaveEsterna(std::string_view chiave);
  static std::string KepChiaveInterna(std::string_view pezzo);

 private:
  std::array<std::uint8_t, 256> box_{};
  std::optional<Rijndael> cipher_;
};

}  // namespace crypto
