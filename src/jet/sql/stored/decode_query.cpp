// A query's text as the rows that a file keeps of it, divided at the words that begin clauses.
#include <algorithm>
#include <cstdlib>
#include <map>

#include "jet/file/errors.h"
#include "jet/sql/parser/parser.h"
#include "jet/sql/stored/from_rows.h"
#include "jet/sql/stored/row_values.h"
#include "jet/sql/stored/statement_text.h"

namespace jet::sql {

namespace {

using namespace stored;

/// The words that begin a clause, in the order in which clauses follow each other.
enum class Clause { Head, Select, Into, Set, From, Where, GroupBy, Having, OrderBy, Pivot, OwnerAccess };
struct ClauseWords {
  Clause clause;
  std::string_view first, second;  // the second may be empty
};
constexpr ClauseWords Words[] = {
    {Clause::Select, "SELECT", ""}, {Clause::Into, "INTO", ""},
    {Clause::Set, "SET", ""},       {Clause::From, "FROM", ""},
    {Clause::Where, "WHERE", ""},   {Clause::GroupBy, "GROUP", "BY"},
    {Clause::Having, "HAVING", ""}, {Clause::OrderBy, "ORDER", "BY"},
    {Clause::Pivot, "PIVOT", ""},   {Clause::OwnerAccess, "WITH", "OWNERACCESS"},
};

bool begins(const StatementText& text, std::size_t index, const ClauseWords& words) {
  return text.isWord(index, words.first) && (words.second.empty() || text.isWord(index + 1, words.second));
}

/// Divides `span` into what stands behind its first word and its clauses. `clauses` tells those that the
/// statement can have.
std::map<Clause, Span> divide(const StatementText& text, Span span, std::initializer_list<Clause> clauses) {
  std::map<Clause, Span> result;
  Clause current = Clause::Head;
  Span rest{span.begin + 1, span.end};
  for (const ClauseWords* found = nullptr;; current = found->clause) {
    found = nullptr;
    const std::size_t end = text.find(rest, [&](std::size_t i) {
      for (const auto& words : Words) {
        if (words.clause <= current || std::ranges::find(clauses, words.clause) == clauses.end()) continue;
        if (begins(text, i, words)) found = &words;
        if (found) return true;
      }
      return false;
    });
    result[current] = {rest.begin, end};
    if (!found) return result;
    rest.begin = end + (found->second.empty() ? 1 : 2);
  }
}

class QueryDecoder {
 public:
  explicit QueryDecoder(std::string_view sql) : text_(sql), sql_(sql) {}

  StoredQuery run();

 private:
  QueryKind body(Span statement);
  void parameters(Span list);
  void parameter(Span declaration);
  QueryKind query(Span statement);
  QueryKind single(Span statement);
  [[noreturn]] void cannotKeep(const char* what, std::size_t token) const;
  std::string columnName(std::size_t token) const;
  QueryKind select(Span statement, const std::vector<std::string>& targets);
  void unionHalves(Span statement, std::size_t last);
  QueryKind crosstab(Span statement);
  QueryKind append(Span statement);
  QueryKind update(Span statement);
  QueryKind deletion(Span statement);

  void predicate(Span& head);
  void outputs(Span list, const std::vector<std::string>& targets);
  QueryRow& output(Span item);
  void conditions(const std::map<Clause, Span>& clauses);
  void expressions(QueryRow::Attribute attribute, Span list, std::optional<std::int16_t> flag);
  void orderBy(Span list);
  void intoTable(Span target);

