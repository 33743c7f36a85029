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

struct AggregateFunction {
  const char* name;
  int arguments;
  FunctionBody step;
  void (*finish)(sqlite3_context*);
};

constexpr AggregateFunction functions[] = {
    {"jet_first", 2, stepExtreme<false>, finishExtreme},
    {"jet_last", 2, stepExtreme<true>, finishExtreme},
    {"jet_sum_decimal", 1, stepSum, finishSum},
};

}  // namespace

void registerAggregates(sqlite3* connection) {
  for (const AggregateFunction& function : functions) {
    sqlite3_create_function_v2(connection, function.name, function.arguments,
                               SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, nullptr, function.step,
                               function.finish, nullptr);
  }
}

}  // namespace jet::sql
