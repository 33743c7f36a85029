#include <cmath>
#include <limits>

#include "jet/image/decimal.h"
#include "jet/sql/decimal.h"
#include "jet/sql/function_support.h"
#include "runtime/numbers.h"

namespace jet::sql {

namespace {

using runtime::languageError;

double number(sqlite3_value* value) {
  return sqlite3_value_double(value);
}
std::int64_t whole(sqlite3_value* value) {
  return sqlite3_value_int64(value);
}
bool isWhole(sqlite3_value* value) {
  return sqlite3_value_type(value) == SQLITE_INTEGER;
}

void returnDouble(sqlite3_context* context, double value) {
  if (!std::isfinite(value)) throw languageError(runtime::Overflow);
  sqlite3_result_double(context, value);
}

// SQLite goes over to REAL where 64 bits do not hold a result.

void checkLong(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (!isWhole(arguments[0])) throw languageError(runtime::Overflow);
  returnLong(context, whole(arguments[0]));
}

void checkCurrency(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (!isWhole(arguments[0])) throw languageError(runtime::Overflow);
  sqlite3_result_int64(context, whole(arguments[0]));
}

void checkSingle(sqlite3_context* context, int, sqlite3_value** arguments) {
  const double value = number(arguments[0]);
  if (std::abs(value) > std::numeric_limits<float>::max()) throw languageError(runtime::Overflow);
  sqlite3_result_double(context, static_cast<double>(static_cast<float>(value)));
}

void checkDouble(sqlite3_context* context, int, sqlite3_value** arguments) {
  returnDouble(context, number(arguments[0]));
}

void power(sqlite3_context* context, int, sqlite3_value** arguments) {
  const double base = number(arguments[0]), exponent = number(arguments[1]);
  const bool undefined = (base == 0 && exponent < 0) || (base < 0 && exponent != std::floor(exponent));
  if (undefined) throw languageError(runtime::InvalidCall);
  returnDouble(context, std::pow(base, exponent));
}

void divide(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (number(arguments[1]) == 0) throw languageError(runtime::DivisionByZero);
  returnDouble(context, number(arguments[0]) / number(arguments[1]));
}

void integerDivide(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (whole(arguments[1]) == 0) throw languageError(runtime::DivisionByZero);
  returnLong(context, whole(arguments[0]) / whole(arguments[1]));
}

void modulo(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (whole(arguments[1]) == 0) throw languageError(runtime::DivisionByZero);
  returnLong(context, whole(arguments[0]) % whole(arguments[1]));
}

/// Ten-thousandths times ten-thousandths, the product's halves rounded to even.
void multiplyCurrency(sqlite3_context* context, int, sqlite3_value** arguments) {
  __extension__ using Wide = __int128;
  constexpr std::int64_t scale = 10000;
  const Wide product = Wide{whole(arguments[0])} * whole(arguments[1]);
  Wide result = product / scale;
  const auto rest = static_cast<std::int64_t>(product % scale);
  const std::int64_t twice = 2 * (rest < 0 ? -rest : rest);
  if (twice > scale || (twice == scale && result % 2 != 0)) result += rest < 0 ? -1 : 1;
  const auto narrow = static_cast<std::int64_t>(result);
  if (narrow != result) throw languageError(runtime::Overflow);
  sqlite3_result_int64(context, narrow);
}

template <class Reckon>
void reckonDecimals(sqlite3_context* context, sqlite3_value** arguments, Reckon reckon) {
  const runtime::Decimal left = parseDecimal(textOf(arguments[0])),
                         right = parseDecimal(textOf(arguments[1]));
  returnText(context, image::decimalText(reckon(left, right)));
}

void addDecimal(sqlite3_context* context, int, sqlite3_value** arguments) {
  reckonDecimals(context, arguments, addDecimals);
}

void subtractDecimal(sqlite3_context* context, int, sqlite3_value** arguments) {
  reckonDecimals(context, arguments, [](const runtime::Decimal& left, runtime::Decimal right) {
    right.negative = !right.negative;
    return addDecimals(left, right);
  });
}

void multiplyDecimal(sqlite3_context* context, int, sqlite3_value** arguments) {
  reckonDecimals(context, arguments, multiplyDecimals);
}

/// A whole number is its own result.
template <double (*function)(double)>
void roundWith(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (isWhole(arguments[0])) return sqlite3_result_int64(context, whole(arguments[0]));
  sqlite3_result_double(context, function(number(arguments[0])));
}

void roundTo(sqlite3_context* context, int, sqlite3_value** arguments) {
  constexpr std::int64_t mostDecimals = 22;
  const std::int64_t decimals = whole(arguments[1]);
  if (decimals < 0 || decimals > mostDecimals) throw languageError(runtime::InvalidCall);
  if (isWhole(arguments[0])) return sqlite3_result_int64(context, whole(arguments[0]));
  const double factor = std::pow(10.0, static_cast<double>(decimals));
  returnDouble(context, std::nearbyint(number(arguments[0]) * factor) / factor);
}

constexpr SqliteFunction functions[] = {
    {"jet_check_long", 1, nullIfAnyIsNull<checkLong>},
    {"jet_check_currency", 1, nullIfAnyIsNull<checkCurrency>},
    {"jet_check_single", 1, nullIfAnyIsNull<checkSingle>},
    {"jet_check_double", 1, nullIfAnyIsNull<checkDouble>},
    {"jet_power", 2, nullIfAnyIsNull<power>},
    {"jet_divide", 2, nullIfAnyIsNull<divide>},
    {"jet_integer_divide", 2, nullIfAnyIsNull<integerDivide>},
    {"jet_modulo", 2, nullIfAnyIsNull<modulo>},
    {"jet_multiply_currency", 2, nullIfAnyIsNull<multiplyCurrency>},
    {"jet_add_decimal", 2, nullIfAnyIsNull<addDecimal>},
    {"jet_subtract_decimal", 2, nullIfAnyIsNull<subtractDecimal>},
    {"jet_multiply_decimal", 2, nullIfAnyIsNull<multiplyDecimal>},
    {"jet_int", 1, nullIfAnyIsNull<roundWith<std::floor>>},
    {"jet_fix", 1, nullIfAnyIsNull<roundWith<std::trunc>>},
    {"jet_round", 2, nullIfAnyIsNull<roundTo>},
};

int compareDigits(void*, int leftLength, const void* left, int rightLength, const void* right) {
  const std::string_view a(static_cast<const char*>(left), static_cast<std::size_t>(leftLength));
  const std::string_view b(static_cast<const char*>(right), static_cast<std::size_t>(rightLength));
  // A collation can't fail: what is no decimal, and no column holds, goes by its characters.
  try {
    return compareDecimals(a, b);
  } catch (const runtime::Error&) {
    return a.compare(b);
  }
}

}  // namespace

void registerArithmetic(sqlite3* connection) {
  registerAll(connection, functions);
  sqlite3_create_collation_v2(connection, "JETDECIMAL", SQLITE_UTF8, nullptr, compareDigits, nullptr);
}

}  // namespace jet::sql