  StatementText text_;
  std::string_view sql_;
  Rows rows_;
  std::int16_t options_ = 0;
  std::optional<std::string> top_;
  QueryRow kindRow_;
};

StoredQuery QueryDecoder::run() {
  rows_.add(QueryRow::Start).flag = std::int16_t{0};
  Span statement = text_.whole();
  if (text_.isWord(0, "PARAMETERS")) {
    const std::size_t end = text_.findSymbol(statement, ";");
    parameters({1, end});
    statement.begin = end + 1;
  }
  const QueryKind kind = body(statement);
  kindRow_.attribute = QueryRow::Kind;
  kindRow_.flag = kindFlag(kind);
  if (kind != QueryKind::DataDefinition) {
    QueryRow& options = rows_.add(QueryRow::Options);
    options.flag = options_;
    options.name1 = top_;
  }
  rows_.add(QueryRow::Kind) = kindRow_;
  rows_.add(QueryRow::End);
  return {kind, rows_.take()};
}

QueryKind QueryDecoder::body(Span statement) {
  const std::size_t first = statement.begin;
  const bool isTable = text_.isWord(first, "TABLE");
  if (isTable || text_.isWord(first, "SELECT") || text_.at(first).isSymbol("(")) return query(statement);
  if (text_.isWord(first, "TRANSFORM")) return crosstab(statement);
  if (text_.isWord(first, "INSERT")) return append(statement);
  if (text_.isWord(first, "UPDATE")) return update(statement);
  if (text_.isWord(first, "DELETE")) return deletion(statement);
  kindRow_.expression = std::string(sql_) + '\0';
  return QueryKind::DataDefinition;
}

void QueryDecoder::parameters(Span list) {
  for (const Span declaration : text_.list(list)) parameter(declaration);
}

/// name type, or name type(size)
void QueryDecoder::parameter(Span declaration) {
  const std::size_t size = text_.findSymbol(declaration, "(");
  const std::size_t type = size - 1;
  QueryRow& row = rows_.add(QueryRow::Parameter);
  row.name1 = text_.names({declaration.begin, type});
  row.flag = parameterType(text_.at(type).text);
  if (size < declaration.end) row.size = std::atoi(text_.at(size + 1).text.c_str());
}

[[noreturn]] void QueryDecoder::cannotKeep(const char* what, std::size_t token) const {
  throw SyntaxError(InvalidStatement, std::string("non si può memorizzare ") + what,
                    text_.at(token).position);
}

/// The name of a column that gets a value. In the rows a dot or exclamation mark would divide it; no column
/// has one.
std::string QueryDecoder::columnName(std::size_t token) const {
  const std::string& name = text_.at(token).text;
  if (name.find_first_of(".!") != std::string::npos) cannotKeep("un campo con un punto nel nome", token);
  return name;
}

/// SELECT or TABLE
QueryKind QueryDecoder::single(Span statement) {
  if (text_.at(statement.begin).isSymbol("(")) cannotKeep("una SELECT tra parentesi", statement.begin);
  if (!text_.isWord(statement.begin, "TABLE")) return select(statement, {});
  options_ = AllColumns;
  FromRows(text_, rows_).add({statement.begin + 1, statement.end});
  return QueryKind::Select;
}

QueryKind QueryDecoder::query(Span statement) {
  std::size_t last = statement.end;
  for (Span rest = statement; rest.begin < rest.end; ++rest.begin) {
    rest.begin = text_.findWord(rest, "UNION");
    if (rest.begin < rest.end) last = rest.begin;
  }
  while (last == statement.end && text_.isParenthesised(statement)) statement = inside(statement);
  if (last == statement.end) return single(statement);
  unionHalves(statement, last);
  return QueryKind::Union;
}

/// Everything in front of the last UNION is the first half.
void QueryDecoder::unionHalves(Span statement, std::size_t last) {
  const bool all = text_.isWord(last + 1, "ALL");
  options_ = all ? AllColumns : AllColumns | Distinct;
  const Span second{last + (all ? 1 : 0), statement.end};
  auto clauses = divide(text_, second, {Clause::OrderBy, Clause::OwnerAccess});
  if (clauses.contains(Clause::OwnerAccess)) options_ |= OwnerAccess;
  // The engine keeps the end of the line in front of UNION.
  rows_.add(QueryRow::Source, text_.text({statement.begin, last}) + "\r\n").name2 = UnionHalves[0];
  rows_.add(QueryRow::Source, text_.text(clauses[Clause::Head])).name2 = UnionHalves[1];
  orderBy(clauses[Clause::OrderBy]);
}

QueryKind QueryDecoder::select(Span statement, const std::vector<std::string>& targets) {
  auto clauses = divide(text_, statement,
                        {Clause::Into, Clause::From, Clause::Where, Clause::GroupBy, Clause::Having,
                         Clause::OrderBy, Clause::OwnerAccess});
  predicate(clauses[Clause::Head]);
  outputs(clauses[Clause::Head], targets);
  conditions(clauses);
  expressions(QueryRow::GroupBy, clauses[Clause::GroupBy], std::int16_t{0});
  if (!clauses.contains(Clause::Into)) return QueryKind::Select;
  intoTable(clauses[Clause::Into]);
  return QueryKind::MakeTable;
}

/// What most statements have in the same place.
void QueryDecoder::conditions(const std::map<Clause, Span>& clauses) {
  const auto of = [&](Clause clause) { return clauses.contains(clause) ? clauses.at(clause) : Span{}; };
  FromRows(text_, rows_).add(of(Clause::From));
  if (!of(Clause::Where).empty()) rows_.add(QueryRow::Where, text_.text(of(Clause::Where)));
  if (!of(Clause::Having).empty()) rows_.add(QueryRow::Having, text_.text(of(Clause::Having)));
  orderBy(of(Clause::OrderBy));
  if (clauses.contains(Clause::OwnerAccess)) options_ |= OwnerAccess;
}

void QueryDecoder::predicate(Span& head) {
  struct Word {
    std::string_view text;
    std::int16_t option;
  };
  static constexpr Word words[] = {{"ALL", 0}, {"DISTINCT", Distinct}, {"DISTINCTROW", DistinctRow}};
  for (const auto& word : words) {
    if (!text_.isWord(head.begin, word.text)) continue;
    options_ |= word.option;
    ++head.begin;
    break;
  }
  if (!text_.isWord(head.begin, "TOP") || text_.at(head.begin + 1).kind != Token::Kind::Number) return;
  options_ |= HasTop;
  top_ = text_.at(head.begin + 1).text;
  head.begin += 2;
  if (!text_.isWord(head.begin, "PERCENT")) return;
  options_ |= TopPercent;
  ++head.begin;
}

/// A star at the end of the list is an option of the query. Rows without an expression keep target columns
/// that a star fills.
void QueryDecoder::outputs(Span list, const std::vector<std::string>& targets) {
  const auto items = text_.list(list);
  std::size_t next = 0;
  for (const Span item : items) {
    const bool star = item.begin + 1 == item.end && text_.at(item.begin).isSymbol("*");
    if (star && targets.empty() && item.end == list.end) {
      options_ |= AllColumns;
      continue;
    }
    QueryRow& row = output(item);
    if (next < targets.size()) row.name2 = targets[next++];
  }
  while (next < targets.size()) rows_.add(QueryRow::Output).name2 = targets[next++];
}

QueryRow& QueryDecoder::output(Span item) {
  std::optional<std::string> alias;
  if (item.end - item.begin > 2 && text_.isWord(item.end - 2, "AS")) {
    alias = text_.at(item.end - 1).text;
    item.end -= 2;
  }
  QueryRow& row = rows_.add(QueryRow::Output, text_.text(item));
  row.name1 = alias;
  row.flag = std::int16_t{0};
  return row;
}

void QueryDecoder::expressions(QueryRow::Attribute attribute, Span list, std::optional<std::int16_t> flag) {
  for (const Span item : text_.list(list)) rows_.add(attribute, text_.text(item)).flag = flag;
}

void QueryDecoder::orderBy(Span list) {
  for (Span item : text_.list(list)) {
    const bool descending = text_.isWord(item.end - 1, "DESC");
    if (descending || text_.isWord(item.end - 1, "ASC")) --item.end;
    QueryRow& row = rows_.add(QueryRow::OrderBy, text_.text(item));
    if (descending) row.name1 = Descending;
  }
}

/// The table that an append or make-table query writes to.
void QueryDecoder::intoTable(Span target) {
  kindRow_.name1 = text_.at(target.begin).text;
  const auto other = otherDatabase(text_, target);
  if (!other) return;
  if (!other->path.empty()) kindRow_.name2 = other->path;
  if (!other->type.empty()) kindRow_.expression = other->type;
}

QueryKind QueryDecoder::crosstab(Span statement) {
  auto clauses = divide(text_, statement,
                        {Clause::Select, Clause::From, Clause::Where, Clause::GroupBy, Clause::Having,
                         Clause::OrderBy, Clause::Pivot, Clause::OwnerAccess});
  output(clauses[Clause::Head]).flag = CrosstabValue;
  predicate(clauses[Clause::Select]);
  for (const Span item : text_.list(clauses[Clause::Select])) output(item).flag = RowHeading;
  conditions(clauses);
  expressions(QueryRow::GroupBy, clauses[Clause::GroupBy], RowHeading);
  // The columns that IN lists belong to the heading, but not to the grouping.
  Span pivot = clauses[Clause::Pivot];
  rows_.add(QueryRow::Output, text_.text(pivot)).flag = PivotColumn;
  pivot.end = text_.find(pivot, [&](std::size_t i) {
    return text_.isWord(i, "IN") && text_.at(i + 1).isSymbol("(") &&
           text_.closing(i + 1, pivot.end) + 1 == pivot.end;
  });
  rows_.add(QueryRow::GroupBy, text_.text(pivot)).flag = PivotColumn;
  return QueryKind::Crosstab;
}

/// INSERT INTO table [IN database] [(columns)] and VALUES (...) or a query.
QueryKind QueryDecoder::append(Span statement) {
  constexpr std::size_t words = 2;  // INSERT INTO
  const std::size_t rows = text_.find(
      statement, [&](std::size_t i) { return text_.isWord(i, "VALUES") || text_.isWord(i, "SELECT"); });
  if (rows == statement.end) cannotKeep("l'inserimento di una query tra parentesi", statement.begin);
  Span target{statement.begin + words, rows};
  const std::size_t open = text_.findSymbol(target, "(");
  std::vector<std::string> columns;
  if (open < target.end)
    for (const Span name : text_.list({open + 1, text_.closing(open, target.end)}))
      columns.push_back(columnName(name.end - 1));
  intoTable(target);
  if (text_.isWord(rows, "SELECT")) {
    if (text_.findWord({rows, statement.end}, "UNION") != statement.end)
      cannotKeep("l'inserimento di una UNION", rows);
    select({rows, statement.end}, columns);
    return QueryKind::Append;
  }
  std::size_t next = 0;
  for (const Span value : text_.list({rows + 2, text_.closing(rows + 1, statement.end)})) {
    QueryRow& row = rows_.add(QueryRow::Output, text_.text(value));
    row.flag = ValueOutput;
    if (next < columns.size()) row.name2 = columns[next++];
  }
  // Too few values stay the error of the statement.
  while (next < columns.size()) rows_.add(QueryRow::Output).name2 = columns[next++];
  return QueryKind::Append;
}

QueryKind QueryDecoder::update(Span statement) {
  auto clauses = divide(text_, statement, {Clause::Set, Clause::Where, Clause::OwnerAccess});
  predicate(clauses[Clause::Head]);
  clauses[Clause::From] = clauses[Clause::Head];
  for (const Span item : text_.list(clauses[Clause::Set])) {
    const std::size_t equals = text_.findSymbol(item, "=");
    QueryRow& row = output({equals + 1, item.end});
    const Span column{item.begin, equals};
    // A dotted name is kept as it was written.
    row.name2 = column.begin + 1 == column.end ? columnName(column.begin) : text_.text(column);
  }
  conditions(clauses);
  return QueryKind::Update;
}

QueryKind QueryDecoder::deletion(Span statement) {
  auto clauses = divide(text_, statement, {Clause::From, Clause::Where, Clause::OwnerAccess});
  predicate(clauses[Clause::Head]);
  if (clauses[Clause::Head].empty())
    options_ |= AllColumns;
  else
    outputs(clauses[Clause::Head], {});
  conditions(clauses);
  return QueryKind::Delete;
}

}  // namespace

StoredQuery decodeQuery(std::string_view sql) {
  parse(sql);
  return QueryDecoder(sql).run();
}

}  // namespace jet::sql
