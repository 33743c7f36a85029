// Default values of the columns that an INSERT leaves out.
#include <algorithm>

#include "jet/sql/binder/binder.h"
#include "jet/sql/parser/parser.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

std::vector<bound::Assignment> Binder::defaults(const file::TableDefinition& table,
                                                const std::vector<bound::Assignment>& assigned,
                                                std::size_t position) {
  std::vector<bound::Assignment> result;
  for (const file::Column& column : table.columns) {
    if (column.autoNumber()) continue;
    if (std::ranges::find(assigned, column.number, &bound::Assignment::column) != assigned.end()) continue;
    if (auto value = defaultValue(table, column, position)) {
      result.push_back({column.number, store(std::move(*value), column)});
    }
  }
  return result;
}

std::optional<bound::Expression> Binder::defaultValue(const file::TableDefinition& table,
                                                      const file::Column& column, std::size_t position) {
  const std::string kept = context_.schema().defaultOf(table, column);
  std::string_view text = kept;
  while (text.starts_with(' ') || text.starts_with('=')) text.remove_prefix(1);
  if (text.empty()) return std::nullopt;
  const std::string name = table.name + "." + column.name + " = " + kept;
  try {
    Context alone = context_.apart();  // the names of the statement mean nothing in it
    bound::Expression value = Binder(alone, nullptr).expression(parseExpression(text));
    if (!alone.parameters().empty() || !alone.tables().empty()) {
      throw SyntaxError(UnknownReference, name, position);
    }
    return value;
  } catch (const SyntaxError& error) {
    if (error.number() == UnknownReference) throw;
    throw SyntaxError(error.number(), error.description() + " - valore predefinito " + name, position);
  }
}

}  // namespace jet::sql
