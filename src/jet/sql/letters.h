#pragma once

#include <string>
#include <string_view>

/// Texts character by character.
namespace jet::sql {

/// The characters of UTF-8; a byte that begins none stands for itself.
std::u32string characters(std::string_view utf8);
std::string toUtf8(std::u32string_view characters);

/// Of Latin, Greek and Cyrillic letters; others stay.
char32_t lowerCase(char32_t character);
char32_t upperCase(char32_t character);

/// The language's Like without regard to case: ? one character, * any number, # a digit, [list], [!list] with
/// ranges in the order of texts. Error 93 for a bracket that is not closed.
bool isLike(std::string_view text, std::string_view pattern);

/// Place from 1 of `part` in `text` from place `start` on, without regard to case; 0 if it is not there.
std::size_t find(std::string_view text, std::string_view part, std::size_t start);

}  // namespace jet::sql
