#include "jet/sql/stored/stored_query.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "runtime/error.h"
#include "support/case_file.h"
#include "support/errors.h"

namespace jet::sql {
namespace {

/// A row as "attribute|name1|name2|expression|flag", what is null as "-".
std::string shown(const QueryRow& row) {
  const auto text = [](const std::optional<std::string>& value) { return value.value_or("-"); };
  return std::to_string(row.attribute) + "|" + text(row.name1) + "|" + text(row.name2) + "|" +
         text(row.expression) + "|" + (row.flag ? std::to_string(*row.flag) : "-");
}

/// Rows of one attribute in their order.
std::vector<std::string> rowsOf(const StoredQuery& query, QueryRow::Attribute attribute) {
  std::vector<std::string> rows;
  for (const auto& row : query.rows)
    if (row.attribute == attribute) {
      rows.push_back(shown(row));
      EXPECT_EQ(row.order, rows.size());
    }
  return rows;
}

std::set<std::string> allRows(const StoredQuery& query) {
  std::set<std::string> rows;
  for (const auto& row : query.rows)
    rows.insert(std::to_string(row.order) + ": " + shown(row) + std::to_string(row.size.value_or(-1)));
  return rows;
}

constexpr std::pair<QueryKind, std::string_view> kinds[] = {
    {QueryKind::Select, "Select"},       {QueryKind::Union, "Union"},
    {QueryKind::Update, "Update"},       {QueryKind::Delete, "Delete"},
    {QueryKind::Append, "Append"},       {QueryKind::Crosstab, "Crosstab"},
    {QueryKind::MakeTable, "MakeTable"}, {QueryKind::DataDefinition, "DataDefinition"}};

/// The text that a stored statement comes back as, which must come back as itself, without the line end that
/// all but changes of design have; or its error.
std::string stored(const std::string& written, std::string_view kind) {
  try {
    const StoredQuery query = decodeQuery(written);
    EXPECT_NE(std::ranges::find(kinds, std::pair(query.kind, kind)), std::end(kinds)) << written;
    std::string text = queryText(query);
    const StoredQuery again = decodeQuery(text);
    EXPECT_EQ(again.kind, query.kind) << written;
    EXPECT_EQ(allRows(again), allRows(query)) << written;
    // Rows lie in the file in any order.
    EXPECT_EQ(queryText({query.kind, {query.rows.rbegin(), query.rows.rend()}}), text);
    std::erase(text, '\r');
    EXPECT_EQ(text.ends_with('\n'), query.kind != QueryKind::DataDefinition) << written;
    if (text.ends_with('\n')) text.pop_back();
    return text;
  } catch (const runtime::Error& error) {
    return "error " + std::to_string(error.number());
  }
}

TEST(StoredQuery, ATextComesBackInTheEnginesFormAndStaysSo) {
  support::CaseFile(CASES "/stored_queries.cases").expectResults([](const support::Case& each) {
    return stored(each.statement, each.look);
  });
  EXPECT_EQ(stored("", ""), "error 3129");
  EXPECT_EQ(stored("SELECT a\tFROM T\n where a = 1\r\nORDER\nBY b", "Select"),
            "SELECT a\nFROM T\nWHERE a = 1\nORDER BY b;");
  EXPECT_EQ(stored("SELECT a FROM T\r\nUNION ALL SELECT b FROM U", "Union"),
            "SELECT a FROM T\nUNION ALL SELECT b FROM U;");
}

TEST(StoredQuery, RowsAreThoseOfTheEngine) {
  using Row = QueryRow;
  const struct {
    const char* sql;
    Row::Attribute attribute;
    std::vector<std::string> rows;
  } cases[] = {
      {"SELECT T.*, a AS b FROM T", Row::Output, {"6|-|-|T.*|0", "6|b|-|a|0"}},
      {"SELECT a, * FROM T", Row::Options, {"3|-|-|-|1"}},
      {"SELECT TOP 3 a FROM T", Row::Options, {"3|3|-|-|16"}},
      {"SELECT a FROM T AS x, [U v] ORDER BY a DESC, b", Row::Source, {"5|T|x|-|-", "5|U v|-|-|-"}},
      {"SELECT a FROM T ORDER BY a DESC, b", Row::OrderBy, {"11|D|-|a|-", "11|-|-|b|-"}},
      // The last condition of a join comes first; inner joins come before outer ones.
      {"SELECT a FROM (A LEFT JOIN C ON A.k = C.k) INNER JOIN B ON (C.k = B.m) AND (C.k = B.k)",
       Row::Join,
       {"7|A|C|A.k = C.k|2", "7|C|B|C.k = B.k|1", "7|C|B|C.k = B.m|1"}},
      {"SELECT a FROM A RIGHT JOIN (SELECT k FROM B) AS q ON A.k = q.k", Row::Join, {"7|A|q|A.k = q.k|3"}},
      {"SELECT a FROM T UNION SELECT b FROM U UNION ALL SELECT c FROM V",
       Row::Source,
       {"5|-|X7YZ_____1|SELECT a FROM T UNION SELECT b FROM U\r\n|-", "5|-|X7YZ_____2|SELECT c FROM V|-"}},
      {"SELECT a FROM T UNION ALL SELECT b FROM U", Row::Options, {"3|-|-|-|1"}},
      {"SELECT a FROM T UNION SELECT b FROM U", Row::Options, {"3|-|-|-|3"}},
      {"UPDATE T SET [a b] = 1, T.c = 2", Row::Output, {"6|-|a b|1|0", "6|-|T.c|2|0"}},
      {"INSERT INTO T (a, [b c]) VALUES (1, 2)", Row::Output, {"6|-|a|1|-32768", "6|-|b c|2|-32768"}},
      {"INSERT INTO [T u] SELECT a FROM V", Row::Kind, {"1|T u|-|-|3"}},
      {"PARAMETERS [x y] Text(30), n Short; SELECT [x y]", Row::Parameter, {"2|x y|-|-|10", "2|n|-|-|3"}},
      {"DELETE * FROM T", Row::Options, {"3|-|-|-|1"}},
      {"TRANSFORM Sum(x) SELECT a FROM T GROUP BY a PIVOT b IN (1, 2)",
       Row::Output,
       {"6|-|-|Sum(x)|0", "6|-|-|a|2", "6|-|-|b IN (1, 2)|1"}},
      {"TRANSFORM Sum(x) SELECT a FROM T GROUP BY a PIVOT b IN (1, 2)",
       Row::GroupBy,
       {"9|-|-|a|2", "9|-|-|b|1"}},
      {"SELECT a INTO [T u] IN 'C:\\x.mdb' FROM V", Row::Kind, {"1|T u|C:\\x.mdb|-|2"}},
      {"SELECT a FROM V IN '' [;DATABASE=C:\\x.mdb]", Row::OtherDatabase, {"4|-|-|;DATABASE=C:\\x.mdb|-"}},
  };
  for (const auto& test : cases)
    EXPECT_EQ(rowsOf(decodeQuery(test.sql), test.attribute), test.rows) << test.sql;
}

int errorOf(const StoredQuery& query) {
  return support::errorOf([&] { queryText(query); });
}

/// Rows as a damaged file might hold them.
TEST(StoredQuery, DamagedRowsGiveATextOrAnErrorAndNoMore) {
  StoredQuery query;
  EXPECT_EQ(queryText(query), "SELECT ;\r\n");
  query.kind = static_cast<QueryKind>(0xF0);
  EXPECT_EQ(errorOf(query), 3129);
  for (const auto kind :
       {QueryKind::Crosstab, QueryKind::Delete, QueryKind::Update, QueryKind::Append, QueryKind::MakeTable,
        QueryKind::DataDefinition, QueryKind::PassThrough, QueryKind::Union}) {
    query.kind = kind;
    EXPECT_EQ(errorOf(query), 0);
  }

  query = decodeQuery("SELECT a FROM A LEFT JOIN B ON A.k = B.k");
  auto& join = *std::find_if(query.rows.begin(), query.rows.end(),
                             [](const auto& row) { return row.attribute == QueryRow::Join; });
  const QueryRow sound = join;
  const auto with = [&](auto change) {
    join = sound;
    change(join);
    return errorOf(query);
  };
  EXPECT_EQ(with([](QueryRow& row) { row.flag = 9; }), 3131);
  EXPECT_EQ(with([](QueryRow& row) { row.name2 = "Nessuna"; }), 3131);
  EXPECT_EQ(with([](QueryRow& row) { row.name2 = row.name1; }), 3131);
  EXPECT_EQ(with([](QueryRow& row) { row.name2.reset(); }), 3131);
  join = sound;
  QueryRow other = sound;
  other.flag = 1;
  other.order = 2;
  query.rows.push_back(other);
  EXPECT_EQ(errorOf(query), 3131);  // the same two tables joined in two ways
  query.rows.assign(100'000, sound);
  EXPECT_EQ(errorOf(query), 3360);
}

}  // namespace
}  // namespace jet::sql
