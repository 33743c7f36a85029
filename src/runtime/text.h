#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// The language's functions of texts. Positions count characters, from 1. A view that is returned is a piece
/// of the text that was given.
namespace runtime {

/// The small letter of a capital of ASCII; anything else as it is.
constexpr char asciiLower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
}

/// How letters are told apart: exactly, or without regard to case.
enum class Compare : std::int32_t { Exact = 0, Text = 1 };

/// The mode that the language numbers 0 or 1; 2 is the database's and means Text. Error 5 for another number.
Compare compareMode(std::int64_t number);

std::size_t length(std::string_view text);

/// Error 5 for a negative count, or a start below 1; what reaches behind the text is cut.
std::string_view left(std::string_view text, std::int64_t count);
std::string_view right(std::string_view text, std::int64_t count);
std::string_view mid(std::string_view text, std::int64_t start);
std::string_view mid(std::string_view text, std::int64_t start, std::int64_t count);

/// Without the blanks at one end or both; other white space stays.
std::string_view leftTrimmed(std::string_view text);
std::string_view rightTrimmed(std::string_view text);
std::string_view trimmed(std::string_view text);
/// Without any of the characters `blanks` at both ends.
std::string_view trimmed(std::string_view text, std::string_view blanks);
/// What separates words of a program's text: blanks, tabs, line ends.
inline constexpr std::string_view Blanks = " \t\r\n";

/// In quotes, those inside doubled.
std::string quoted(std::string_view text, char quote = '\'');

std::string lowerCase(std::string_view text);
std::string upperCase(std::string_view text);
/// Each word's first letter a capital, the others small; words end at white space.
std::string properCase(std::string_view text);
/// Conversion 1 to capitals, 2 to small letters, 3 to proper case. Error 5 for another.
std::string strConv(std::string_view text, std::int64_t conversion);

/// <0, 0, >0. Text: by the small letters' code points, which is for equality; the database has its own order.
int strComp(std::string_view a, std::string_view b, Compare compare = Compare::Exact);

/// Position of the first `part` from position `start` on; 0 if there is none. An empty part is found at
/// `start`, if the text reaches that far. Error 5 for a start below 1.
std::int64_t inStr(std::int64_t start, std::string_view text, std::string_view part,
                   Compare compare = Compare::Exact);
/// Position of the last `part` that ends at position `start` or before; -1: at the text's end. Error 5 for
/// another start below 1.
std::int64_t inStrRev(std::string_view text, std::string_view part, std::int64_t start = -1,
                      Compare compare = Compare::Exact);

/// `text` from position `start` on, with the first `count` of the `part`s replaced; -1: all. An empty part is
/// never found. Error 5 for a start below 1 or a count below -1.
std::string replace(std::string_view text, std::string_view part, std::string_view replacement,
                    std::int64_t start = 1, std::int64_t count = -1, Compare compare = Compare::Exact);

std::string strReverse(std::string_view text);

/// `count` times the first character of `text`, or character number `code` of Unicode. Error 5 for an empty
/// text, a negative count, a length beyond 16,777,216 characters, or no character.
std::string repeated(std::int64_t count, std::string_view text);
std::string space(std::int64_t count);

/// Number in Unicode of the first character, below zero from 32768 on. Error 5 for an empty text.
std::int32_t ascW(std::string_view text);
/// -32768 to 65535; error 5 outside.
std::string chrW(std::int64_t code);

/// "10:19": the range of `number` between `start` and `stop`, in ranges of `interval`; ends of one width, for
/// sorting; outside, the range up to start or from stop on. Error 5: start below 0, stop not above it,
/// interval below 1.
std::string partition(std::int64_t number, std::int64_t start, std::int64_t stop, std::int64_t interval);

}  // namespace runtime
