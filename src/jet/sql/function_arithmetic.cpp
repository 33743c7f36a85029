// Arithmetic that fails where the engine's does, and money's.
#include <cmath>
#include <limits>

#include "jet/image/decimal.h"
#include "jet/sql/decimal.h"
#include "jet/sql/function_support.h"
#include "runtime/date.h"
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

void checkWhole(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (isWhole(arguments[0])) return sqlite3_result_value(context, arguments[0]);
  returnDouble(context, number(arguments[0]));
}

void checkDate(sqlite3_context* context, int, sqlite3_value** arguments) {
  const double days = number(arguments[0]);
  if (!runtime::isInCalendar({days})) throw languageError(runtime::Overflow);
  sqlite3_result_double(context, days);
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

template <class Compute>
void computeDecimals(sqlite3_context* context, sqlite3_value** arguments, Compute compute) {
  const runtime::Decimal left = parseDecimal(textOf(arguments[0])),
                         right = parseDecimal(textOf(arguments[1]));
  returnText(context, image::decimalText(compute(left, right)));
}

void addDecimal(sqlite3_context* context, int, sqlite3_value** arguments) {
  computeDecimals(context, arguments, addDecimals);
}

void subtractDecimal(sqlite3_context* context, int, sqlite3_value** arguments) {
  computeDecimals(context, arguments, [](const runtime::Decimal& left, runtime::Decimal right) {
    right.negative = !right.negative;
    return addDecimals(left, right);
  });
}

void multiplyDecimal(sqlite3_context* context, int, sqlite3_value** arguments) {
  computeDecimals(context, arguments, multiplyDecimals);
}

constexpr std::int64_t MoneyUnit = 10000;

std::int64_t roundMoney(std::int64_t amount, std::int64_t decimals, Rounding rounding) {
  constexpr int moneyPlaces = 4;
  if (rounding == Rounding::HalfEven) return runtime::roundTo(amount, moneyPlaces, decimals);
  const std::int64_t rest = amount % MoneyUnit;
  return amount - rest - (rounding == Rounding::Floor && rest < 0 ? MoneyUnit : 0);
}

double roundDouble(double value, std::int64_t decimals, Rounding rounding) {
  if (rounding == Rounding::HalfEven) return runtime::roundTo(value, decimals);
  return rounding == Rounding::Floor ? std::floor(value) : std::trunc(value);
}

/// (type, number[, decimals]); a whole number is its own result.
template <Rounding rounding>
void round(sqlite3_context* context, int count, sqlite3_value** arguments) {
  constexpr std::int64_t mostDecimals = 22;
  const std::int64_t decimals = count == 3 ? whole(arguments[2]) : 0;
  if (decimals < 0 || decimals > mostDecimals) throw languageError(runtime::InvalidCall);
  switch (typeArgument(arguments[0])) {
    case Type::Currency:
      return sqlite3_result_int64(context, roundMoney(whole(arguments[1]), decimals, rounding));
    case Type::Decimal: {
      const runtime::Decimal value = parseDecimal(textOf(arguments[1]));
      return returnText(context,
                        image::decimalText(roundDecimal(value, static_cast<int>(decimals), rounding)));
    }
    default:
      if (isWhole(arguments[1])) return sqlite3_result_int64(context, whole(arguments[1]));
      return returnDouble(context, roundDouble(number(arguments[1]), decimals, rounding));
  }
}

/// (type, number); error 6 where the type has no room for the number without its sign.
void absolute(sqlite3_context* context, int, sqlite3_value** arguments) {
  const Type type = typeArgument(arguments[0]);
  if (type == Type::Decimal) {
    runtime::Decimal value = parseDecimal(textOf(arguments[1]));
    value.negative = false;
    return returnText(context, image::decimalText(value));
  }
  if (!isWhole(arguments[1])) return sqlite3_result_double(context, std::abs(number(arguments[1])));
  const std::int64_t limit = type == Type::Currency  ? INT64_MAX
                             : type == Type::Integer ? INT16_MAX
                                                     : INT32_MAX;
  const std::int64_t value = whole(arguments[1]);
  if (value < -limit) throw languageError(runtime::Overflow);
  sqlite3_result_int64(context, std::abs(value));
}

constexpr SqliteFunction ArithmeticFunctions[] = {
    {"jet_check_long", 1, nullIfAnyIsNull<checkLong>},
    {"jet_check_whole", 1, nullIfAnyIsNull<checkWhole>},
    {"jet_check_date", 1, nullIfAnyIsNull<checkDate>},
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
    {"jet_abs", 2, nullIfAnyIsNull<absolute>},
    {"jet_int", 2, nullIfAnyIsNull<round<Rounding::Floor>>},
    {"jet_fix", 2, nullIfAnyIsNull<round<Rounding::Truncate>>},
    {"jet_round", 2, nullIfAnyIsNull<round<Rounding::HalfEven>>},
    {"jet_round", 3, nullIfAnyIsNull<round<Rounding::HalfEven>>},
};

}  // namespace

void registerArithmetic(sqlite3* connection) {
  registerAll(connection, ArithmeticFunctions);
}

}  // namespace jet::sql
