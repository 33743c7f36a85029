// FROM written from rows of sources and joins: a tree grows, join by join.
#include "jet/sql/stored/from_text.h"

#include <algorithm>
#include <memory>

#include "jet/file/definition.h"
#include "jet/sql/parser/token.h"
#include "jet/sql/stored/names.h"
#include "jet/sql/stored/row_values.h"
#include "jet/sql/syntax_error.h"
#include "jet/sql/tree/print.h"
#include "runtime/join.h"
#include "runtime/text.h"

namespace jet::sql::stored {

namespace {

constexpr std::size_t MaximumRows = 1000;

/// A source or a join of two.
struct Node {
  std::string name, text;  // of a source
  std::int16_t kind = 0;   // of a join; 0 for a source
  std::unique_ptr<Node> left, right;
  std::vector<std::string> conditions;
};
using NodePtr = std::unique_ptr<Node>;

bool isQuery(std::string_view expression) {
  const std::size_t first = expression.find_first_not_of(" \t\r\n(");
  if (first == std::string_view::npos) return false;
  const auto begins = [&](std::string_view word) {
    return sameWord(expression.substr(first, word.size()), word);
  };
  return begins("SELECT") || begins("TABLE ");
}

/// Without blanks and semicolons at the end.
std::string_view bare(std::string_view query) {
  return query.substr(0, query.find_last_not_of(" \t\r\n;") + 1);
}

std::string sourceText(const QueryRow& row) {
  std::string text;
  if (row.expression && isQuery(*row.expression))
    text = "(" + std::string(bare(*row.expression)) + ")";
  else if (row.expression)
    text = tree::quotedName(*row.expression) + "." + shownName(row.name1.value_or(""));
  else
    text = shownName(row.name1.value_or(""));
  return row.name2 ? text + " AS " + shownName(*row.name2) : text;
}

bool contains(const Node& node, std::string_view name) {
  if (node.kind == 0) return file::sameName(node.name, name);
  return contains(*node.left, name) || contains(*node.right, name);
}

/// The innermost join that has both names.
Node& joinOf(Node& node, std::string_view a, std::string_view b) {
  for (const auto* side : {&node.left, &node.right})
    if ((*side)->kind != 0 && contains(**side, a) && contains(**side, b)) return joinOf(**side, a, b);
  return node;
}

std::string text(const Node& node) {
  static constexpr const char* words[] = {" INNER JOIN ", " LEFT JOIN ", " RIGHT JOIN "};
  if (node.kind == 0) return node.text;
  const auto side = [](const Node& operand) {
    return operand.kind == 0 ? text(operand) : "(" + text(operand) + ")";
  };
  std::string result = side(*node.left) + words[node.kind - 1] + side(*node.right) + " ON ";
  if (node.conditions.size() == 1) return result + node.conditions.front();
  // They are kept last first.
  for (auto condition = node.conditions.rbegin(); condition != node.conditions.rend(); ++condition)
    result += (condition == node.conditions.rbegin() ? "(" : " AND (") + *condition + ")";
  return result;
}

class Joining {
 public:
  explicit Joining(std::span<const QueryRow> sources) {
    for (const auto& row : sources) {
      auto node = std::make_unique<Node>();
      node->name = row.name2 ? *row.name2 : row.name1.value_or("");
      node->text = sourceText(row);
      nodes_.push_back(std::move(node));
    }
  }

  void join(const QueryRow& row) {
    const std::string left = row.name1.value_or(""), right = row.name2.value_or("");
    const std::int16_t kind = row.flag.value_or(0);
    if (kind < InnerJoin || kind > RightJoin) contradict(left, right);
    const std::size_t a = find(left), b = find(right);
    if (a != b) {
      auto joined = std::make_unique<Node>();
      joined->kind = kind;
      joined->left = std::move(nodes_[a]);
      joined->right = std::move(nodes_[b]);
      joined->conditions.push_back(row.expression.value_or(""));
      nodes_[a] = std::move(joined);
      nodes_.erase(nodes_.begin() + static_cast<std::ptrdiff_t>(b));
      return;
    }
    if (nodes_[a]->kind == 0) contradict(left, right);
    Node& same = joinOf(*nodes_[a], left, right);
    if (same.kind != kind) contradict(left, right);
    same.conditions.push_back(row.expression.value_or(""));
  }

  std::string result() const {
    return runtime::join(nodes_, ", ", [](const NodePtr& node) { return text(*node); });
  }

 private:
  [[noreturn]] static void contradict(const std::string& left, const std::string& right) {
    throw SyntaxError(FromSyntax, "unione tra " + left + " e " + right, 0);
  }

  std::size_t find(const std::string& name) const {
    const auto found =
        std::ranges::find_if(nodes_, [&](const NodePtr& node) { return contains(*node, name); });
    if (found == nodes_.end()) throw SyntaxError(FromSyntax, name, 0);
    return static_cast<std::size_t>(found - nodes_.begin());
  }

  std::vector<NodePtr> nodes_;
};

}  // namespace

std::string otherDatabaseText(const std::optional<std::string>& path,
                              const std::optional<std::string>& type) {
  if (!path && !type) return {};
  return " IN " + runtime::quoted(path.value_or("")) + (type ? " " + tree::quotedName(*type) : "");
}

std::string fromText(std::span<const QueryRow> sources, std::span<const QueryRow> joins) {
  if (sources.size() + joins.size() > MaximumRows) throw SyntaxError(TooComplex, "", 0);
  Joining joining(sources);
  for (const auto& row : joins) joining.join(row);
  return joining.result();
}

}  // namespace jet::sql::stored
