// A query's text written from its rows, clause by clause.
#include <algorithm>
#include <array>
#include <span>

#include "jet/sql/stored/from_text.h"
#include "jet/sql/stored/names.h"
#include "jet/sql/stored/row_values.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

namespace {

using namespace stored;

constexpr char NewLine[] = "\r\n";

/// Items with a comma between them.
class List {
 public:
  void add(const std::string& item) { text_ += (text_.empty() ? "" : ", ") + item; }
  bool empty() const { return text_.empty(); }
  const std::string& text() const { return text_; }
  std::string clause(const char* word) const { return empty() ? "" : NewLine + (word + text_); }

 private:
  std::string text_;
};

class QueryText {
 public:
  explicit QueryText(const StoredQuery& query);

  std::string text() const;

 private:
  using Attribute = QueryRow::Attribute;

  std::string body() const;
  std::string parameters() const;
  std::string select(const std::string& into) const;
  std::string crosstab() const;
  std::string append() const;
  std::string update() const;
  std::string deletion() const;
  std::string unionOfHalves() const;
  std::string asWritten() const;

  std::span<const QueryRow> all(Attribute attribute) const;
  const QueryRow* first(Attribute attribute) const;
  /// The expression of the only row of this kind, behind `word`.
  std::string clause(const char* word, Attribute attribute) const;
  bool option(std::int16_t bit) const { return (options_ & bit) != 0; }
  std::string predicate() const;
  std::string columns() const;
  std::string from(const char* word) const;
  std::string grouping() const;
  std::string sorting() const;
  std::string target() const;

