#include <algorithm>

#include "jet/sql/function_support.h"
#include "jet/sql/letters.h"
#include "platform/code_page.h"
#include "runtime/date.h"
#include "runtime/format.h"
#include "runtime/numbers.h"

namespace jet::sql {

namespace {

using runtime::languageError;

bool continues(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

std::size_t length(std::string_view text) {
  return text.size() - static_cast<std::size_t>(std::ranges::count_if(text, continues));
}

/// Byte at which character `index` begins; the text's end behind the last one.
std::size_t offsetOf(std::string_view text, std::size_t index) {
  std::size_t at = 0;
  for (; at < text.size(); ++at) {
    if (!continues(text[at]) && index-- == 0) break;
  }
  return at;
}

/// Not below `least`; error 5.
std::size_t count(sqlite3_value* value, std::int64_t least) {
  const std::int64_t number = sqlite3_value_int64(value);
  if (number < least) throw languageError(runtime::InvalidCall);
  return static_cast<std::size_t>(number);
}

void lengthOf(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_result_int64(context, static_cast<std::int64_t>(length(textOf(arguments[0]))));
}

void left(sqlite3_context* context, int, sqlite3_value** arguments) {
  const std::string_view text = textOf(arguments[0]);
  returnText(context, text.substr(0, offsetOf(text, count(arguments[1], 0))));
}

void right(sqlite3_context* context, int, sqlite3_value** arguments) {
  const std::string_view text = textOf(arguments[0]);
  const std::size_t all = length(text), wanted = std::min(all, count(arguments[1], 0));
  returnText(context, text.substr(offsetOf(text, all - wanted)));
}

void mid(sqlite3_context* context, int argumentCount, sqlite3_value** arguments) {
  std::string_view text = textOf(arguments[0]);
  text.remove_prefix(offsetOf(text, count(arguments[1], 1) - 1));
  if (argumentCount == 3) text = text.substr(0, offsetOf(text, count(arguments[2], 0)));
  returnText(context, text);
}

template <char32_t (*change)(char32_t)>
void changeCase(sqlite3_context* context, int, sqlite3_value** arguments) {
  std::u32string text = characters(textOf(arguments[0]));
  std::ranges::transform(text, text.begin(), change);
  returnText(context, toUtf8(text));
}

void inStr(sqlite3_context* context, int, sqlite3_value** arguments) {
  const std::size_t start = count(arguments[0], 1);
  returnLong(context, static_cast<std::int64_t>(find(textOf(arguments[1]), textOf(arguments[2]), start)));
}

void like(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_result_int(context, isLike(textOf(arguments[0]), textOf(arguments[1])));
}

void val(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_result_double(context, runtime::val(textOf(arguments[0])));
}

void str(sqlite3_context* context, int, sqlite3_value** arguments) {
  returnText(context, runtime::str(sqlite3_value_double(arguments[0])));
}

void space(sqlite3_context* context, int, sqlite3_value** arguments) {
  constexpr std::size_t longest = 1 << 24;
  const std::size_t blanks = count(arguments[0], 0);
  if (blanks > longest) throw languageError(runtime::InvalidCall);
  returnText(context, std::string(blanks, ' '));
}

void chr(sqlite3_context* context, int, sqlite3_value** arguments) {
  constexpr std::size_t lastByte = 255;
  const std::size_t code = count(arguments[0], 0);
  if (code > lastByte) throw languageError(runtime::InvalidCall);
  const char byte = static_cast<char>(code);
  returnText(context, platform::fromCodePage1252({&byte, 1}));
}

void asc(sqlite3_context* context, int, sqlite3_value** arguments) {
  const std::string bytes = platform::toCodePage1252(textOf(arguments[0]));
  if (bytes.empty()) throw languageError(runtime::InvalidCall);
  sqlite3_result_int(context, static_cast<unsigned char>(bytes.front()));
}

Type typeArgument(sqlite3_value* value) {
  return static_cast<Type>(sqlite3_value_int(value));
}

/// A Null formats to an empty text, so it is let through.
void format(sqlite3_context* context, int, sqlite3_value** arguments) {
  try {
    const bool null = sqlite3_value_type(arguments[1]) == SQLITE_NULL;
    const runtime::Variant value = readValue(arguments[1], null ? Type::Null : typeArgument(arguments[0]));
    returnText(context, runtime::format(value, textOf(arguments[2])));
  } catch (const runtime::Error& error) {
    returnError(context, error);
  } catch (const std::bad_alloc&) {
    sqlite3_result_error_nomem(context);
  }
}

void isDate(sqlite3_context* context, int, sqlite3_value** arguments) {
  const Type type = typeArgument(arguments[0]);
  const bool text =
      sqlite3_value_type(arguments[1]) == SQLITE_TEXT && (isText(type) || type == Type::Variant);
  const bool date = text ? runtime::dateFromText(textOf(arguments[1])).has_value()
                         : type == Type::Date && sqlite3_value_type(arguments[1]) != SQLITE_NULL;
  sqlite3_result_int(context, date ? -1 : 0);
}

void isNumeric(sqlite3_context* context, int, sqlite3_value** arguments) {
  const Type type = typeArgument(arguments[0]);
  const int storage = sqlite3_value_type(arguments[1]);
  bool numeric = storage != SQLITE_NULL && isNumber(type) && type != Type::Date;
  if (isText(type) || type == Type::Variant) {
    numeric = storage == SQLITE_INTEGER || storage == SQLITE_FLOAT ||
              (storage == SQLITE_TEXT && runtime::plainNumber(textOf(arguments[1])));
  }
  sqlite3_result_int(context, numeric ? -1 : 0);
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

constexpr SqliteFunction functions[] = {
    {"jet_length", 1, nullIfAnyIsNull<lengthOf>},
    {"jet_left", 2, nullIfAnyIsNull<left>},
    {"jet_right", 2, nullIfAnyIsNull<right>},
    {"jet_mid", 2, nullIfAnyIsNull<mid>},
    {"jet_mid", 3, nullIfAnyIsNull<mid>},
    {"jet_upper", 1, nullIfAnyIsNull<changeCase<upperCase>>},
    {"jet_lower", 1, nullIfAnyIsNull<changeCase<lowerCase>>},
    {"jet_instr", 3, nullIfAnyIsNull<inStr>},
    {"jet_like", 2, nullIfAnyIsNull<like>},
    {"jet_val", 1, nullIfAnyIsNull<val>},
    {"jet_str", 1, nullIfAnyIsNull<str>},
    {"jet_space", 1, nullIfAnyIsNull<space>},
    {"jet_chr", 1, nullIfAnyIsNull<chr>},
    {"jet_asc", 1, nullIfAnyIsNull<asc>},
    {"jet_format", 3, format},
    {"jet_is_date", 2, isDate},
    {"jet_is_numeric", 2, isNumeric},
    {"jet_join", -1, join},
};

}  // namespace

void registerTextFunctions(sqlite3* connection) {
  registerAll(connection, functions);
}

}  // namespace jet::sql
