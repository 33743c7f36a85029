// DLookup and its kin whose texts are known only when a row is read: compiled and run then.
#include <memory>

#include "jet/file/errors.h"
#include "jet/image/connection.h"
#include "jet/sql/domain.h"
#include "jet/sql/function_support.h"

namespace jet::sql {

namespace {

/// The value as a statement of the wanted type has it; a Variant has no money and no decimals.
void returnAs(sqlite3_context* context, sqlite3_stmt* row, Type type, Type wanted) {
  sqlite3_value* value = sqlite3_column_value(row, 0);
  const bool asDouble = wanted == Type::Variant && (type == Type::Currency || type == Type::Decimal);
  if (sqlite3_column_type(row, 0) == SQLITE_NULL) return sqlite3_result_null(context);
  if (asDouble) return sqlite3_result_double(context, readValue(value, type).toDouble());
  if (type == wanted || wanted == Type::Variant) return sqlite3_result_value(context, value);
  returnValue(context, readValue(value, type), wanted);
}

/// (type of the result, aggregate, expression, domain[, criteria])
void domainValue(sqlite3_context* context, int count, sqlite3_value** arguments) {
  const auto& compile = *static_cast<DomainCompiler*>(sqlite3_user_data(context));
  const RowStatement plan =
      compile(domainStatement(textOf(arguments[1]), textOf(arguments[2]), textOf(arguments[3]),
                              count > 4 ? textOf(arguments[4]) : std::string_view()));
  if (!plan.parameters.empty())
    throw runtime::Error(TooFewParameters, source::Database,
                         "Troppo pochi parametri: manca " + plan.parameters.front().name);
  sqlite3* connection = sqlite3_context_db_handle(context);
  sqlite3_stmt* prepared = nullptr;
  const int code = sqlite3_prepare_v2(connection, plan.sql.c_str(), -1, &prepared, nullptr);
  const std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> statement(prepared, sqlite3_finalize);
  if (code != SQLITE_OK) throw image::errorFromSqlite(connection);
  switch (sqlite3_step(prepared)) {
    case SQLITE_ROW:
      return returnAs(context, prepared, plan.columns.front().type, typeArgument(arguments[0]));
    case SQLITE_DONE:
      return sqlite3_result_null(context);
    default:
      throw image::errorFromSqlite(connection);
  }
}

}  // namespace

std::string domainStatement(std::string_view aggregate, std::string_view expression, std::string_view domain,
                            std::string_view criteria) {
  std::string text = "SELECT ";
  text += aggregate;
  text += aggregate.empty() ? " " : "(";
  text += expression;
  text += aggregate.empty() ? "" : ")";
  text += " FROM ";
  const bool quoted = domain.starts_with('[') || domain.starts_with('`');
  text += quoted ? "" : "[";
  text += domain;
  text += quoted ? "" : "]";
  if (!criteria.empty()) text += " WHERE ";
  return text += criteria;
}

void registerDomainFunction(sqlite3* connection, DomainCompiler compiler) {
  // The rows that it reads may change between two calls, so it is no deterministic function.
  sqlite3_create_function_v2(connection, "jet_domain", -1, SQLITE_UTF8,
                             new DomainCompiler(std::move(compiler)), withErrors<domainValue>, nullptr,
                             nullptr, [](void* held) { delete static_cast<DomainCompiler*>(held); });
}

}  // namespace jet::sql
