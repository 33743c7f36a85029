// The functions of texts.
#include "jet/file/text/text_key.h"
#include "jet/sql/function_support.h"
#include "platform/code_page.h"
#include "runtime/like.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace jet::sql {

namespace {

using runtime::languageError;

std::int64_t wholeNumber(sqlite3_value* value) {
  return sqlite3_value_int64(value);
}

/// Statements compare without regard to case unless told otherwise.
runtime::Compare compareMode(int count, sqlite3_value** arguments, int index) {
  return index < count ? runtime::compareMode(wholeNumber(arguments[index])) : runtime::Compare::Text;
}

void lengthOf(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_result_int64(context, static_cast<std::int64_t>(runtime::length(textOf(arguments[0]))));
}

void left(sqlite3_context* context, int, sqlite3_value** arguments) {
  returnText(context, runtime::left(textOf(arguments[0]), wholeNumber(arguments[1])));
}

void right(sqlite3_context* context, int, sqlite3_value** arguments) {
  returnText(context, runtime::right(textOf(arguments[0]), wholeNumber(arguments[1])));
}

void mid(sqlite3_context* context, int count, sqlite3_value** arguments) {
  const std::string_view text = textOf(arguments[0]);
  returnText(context, count == 2 ? runtime::mid(text, wholeNumber(arguments[1]))
                                 : runtime::mid(text, wholeNumber(arguments[1]), wholeNumber(arguments[2])));
}

template <std::string_view (*piece)(std::string_view)>
void pieceOf(sqlite3_context* context, int, sqlite3_value** arguments) {
  returnText(context, piece(textOf(arguments[0])));
}

template <std::string (*change)(std::string_view)>
void changed(sqlite3_context* context, int, sqlite3_value** arguments) {
  returnText(context, change(textOf(arguments[0])));
}

void inStr(sqlite3_context* context, int count, sqlite3_value** arguments) {
  returnLong(context, runtime::inStr(wholeNumber(arguments[0]), textOf(arguments[1]), textOf(arguments[2]),
                                     compareMode(count, arguments, 3)));
}

void inStrRev(sqlite3_context* context, int count, sqlite3_value** arguments) {
  returnLong(context, runtime::inStrRev(textOf(arguments[0]), textOf(arguments[1]),
                                        optionalArgument<std::int64_t>(count, arguments, 2, -1),
                                        compareMode(count, arguments, 3)));
}

void replace(sqlite3_context* context, int count, sqlite3_value** arguments) {
  returnText(context, runtime::replace(textOf(arguments[0]), textOf(arguments[1]), textOf(arguments[2]),
                                       optionalArgument<std::int64_t>(count, arguments, 3, 1),
                                       optionalArgument<std::int64_t>(count, arguments, 4, -1),
                                       compareMode(count, arguments, 5)));
}

void like(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_result_int(context, runtime::isLike(textOf(arguments[0]), textOf(arguments[1]), file::compareText));
}

/// The wildcards of ANSI in those of the language, whose own stand for themselves.
std::string fromAnsi(std::string_view pattern) {
  std::string result;
  bool list = false;
  for (const char c : pattern) {
    if (list || (c != '%' && c != '_' && c != '*' && c != '?' && c != '#'))
      result += c;
    else if (c == '%' || c == '_')
      result += c == '%' ? '*' : '?';
    else
      result += {'[', c, ']'};
    list = list ? c != ']' : c == '[';
  }
  return result;
}

void alike(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_result_int(
      context, runtime::isLike(textOf(arguments[0]), fromAnsi(textOf(arguments[1])), file::compareText));
}

void strComp(sqlite3_context* context, int count, sqlite3_value** arguments) {
  const std::string_view a = textOf(arguments[0]), b = textOf(arguments[1]);
  const bool exact = compareMode(count, arguments, 2) == runtime::Compare::Exact;
  const int order = exact ? runtime::strComp(a, b) : file::compareText(a, b);
  sqlite3_result_int(context, order < 0 ? -1 : order > 0);
}

void strConv(sqlite3_context* context, int, sqlite3_value** arguments) {
  returnText(context, runtime::strConv(textOf(arguments[0]), wholeNumber(arguments[1])));
}

void val(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_result_double(context, runtime::val(textOf(arguments[0])));
}

void str(sqlite3_context* context, int, sqlite3_value** arguments) {
  returnText(context, runtime::str(sqlite3_value_double(arguments[0])));
}

void space(sqlite3_context* context, int, sqlite3_value** arguments) {
  returnText(context, runtime::space(wholeNumber(arguments[0])));
}

/// Character of code page 1252.
std::string character(std::int64_t code) {
  constexpr std::int64_t lastByte = 255;
  if (code < 0 || code > lastByte) throw languageError(runtime::InvalidCall);
  const char byte = static_cast<char>(code);
  return platform::fromCodePage1252({&byte, 1});
}

/// (count, text whose first character counts | number of a character)
void string(sqlite3_context* context, int, sqlite3_value** arguments) {
  constexpr std::int64_t codes = 256;
  const bool isText = sqlite3_value_type(arguments[1]) == SQLITE_TEXT;
  const std::string own = isText ? "" : character(wholeNumber(arguments[1]) % codes);
  returnText(context, runtime::repeated(wholeNumber(arguments[0]), isText ? textOf(arguments[1]) : own));
}

void chr(sqlite3_context* context, int, sqlite3_value** arguments) {
  returnText(context, character(wholeNumber(arguments[0])));
}

void chrW(sqlite3_context* context, int, sqlite3_value** arguments) {
  returnText(context, runtime::chrW(wholeNumber(arguments[0])));
}

void asc(sqlite3_context* context, int, sqlite3_value** arguments) {
  const std::string bytes = platform::toCodePage1252(runtime::left(textOf(arguments[0]), 1));
  if (bytes.empty()) throw languageError(runtime::InvalidCall);
  sqlite3_result_int(context, static_cast<unsigned char>(bytes.front()));
}

void ascW(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_result_int(context, runtime::ascW(textOf(arguments[0])));
}

void partition(sqlite3_context* context, int, sqlite3_value** arguments) {
  returnText(context, runtime::partition(wholeNumber(arguments[0]), wholeNumber(arguments[1]),
                                         wholeNumber(arguments[2]), wholeNumber(arguments[3])));
}

/// The texts one after another, Nulls as empty ones; Null where all are.
void join(sqlite3_context* context, int count, sqlite3_value** arguments) {
  std::string text;
  bool any = false;
  for (int i = 0; i < count; ++i) {
    any |= sqlite3_value_type(arguments[i]) != SQLITE_NULL;
    text += textOf(arguments[i]);
  }
  if (!any) return sqlite3_result_null(context);
  returnText(context, text);
}

constexpr SqliteFunction TextsFunctions[] = {
    {"jet_length", 1, nullIfAnyIsNull<lengthOf>},
    {"jet_left", 2, nullIfAnyIsNull<left>},
    {"jet_right", 2, nullIfAnyIsNull<right>},
    {"jet_mid", 2, nullIfAnyIsNull<mid>},
    {"jet_mid", 3, nullIfAnyIsNull<mid>},
    {"jet_left_trim", 1, nullIfAnyIsNull<pieceOf<runtime::leftTrimmed>>},
    {"jet_right_trim", 1, nullIfAnyIsNull<pieceOf<runtime::rightTrimmed>>},
    {"jet_trim", 1, nullIfAnyIsNull<pieceOf<runtime::trimmed>>},
    {"jet_upper", 1, nullIfAnyIsNull<changed<runtime::upperCase>>},
    {"jet_lower", 1, nullIfAnyIsNull<changed<runtime::lowerCase>>},
    {"jet_str_conv", -1, nullIfAnyIsNull<strConv>},
    {"jet_str_reverse", 1, nullIfAnyIsNull<changed<runtime::strReverse>>},
    {"jet_instr", -1, nullIfAnyIsNull<inStr>},
    {"jet_instr_rev", -1, nullIfAnyIsNull<inStrRev>},
    {"jet_replace", -1, nullIfAnyIsNull<replace>},
    {"jet_like", 2, nullIfAnyIsNull<like>},
    {"jet_alike", 2, nullIfAnyIsNull<alike>},
    {"jet_str_comp", -1, nullIfAnyIsNull<strComp>},
    {"jet_val", 1, nullIfAnyIsNull<val>},
    {"jet_str", 1, nullIfAnyIsNull<str>},
    {"jet_space", 1, nullIfAnyIsNull<space>},
    {"jet_string", 2, nullIfAnyIsNull<string>},
    {"jet_chr", 1, nullIfAnyIsNull<chr>},
    {"jet_chr_w", 1, nullIfAnyIsNull<chrW>},
    {"jet_asc", 1, nullIfAnyIsNull<asc>},
    {"jet_asc_w", 1, nullIfAnyIsNull<ascW>},
    {"jet_partition", 4, nullIfAnyIsNull<partition>},
    {"jet_join", -1, withErrors<join>},
};

}  // namespace

void registerTextFunctions(sqlite3* connection) {
  registerAll(connection, TextsFunctions);
}

}  // namespace jet::sql
