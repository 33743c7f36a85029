// Aggregates that SQLite lacks: First, Last, spread, sums of decimal numbers.
#include <cmath>
#include <new>
#include <optional>

#include "jet/image/decimal.h"
#include "jet/sql/decimal.h"
#include "jet/sql/function_support.h"

namespace jet::sql {

namespace {

/// The state of one group, made by the first row. SQLite gives zeroed bytes for a pointer to it.
template <class State>
State* stateOf(sqlite3_context* context, bool make) {
  auto** held = static_cast<State**>(sqlite3_aggregate_context(context, make ? sizeof(State*) : 0));
  if (!held) return nullptr;
  if (!*held && make) *held = new (std::nothrow) State();
  return *held;
}

/// The value of the row with the smallest or the largest key.
struct ExtremeRow {
  std::int64_t key = 0;
  sqlite3_value* value = nullptr;
};

template <bool last>
void stepExtreme(sqlite3_context* context, int, sqlite3_value** arguments) {
  auto* state = stateOf<ExtremeRow>(context, true);
  if (!state) return sqlite3_result_error_nomem(context);
  const std::int64_t key = sqlite3_value_int64(arguments[1]);
  if (state->value && (last ? key < state->key : key >= state->key)) return;
  sqlite3_value_free(state->value);
  *state = {key, sqlite3_value_dup(arguments[0])};
}

void finishExtreme(sqlite3_context* context) {
  auto* state = stateOf<ExtremeRow>(context, false);
  if (!state) return sqlite3_result_null(context);
  if (state->value) sqlite3_result_value(context, state->value);
  sqlite3_value_free(state->value);
  delete state;
}

struct DecimalSum {
  std::optional<runtime::Decimal> sum;
};

void stepSum(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (sqlite3_value_type(arguments[0]) == SQLITE_NULL) return;
  auto* state = stateOf<DecimalSum>(context, true);
  if (!state) return sqlite3_result_error_nomem(context);
  try {
    const runtime::Decimal value = parseDecimal(textOf(arguments[0]));
    state->sum = state->sum ? addDecimals(*state->sum, value) : value;
  } catch (const runtime::Error& error) {
    returnError(context, error);
  }
}

void finishSum(sqlite3_context* context) {
  auto* state = stateOf<DecimalSum>(context, false);
  if (!state || !state->sum) {
    sqlite3_result_null(context);
  } else {
    returnText(context, image::decimalText(*state->sum));
  }
  delete state;
}

/// Mean and sum of the squares of what differs from it, kept as the rows come.
struct Spread {
  std::int64_t count = 0;
  double mean = 0, squares = 0;
};

void stepSpread(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (sqlite3_value_type(arguments[0]) == SQLITE_NULL) return;
  auto* state = static_cast<Spread*>(sqlite3_aggregate_context(context, sizeof(Spread)));
  if (!state) return sqlite3_result_error_nomem(context);
  const double value = sqlite3_value_double(arguments[0]), difference = value - state->mean;
  state->mean += difference / static_cast<double>(++state->count);
  state->squares += difference * (value - state->mean);
}

/// Of the rows as the whole, or as a sample of it, of which one row tells nothing.
template <bool sample, bool root>
void finishSpread(sqlite3_context* context) {
  const auto* state = static_cast<Spread*>(sqlite3_aggregate_context(context, 0));
  const std::int64_t divisor = state ? state->count - sample : 0;
  if (divisor < 1) return sqlite3_result_null(context);
  const double variance = state->squares / static_cast<double>(divisor);
  sqlite3_result_double(context, root ? std::sqrt(variance) : variance);
}

struct AggregateFunction {
  const char* name;
  int arguments;
  FunctionBody step;
  void (*finish)(sqlite3_context*);
};

constexpr AggregateFunction AggregateFunctions[] = {
    {"jet_first", 2, stepExtreme<false>, finishExtreme},
    {"jet_last", 2, stepExtreme<true>, finishExtreme},
    {"jet_sum_decimal", 1, stepSum, finishSum},
    {"jet_st_dev", 1, stepSpread, finishSpread<true, true>},
    {"jet_st_dev_p", 1, stepSpread, finishSpread<false, true>},
    {"jet_var", 1, stepSpread, finishSpread<true, false>},
    {"jet_var_p", 1, stepSpread, finishSpread<false, false>},
};

}  // namespace

void registerAggregates(sqlite3* connection) {
  for (const AggregateFunction& function : AggregateFunctions) {
    sqlite3_create_function_v2(connection, function.name, function.arguments,
                               SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, nullptr, function.step,
                               function.finish, nullptr);
  }
}

}  // namespace jet::sql
