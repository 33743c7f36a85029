#include "values.h"

#include <cstdio>

#include "jet/dao/constants.h"
#include "runtime/date.h"

namespace model {

using namespace jet::dao;

namespace {

struct TypeRow {
  int type;
  const char* name;
  unsigned weight;
};

constexpr TypeRow Types[] = {
    {dbLong, "LONG", 6},     {dbText, "TEXT", 6},         {dbMemo, "MEMO", 3},
    {dbBoolean, "YESNO", 2}, {dbByte, "BYTE", 1},         {dbInteger, "SHORT", 1},
    {dbDouble, "DOUBLE", 2}, {dbCurrency, "CURRENCY", 2}, {dbDate, "DATETIME", 2},
};

constexpr const char* Words[] = {"",        "a",        "A",      "forlì", "FORLÌ", "Niccolò Dell'Orto",
                                 "x \"y\"", "rag. 12",  "zzz",    "œuvre", "日本",  "naïve – «già»",
                                 "O'Brien", "1.234,50", "[Note]", "a\tb",  "€ 10",  "ß"};

std::size_t characters(std::string_view text) {
  std::size_t count = 0;
  for (const char c : text) count += (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  return count;
}

std::string randomText(std::size_t limit, std::mt19937& random) {
  std::string text = Words[random() % std::size(Words)];
  if (random() % 4 == 0)
    for (std::size_t length = random() % limit; characters(text) < length;)
      text += Words[random() % std::size(Words)] + std::string("-");
  while (characters(text) > limit) {
    while ((static_cast<unsigned char>(text.back()) & 0xC0) == 0x80) text.pop_back();
    text.pop_back();
  }
  return text;
}

}  // namespace

int typeOfColumn(unsigned drawn) {
  unsigned total = 0;
  for (const TypeRow& row : Types) total += row.weight;
  drawn %= total;
  for (const TypeRow& row : Types) {
    if (drawn < row.weight) return row.type;
    drawn -= row.weight;
  }
  return dbLong;
}

std::string typeName(int type, int size) {
  for (const TypeRow& row : Types)
    if (row.type == type) return type == dbText ? row.name + ("(" + std::to_string(size) + ")") : row.name;
  return "";
}

bool isIndexable(int type) {
  return type != dbMemo;
}

runtime::Variant randomValue(int type, int size, std::mt19937& random) {
  constexpr std::size_t longMemo = 9000;
  const auto small = static_cast<int>(random() % 30);
  switch (type) {
    case dbText:
      return randomText(static_cast<std::size_t>(size), random);
    case dbMemo:
      return randomText(random() % 3 == 0 ? longMemo : 60, random);
    case dbBoolean:
      return random() % 2 == 0;
    case dbByte:
      return static_cast<std::uint8_t>(random() % 256);
    case dbInteger:
      return static_cast<std::int16_t>(small - 15);
    case dbDouble:
      return (small - 10) * 0.125;
    case dbCurrency:
      return runtime::Currency{(small - 5) * 12345};
    case dbDate:
      return runtime::Date{36000.0 + small * 0.25};
    default:
      return static_cast<std::int32_t>(random() % 20 == 0 ? static_cast<std::int32_t>(random()) : small);
  }
}

std::string literal(const runtime::Variant& value) {
  if (value.isNull()) return "NULL";
  if (value.isText()) {
    std::string text = "'";
    for (const char c : value.toText()) text += c == '\'' ? std::string("''") : std::string(1, c);
    return text + "'";
  }
  if (const auto* truth = std::get_if<bool>(&value.value())) return *truth ? "True" : "False";
  if (const auto* date = std::get_if<runtime::Date>(&value.value())) {
    char text[32];
    std::snprintf(text, sizeof text, "CDate(%.17g)", date->days);
    return text;
  }
  char text[48];
  if (const auto* money = std::get_if<runtime::Currency>(&value.value()))
    std::snprintf(text, sizeof text, "%.4f", static_cast<double>(money->tenThousandths) / 10000);
  else
    std::snprintf(text, sizeof text, "%.17g", value.toDouble());
  return text;
}

}  // namespace model
