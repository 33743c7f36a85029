// What a program may ask about a value: its type's name and number, whether it is a number or a date.
#include "runtime/inspection.h"

#include "runtime/date.h"
#include "runtime/error.h"
#include "runtime/numbers.h"

namespace runtime {

namespace {

struct Kind {
  std::string_view name;
  int number;
};

/// In the order of VariantKind.
constexpr Kind Kinds[] = {{"Empty", 0},    {"Null", 1},   {"Boolean", 11}, {"Byte", 17},    {"Integer", 2},
                          {"Long", 3},     {"Single", 4}, {"Double", 5},   {"Currency", 6}, {"Date", 7},
                          {"Decimal", 14}, {"String", 8}, {"Byte()", 8209}};

const Kind& kindOf(const Variant& value) {
  return Kinds[static_cast<std::size_t>(value.kind())];
}

bool isNumber(std::string_view text) {
  try {
    const std::optional<std::string> plain = plainNumber(text);
    if (plain) plainToDouble(*plain);
    return plain.has_value();
  } catch (const Error&) {
    return false;  // too large
  }
}

}  // namespace

bool isNumeric(const Variant& value) {
  switch (value.kind()) {
    case VariantKind::Null:
    case VariantKind::Date:
    case VariantKind::Bytes:
      return false;
    case VariantKind::Text:
      return isNumber(std::get<std::string>(value.value()));
    default:
      return true;
  }
}

bool isDate(const Variant& value) {
  const auto* text = std::get_if<std::string>(&value.value());
  return text ? dateFromText(*text).has_value() : value.kind() == VariantKind::Date;
}

std::string_view typeName(const Variant& value) {
  return kindOf(value).name;
}

int varType(const Variant& value) {
  return kindOf(value).number;
}

}  // namespace runtime
