// Conversions between types: what an expression converts to, and what a column keeps.
#include <array>

#include "jet/sql/function_support.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

namespace {

using runtime::Variant;

struct Pair {
  Type from, to;
};

/// What registrations point at.
const std::array<Pair, TypeCount * TypeCount>& pairs() {
  static const auto all = [] {
    std::array<Pair, TypeCount * TypeCount> list{};
    for (unsigned i = 0; i < list.size(); ++i) {
      list[i] = {static_cast<Type>(i / TypeCount), static_cast<Type>(i % TypeCount)};
    }
    return list;
  }();
  return all;
}

/// A conversion that fails is error `mismatch` and names the types.
template <class Convert>
void guard(sqlite3_context* context, const Pair& pair, int mismatch, Convert convert) {
  try {
    convert();
  } catch (const runtime::Error& error) {
    if (error.number() != runtime::TypeMismatch) return returnError(context, error);
    returnError(context, {mismatch, source::Field,
                          std::string("Conversione non riuscita da ") + typeName(pair.from) + " a " +
                              typeName(pair.to)});
  } catch (const std::bad_alloc&) {
    sqlite3_result_error_nomem(context);
  }
}

/// jet_<from>_to_<to>(value)
void convert(sqlite3_context* context, int, sqlite3_value** arguments) {
  const auto& pair = *static_cast<const Pair*>(sqlite3_user_data(context));
  if (sqlite3_value_type(arguments[0]) == SQLITE_NULL) return sqlite3_result_null(context);
  guard(context, pair, TypesDiffer, [&] {
    encodeValue(image::Result{context}, decodeValue(image::Argument{arguments[0]}, pair.from), pair.to);
  });
}

/// jet_<from>_into_<to>(value[, size | precision, scale]): what a column keeps of an assigned value.
void store(sqlite3_context* context, int count, sqlite3_value** arguments) {
  constexpr int conversionFailed = ConversionFailed;
  const auto& pair = *static_cast<const Pair*>(sqlite3_user_data(context));
  if (sqlite3_value_type(arguments[0]) == SQLITE_NULL) {
    return pair.to == Type::Boolean ? sqlite3_result_int(context, 0) : sqlite3_result_null(context);
  }
  ColumnRule rule{pair.to};
  if (count == 2) rule.size = static_cast<std::size_t>(sqlite3_value_int(arguments[1]));
  if (count == 3)
    rule.precision = sqlite3_value_int(arguments[1]), rule.scale = sqlite3_value_int(arguments[2]);
  // A text never has more characters than bytes: most need not be read, however many rows there are.
  if (isText(pair.from) && isText(pair.to) && count == 2 &&
      sqlite3_value_bytes(arguments[0]) <= sqlite3_value_int(arguments[1])) {
    return sqlite3_result_value(context, arguments[0]);
  }
  guard(context, pair, conversionFailed, [&] {
    encodeAssigned(image::Result{context}, decodeValue(image::Argument{arguments[0]}, pair.from), rule);
  });
}

}  // namespace

void registerConversions(sqlite3* connection) {
  constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
  for (const Pair& pair : pairs()) {
    void* data = const_cast<Pair*>(&pair);
    const std::string from = std::string("jet_") + typeName(pair.from), to = typeName(pair.to);
    sqlite3_create_function_v2(connection, (from + "_to_" + to).c_str(), 1, flags, data, convert, nullptr,
                               nullptr, nullptr);
    sqlite3_create_function_v2(connection, (from + "_into_" + to).c_str(), -1, flags, data, store, nullptr,
                               nullptr, nullptr);
  }
}

}  // namespace jet::sql
