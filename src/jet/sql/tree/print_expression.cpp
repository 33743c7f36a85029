// Expressions printed back as Jet SQL.
#include "jet/sql/tree/print.h"
#include "jet/sql/tree/query.h"
#include "runtime/join.h"
#include "runtime/text.h"

namespace jet::sql::tree {

std::string quotedName(std::string_view text) {
  const bool bracket = text.find(']') != std::string_view::npos;
  const char* quotes = bracket ? "``" : "[]";
  return quotes[0] + std::string(text) + quotes[1];
}

namespace {

/// What stands alone needs no parentheses as an operand.
bool standsAlone(const Expression& expression) {
  return std::holds_alternative<Literal>(expression.node) || std::holds_alternative<Name>(expression.node) ||
         std::holds_alternative<Call>(expression.node) || std::holds_alternative<Subquery>(expression.node);
}

std::string operand(const Expression& expression) {
  return standsAlone(expression) ? print(expression) : "(" + print(expression) + ")";
}

/// A chain of one operator goes without parentheses, so that it may be longer than parentheses may nest.
template <class Operation>
std::string printOperation(const Operation& operation) {
  const auto* chained = std::get_if<Operation>(&operation.left->node);
  const bool chain = chained && chained->op == operation.op;
  return (chain ? print(*operation.left) : operand(*operation.left)) + " " + symbol(operation.op) + " " +
         operand(*operation.right);
}

std::string printList(const std::vector<Expression>& items) {
  return "(" + runtime::join(items, ", ", [](const Expression& item) { return print(item); }) + ")";
}

const char* notIf(bool negated) {
  return negated ? " NOT" : "";
}

std::string printNode(const Literal& literal) {
  switch (literal.kind) {
    case Literal::Kind::Null:
      return "NULL";
    case Literal::Kind::Text:
      return runtime::quoted(literal.text);
    case Literal::Kind::Date:
      return "#" + literal.text + "#";
    default:
      return literal.text;
  }
}

std::string printNode(const Name& name) {
  return (name.table.empty() ? "" : quotedName(name.table) + ".") + quotedName(name.column);
}

std::string printNode(const Negation& node) {
  return "-" + operand(*node.operand);
}
std::string printNode(const Arithmetic& node) {
  return printOperation(node);
}
std::string printNode(const Concatenation& node) {
  const bool chain = std::holds_alternative<Concatenation>(node.left->node);
  return (chain ? print(*node.left) : operand(*node.left)) + " & " + operand(*node.right);
}
std::string printNode(const Comparison& node) {
  return printOperation(node);
}
std::string printNode(const Logic& node) {
  return printOperation(node);
}
std::string printNode(const Not& node) {
  return "NOT " + operand(*node.operand);
}

std::string printNode(const Like& node) {
  return operand(*node.value) + notIf(node.negated) + (node.ansi ? " ALIKE " : " LIKE ") +
         operand(*node.pattern);
}

std::string printNode(const Between& node) {
  return operand(*node.value) + notIf(node.negated) + " BETWEEN " + operand(*node.low) + " AND " +
         operand(*node.high);
}

std::string printNode(const InList& node) {
  return operand(*node.value) + notIf(node.negated) + " IN " + printList(node.items);
}

std::string printNode(const InQuery& node) {
  return operand(*node.value) + notIf(node.negated) + " IN (" + print(*node.query) + ")";
}

std::string printNode(const QuantifiedComparison& node) {
  return operand(*node.value) + " " + symbol(node.op) + (node.all ? " ALL (" : " ANY (") +
         print(*node.query) + ")";
}

std::string printNode(const IsNull& node) {
  return operand(*node.operand) + " IS" + notIf(node.negated) + " NULL";
}

std::string printNode(const Call& node) {
  return node.name + (node.star ? "(*)" : printList(node.arguments));
}
std::string printNode(const Exists& node) {
  return "EXISTS (" + print(*node.query) + ")";
}
std::string printNode(const Subquery& node) {
  return "(" + print(*node.query) + ")";
}

}  // namespace

std::string print(const Expression& expression) {
  return std::visit([](const auto& node) { return printNode(node); }, expression.node);
}

}  // namespace jet::sql::tree