  QueryKind kind_;
  std::vector<QueryRow> rows_;  // by attribute and order
  std::int16_t options_ = 0;
};

QueryText::QueryText(const StoredQuery& query) : kind_(query.kind), rows_(query.rows) {
  std::ranges::stable_sort(rows_, {},
                           [](const QueryRow& row) { return std::pair(row.attribute, row.order); });
  if (const auto* row = first(Attribute::Options)) options_ = row->flag.value_or(0);
}

std::span<const QueryRow> QueryText::all(Attribute attribute) const {
  struct ByAttribute {
    bool operator()(const QueryRow& row, Attribute wanted) const { return row.attribute < wanted; }
    bool operator()(Attribute wanted, const QueryRow& row) const { return wanted < row.attribute; }
  };
  const auto [begin, end] = std::equal_range(rows_.begin(), rows_.end(), attribute, ByAttribute{});
  return {begin, end};
}

const QueryRow* QueryText::first(Attribute attribute) const {
  const auto rows = all(attribute);
  return rows.empty() ? nullptr : &rows.front();
}

std::string QueryText::clause(const char* word, Attribute attribute) const {
  const auto* row = first(attribute);
  return row && row->expression ? NewLine + (word + *row->expression) : "";
}

std::string QueryText::text() const {
  kindFlag(kind_);
  if (kind_ == QueryKind::DataDefinition || kind_ == QueryKind::PassThrough) return asWritten();
  std::string text = parameters() + body();
  if (option(OwnerAccess)) text += std::string(NewLine) + "WITH OWNERACCESS OPTION";
  return text + ";" + NewLine;
}

std::string QueryText::body() const {
  switch (kind_) {
    case QueryKind::MakeTable:
      return select(" INTO " + target());
    case QueryKind::Append:
      return append();
    case QueryKind::Update:
      return update();
    case QueryKind::Delete:
      return deletion();
    case QueryKind::Crosstab:
      return crosstab();
    case QueryKind::Union:
      return unionOfHalves();
    default:
      return select("");
  }
}

/// The text ends with a NUL in the row.
std::string QueryText::asWritten() const {
  const auto* row = first(Attribute::Kind);
  const std::string text = row ? row->expression.value_or("") : "";
  return text.substr(0, text.find('\0'));
}

std::string QueryText::parameters() const {
  List list;
  for (const auto& row : all(Attribute::Parameter)) {
    const std::string size = row.size ? " ( " + std::to_string(*row.size) + " )" : "";
    list.add(shownPath(row.name1.value_or("")) + " " + std::string(parameterTypeName(row.flag.value_or(0))) +
             size);
  }
  return list.empty() ? "" : "PARAMETERS " + list.text() + ";" + NewLine;
}

std::string QueryText::predicate() const {
  std::string text;
  if (option(Distinct)) text += "DISTINCT ";
  if (option(DistinctRow)) text += "DISTINCTROW ";
  if (!option(HasTop)) return text;
  text += "TOP " + first(Attribute::Options)->name1.value_or("");
  return text + (option(TopPercent) ? " PERCENT " : " ");
}

std::string QueryText::columns() const {
  List list;
  for (const auto& row : all(Attribute::Output))
    if (row.expression) list.add(*row.expression + (row.name1 ? " AS " + shownName(*row.name1) : ""));
  if (option(AllColumns)) list.add("*");
  return list.text();
}

std::string QueryText::from(const char* word) const {
  const std::string sources = fromText(all(Attribute::Source), all(Attribute::Join));
  if (sources.empty()) return {};
  const auto* other = first(Attribute::OtherDatabase);
  return word + sources + (other ? otherDatabaseText(other->name1, other->expression) : "");
}

/// A crosstab query groups by the heading of its columns without saying so.
std::string QueryText::grouping() const {
  List list;
  for (const auto& row : all(Attribute::GroupBy))
    if (kind_ != QueryKind::Crosstab || row.flag.value_or(0) == RowHeading)
      list.add(row.expression.value_or(""));
  return list.clause("GROUP BY ");
}

std::string QueryText::sorting() const {
  List list;
  for (const auto& row : all(Attribute::OrderBy))
    list.add(row.expression.value_or("") + (row.name1 == Descending ? " DESC" : ""));
  return list.clause("ORDER BY ");
}

std::string QueryText::target() const {
  const auto* row = first(Attribute::Kind);
  if (!row) return {};
  return shownName(row->name1.value_or("")) + otherDatabaseText(row->name2, row->expression);
}

std::string QueryText::select(const std::string& into) const {
  return "SELECT " + predicate() + columns() + into + from("\r\nFROM ") + clause("WHERE ", Attribute::Where) +
         grouping() + clause("HAVING ", Attribute::Having) + sorting();
}

std::string QueryText::crosstab() const {
  List values, headings, pivots;
  for (const auto& row : all(Attribute::Output)) {
    const std::string value = row.expression.value_or("");
    const std::string named = value + (row.name1 ? " AS " + shownName(*row.name1) : "");
    switch (row.flag.value_or(CrosstabValue)) {
      case PivotColumn:
        pivots.add(value);
        break;
      case RowHeading:
        headings.add(named);
        break;
      default:
        values.add(named);
    }
  }
  return "TRANSFORM " + values.text() + NewLine + "SELECT " + predicate() + headings.text() +
         from("\r\nFROM ") + clause("WHERE ", Attribute::Where) + grouping() +
         clause("HAVING ", Attribute::Having) + sorting() + pivots.clause("PIVOT ");
}

std::string QueryText::append() const {
  List columns, values;
  for (const auto& row : all(Attribute::Output)) {
    if (row.name2) columns.add(shownPath(*row.name2));
    if (row.flag == ValueOutput) values.add(row.expression.value_or(""));
  }
  std::string text = "INSERT INTO " + target();
  if (!columns.empty()) text += " ( " + columns.text() + " )";
  text += NewLine;
  return text + (values.empty() ? select("") : "VALUES (" + values.text() + ")");
}

std::string QueryText::update() const {
  List assignments;
  for (const auto& row : all(Attribute::Output))
    assignments.add(shownPath(row.name2.value_or("")) + " = " + row.expression.value_or(""));
  return "UPDATE " + predicate() + from("") + " SET " + assignments.text() +
         clause("WHERE ", Attribute::Where);
}

std::string QueryText::deletion() const {
  return "DELETE " + predicate() + columns() + from("\r\nFROM ") + clause("WHERE ", Attribute::Where);
}

std::string QueryText::unionOfHalves() const {
  std::array<std::string, 2> halves;
  for (const auto& row : all(Attribute::Source))
    for (std::size_t i = 0; i < halves.size(); ++i)
      if (row.name2 == UnionHalves[i]) halves[i] = row.expression.value_or("");
  if (!halves[0].ends_with('\n')) halves[0] += NewLine;
  const bool unionAll = option(AllColumns) && !option(Distinct);
  return halves[0] + (unionAll ? "UNION ALL " : "UNION ") + halves[1] + sorting();
}

}  // namespace

std::string queryText(const StoredQuery& query) {
  return QueryText(query).text();
}

}  // namespace jet::sql
