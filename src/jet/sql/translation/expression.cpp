// Expressions in SQLite's SQL: dispatch to the noun, columns, literals.
#include <cstdio>

#include "jet/sql/translation/translator.h"
#include "runtime/join.h"
#include "runtime/text.h"

namespace jet::sql {

namespace {

using bound::Expression;

/// Nodes that SQLite answers with 1 or 0, where the image keeps -1 or 0.
bool isCondition(const Expression& expression) {
  return std::visit(
      []<class Node>(const Node&) {
        return std::is_same_v<Node, bound::Comparison> || std::is_same_v<Node, bound::Logic> ||
               std::is_same_v<Node, bound::Not> || std::is_same_v<Node, bound::Like> ||
               std::is_same_v<Node, bound::Between> || std::is_same_v<Node, bound::InList> ||
               std::is_same_v<Node, bound::InQuery> || std::is_same_v<Node, bound::AnyOf> ||
               std::is_same_v<Node, bound::IsNull> || std::is_same_v<Node, bound::Exists>;
      },
      expression.node);
}

}  // namespace

std::string within(Sql sql, Strength least) {
  return sql.strength < least ? "(" + sql.text + ")" : std::move(sql.text);
}

bool isStored(const Expression& expression) {
  const auto* column = std::get_if<bound::Column>(&expression.node);
  return std::holds_alternative<bound::Literal>(expression.node) || (column && !column->ofQuery);
}

std::string columnName(const bound::Column& column) {
  return (column.ofQuery ? "x" : "c") + std::to_string(column.number);
}

Sql booleanValue(Sql condition) {
  return {"-" + within(std::move(condition), Strength::Whole), Strength::Sign};
}

Sql withCollation(Sql sql, Type type) {
  const char* collation = isText(type)            ? " COLLATE JET"
                          : type == Type::Decimal ? " COLLATE JETDECIMAL"
                                                  : nullptr;
  if (!collation) return sql;
  return {within(std::move(sql), Strength::Collation) + collation, Strength::Collation};
}

Sql Translator::condition(const Expression& expression) {
  return std::visit([&](const auto& node) { return translate(node, expression.type); }, expression.node);
}

Sql Translator::value(const Expression& expression) {
  return isCondition(expression) ? booleanValue(condition(expression)) : condition(expression);
}

Sql Translator::asLong(const Expression& expression) {
  Sql sql = value(expression);
  return isStored(expression) ? std::move(sql) : Sql{"jet_check_long(" + sql.text + ")"};
}

Sql Translator::ordered(const Expression& expression) {
  const auto* column = std::get_if<bound::Column>(&expression.node);
  const bool lost = spool_ && column && column->source != spool_->target;
  Sql sql = value(expression);
  // Alone, a whole number would be the place of a column.
  if (sql.text.find_first_not_of("0123456789-() ") == std::string::npos)
    return {sql.text + " + 0", Strength::Sum};
  return column && column->collated && !lost ? sql : withCollation(std::move(sql), expression.type);
}

std::string Translator::rule(const Expression& rule) {
  newRow_ = true;
  std::string text = condition(rule).text;
  newRow_ = false;
  return text;
}

std::string Translator::list(const std::vector<Expression>& expressions) {
  return runtime::join(expressions, ", ",
                       [&](const Expression& expression) { return value(expression).text; });
}

Sql Translator::translate(const bound::Literal& node, Type) {
  if (const auto* text = std::get_if<std::string>(&node.value)) return {runtime::quoted(*text)};
  if (const auto* whole = std::get_if<std::int64_t>(&node.value)) {
    return {std::to_string(*whole), *whole < 0 ? Strength::Sign : Strength::Whole};
  }
  const auto* real = std::get_if<double>(&node.value);
  if (!real) return {"NULL"};
  char digits[40];
  std::snprintf(digits, sizeof digits, "%.17g", *real);
  std::string text = digits;
  if (text.find_first_of(".e") == std::string::npos) text += ".0";
  return {std::move(text), *real < 0 ? Strength::Sign : Strength::Whole};
}

Sql Translator::translate(const bound::Column& node, Type) {
  if (spool_) return {spooled(node)};
  if (newRow_) return {"NEW." + columnName(node)};
  return {"a" + std::to_string(node.source) + "." + columnName(node)};
}

Sql Translator::translate(const bound::Parameter& node, Type) {
  return {"?" + std::to_string(node.index + 1)};
}

}  // namespace jet::sql
