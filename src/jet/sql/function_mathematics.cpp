// Roots, logarithms and angles.
#include <cmath>

#include "jet/sql/function_support.h"
#include "runtime/random.h"

namespace jet::sql {

namespace {

using runtime::languageError;

double exponential(double value) {
  const double result = std::exp(value);
  if (!std::isfinite(result)) throw languageError(runtime::Overflow);
  return result;
}

double logarithm(double value) {
  if (!(value > 0)) throw languageError(runtime::InvalidCall);
  return std::log(value);
}

double squareRoot(double value) {
  if (!(value >= 0)) throw languageError(runtime::InvalidCall);
  return std::sqrt(value);
}

template <double (*function)(double)>
void compute(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_result_double(context, function(sqlite3_value_double(arguments[0])));
}

void nextRandom(sqlite3_context* context, int count, sqlite3_value** arguments) {
  auto& random = *static_cast<runtime::Random*>(sqlite3_user_data(context));
  const double argument = count == 1 ? sqlite3_value_double(arguments[0]) : 1;
  sqlite3_result_double(context, static_cast<double>(random.next(static_cast<float>(argument))));
}

constexpr SqliteFunction MathematicsFunctions[] = {
    {"jet_atn", 1, nullIfAnyIsNull<compute<std::atan>>},
    {"jet_cos", 1, nullIfAnyIsNull<compute<std::cos>>},
    {"jet_sin", 1, nullIfAnyIsNull<compute<std::sin>>},
    {"jet_tan", 1, nullIfAnyIsNull<compute<std::tan>>},
    {"jet_exp", 1, nullIfAnyIsNull<compute<exponential>>},
    {"jet_log", 1, nullIfAnyIsNull<compute<logarithm>>},
    {"jet_sqr", 1, nullIfAnyIsNull<compute<squareRoot>>},
};

}  // namespace

void registerMathematics(sqlite3* connection) {
  registerAll(connection, MathematicsFunctions);
  // The row of numbers belongs to the open database.
  sqlite3_create_function_v2(connection, "jet_rnd", -1, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
                             new runtime::Random, nullIfAnyIsNull<nextRandom>, nullptr, nullptr,
                             [](void* random) { delete static_cast<runtime::Random*>(random); });
}

}  // namespace jet::sql
