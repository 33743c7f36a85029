#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Texts are UTF-8; these are their characters, one by one.
namespace runtime {

/// Takes the first character off `utf8`, which is not empty; a byte that begins none stands for itself.
inline char32_t takeCharacter(std::string_view& utf8) {
  const auto lead = static_cast<unsigned char>(utf8.front());
  if (lead < 0x80) {
    utf8.remove_prefix(1);
    return lead;
  }
  const std::size_t length = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  char32_t character = length == 1 ? lead : lead & (0xFFu >> (length + 1));
  std::size_t at = 1;
  for (; at < length && at < utf8.size(); ++at)
    character = character << 6 | (static_cast<unsigned char>(utf8[at]) & 0x3Fu);
  utf8.remove_prefix(at);
  return character;
}

/// Stands for what is no UTF-8.
inline constexpr char32_t Replacement = 0xFFFD;

/// As takeCharacter, but a byte that belongs to no character is taken alone and gives Replacement; a
/// surrogate alone counts as a character of three bytes.
char32_t takeValidCharacter(std::string_view& utf8);

/// True for a byte that is not the first of a character.
constexpr bool continuesCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

void appendUtf8(char32_t character, std::string& out);

/// How many bytes at the beginning are UTF-8; a surrogate alone counts as a character of three bytes.
std::size_t utf8Prefix(std::string_view text);

std::u32string characters(std::string_view utf8);
std::string toUtf8(std::u32string_view characters);

/// Of Latin, Greek and Cyrillic letters; others stay.
char32_t lowerCase(char32_t character);
char32_t upperCase(char32_t character);

}  // namespace runtime
