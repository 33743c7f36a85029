#include "jet/sql/stored/stored_query.h"

#include <gtest/gtest.h>

#include <set>

#include "runtime/error.h"

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

struct Text {
  const char* written;
  QueryKind kind;
  const char* shown;  // lines end with a bare line feed here
};

constexpr Text Texts[] = {
    {"select * from T", QueryKind::Select, "SELECT *\nFROM T;\n"},
    {"SELECT *, a+1 AS [b c] FROM [Il nome] AS n", QueryKind::Select,
     "SELECT *, a+1 AS [b c]\nFROM [Il nome] AS n;\n"},
    {"SELECT DISTINCT TOP 5 PERCENT [Set], Sum( x ) s FROM T", QueryKind::Select, nullptr},
    {"SELECT DISTINCT TOP 5 PERCENT [Set],T . [Order] AS [By]\n FROM T where a = ';FROM' and \"è\"<>[x ORDER "
     "BY]\t"
     "order by a , b DESC,c ASC ;",
     QueryKind::Select,
     "SELECT DISTINCT TOP 5 PERCENT [Set], T . [Order] AS [By]\nFROM T\nWHERE a = ';FROM' and \"è\"<>[x "
     "ORDER BY]\n"
     "ORDER BY a, b DESC, c;\n"},
    {"SELECT DISTINCTROW Left(a, 2) FROM T GROUP BY Left(a, 2) HAVING Count(*) > 1", QueryKind::Select,
     "SELECT DISTINCTROW Left(a, 2)\nFROM T\nGROUP BY Left(a, 2)\nHAVING Count(*) > 1;\n"},
    {"PARAMETERS [Da data] DateTime, n Text(20), [Forms]![M]![x y] Long; SELECT a FROM T WHERE d > [Da data]",
     QueryKind::Select,
     "PARAMETERS [Da data] DateTime, n Text ( 20 ), Forms!M![x y] Long;\nSELECT a\nFROM T\nWHERE d > [Da "
     "data];\n"},
    {"PARAMETERS [Da [data] DateTime; SELECT a FROM T", QueryKind::Select,
     "PARAMETERS [Da [data] DateTime;\nSELECT a\nFROM T;\n"},
    {"SELECT a FROM T, (U LEFT JOIN V AS w ON U.x = w.x) INNER JOIN Z ON (U.y = Z.y) AND (w.k = Z.k)",
     QueryKind::Select,
     "SELECT a\nFROM T, (U LEFT JOIN V AS w ON U.x = w.x) INNER JOIN Z ON (U.y = Z.y) AND (w.k = Z.k);\n"},
    {"SELECT a FROM U RIGHT OUTER JOIN (V INNER JOIN Z ON V.a = Z.a) ON ((U.x=V.x AND U.y BETWEEN V.a AND "
     "V.b))",
     QueryKind::Select,
     "SELECT a\nFROM U RIGHT JOIN (V INNER JOIN Z ON V.a = Z.a) ON (U.x=V.x) AND (U.y BETWEEN V.a AND "
     "V.b);\n"},
    {"SELECT a FROM U LEFT JOIN V ON U.x = V.x AND V.k = 'a'", QueryKind::Select,
     "SELECT a\nFROM U LEFT JOIN V ON U.x = V.x AND V.k = 'a';\n"},
    {"SELECT a FROM U INNER JOIN V ON U.x = V.x OR U.y = V.y WHERE EXISTS (SELECT 1 FROM Z WHERE Z.a = U.a)",
     QueryKind::Select,
     "SELECT a\nFROM U INNER JOIN V ON U.x = V.x OR U.y = V.y\nWHERE EXISTS (SELECT 1 FROM Z WHERE Z.a = "
     "U.a);\n"},
    {"SELECT q.a FROM (SELECT a FROM T UNION SELECT b FROM U) AS q INNER JOIN V ON q.a = V.a",
     QueryKind::Select,
     "SELECT q.a\nFROM (SELECT a FROM T UNION SELECT b FROM U) AS q INNER JOIN V ON q.a = V.a;\n"},
    {"SELECT Count(*) AS n FROM (SELECT DISTINCT a FROM T)", QueryKind::Select,
     "SELECT Count(*) AS n\nFROM (SELECT DISTINCT a FROM T) AS [%$##@_Alias];\n"},
    {"SELECT a FROM T UNION ALL SELECT b FROM U WHERE b > 0 UNION SELECT c FROM V ORDER BY a DESC",
     QueryKind::Union,
     "SELECT a FROM T UNION ALL SELECT b FROM U WHERE b > 0\nUNION SELECT c FROM V\nORDER BY a DESC;\n"},
    {"SELECT a FROM T\r\nUNION ALL SELECT b FROM U", QueryKind::Union,
     "SELECT a FROM T\nUNION ALL SELECT b FROM U;\n"},
    {"UPDATE T SET a = 'x, y', T.[b c] = [p]*2, [d e] = NULL WHERE a IN ('SET', 'b')", QueryKind::Update,
     "UPDATE T SET a = 'x, y', T.[b c] = [p]*2, [d e] = NULL\nWHERE a IN ('SET', 'b');\n"},
    {"UPDATE T INNER JOIN U ON T.k = U.k SET T.a = U.a", QueryKind::Update,
     "UPDATE T INNER JOIN U ON T.k = U.k SET T.a = U.a;\n"},
    {"DELETE FROM T WHERE a = 1", QueryKind::Delete, "DELETE *\nFROM T\nWHERE a = 1;\n"},
    {"DELETE T.* FROM T INNER JOIN U ON T.a = U.a", QueryKind::Delete,
     "DELETE T.*\nFROM T INNER JOIN U ON T.a = U.a;\n"},
    {"INSERT INTO [Il nome] (a, [b c]) VALUES (1, 'x)y')", QueryKind::Append,
     "INSERT INTO [Il nome] ( a, [b c] )\nVALUES (1, 'x)y');\n"},
    {"INSERT INTO T (a, b) VALUES (1)", QueryKind::Append, "INSERT INTO T ( a, b )\nVALUES (1);\n"},
    {"INSERT INTO T VALUES (Now(), [p])", QueryKind::Append, "INSERT INTO T\nVALUES (Now(), [p]);\n"},
    {"INSERT INTO T (a, b) SELECT x, Count(*) AS n FROM U GROUP BY x", QueryKind::Append,
     "INSERT INTO T ( a, b )\nSELECT x, Count(*) AS n\nFROM U\nGROUP BY x;\n"},
    {"INSERT INTO T SELECT * FROM U", QueryKind::Append, "INSERT INTO T\nSELECT *\nFROM U;\n"},
    {"INSERT INTO T (a, b) SELECT * FROM U", QueryKind::Append,
     "INSERT INTO T ( a, b )\nSELECT *\nFROM U;\n"},
    {"PARAMETERS p Long; TRANSFORM Sum(x) AS [Il totale] SELECT a, Count(*) AS n FROM T WHERE b = p GROUP BY "
     "a "
     "ORDER BY a PIVOT Format(d, 'q') IN ('1', '2')",
     QueryKind::Crosstab,
     "PARAMETERS p Long;\nTRANSFORM Sum(x) AS [Il totale]\nSELECT a, Count(*) AS n\nFROM T\nWHERE b = "
     "p\nGROUP BY "
     "a\nORDER BY a\nPIVOT Format(d, 'q') IN ('1', '2');\n"},
    {"SELECT a, b AS c INTO [T 2] FROM T WHERE a IN (SELECT a FROM U)", QueryKind::MakeTable,
     "SELECT a, b AS c INTO [T 2]\nFROM T\nWHERE a IN (SELECT a FROM U);\n"},
    {"SELECT a INTO T2 IN 'C:\\x y.mdb' FROM T IN '' [;DATABASE=C:\\z.mdb] WHERE a = 1", QueryKind::MakeTable,
     "SELECT a INTO T2 IN 'C:\\x y.mdb'\nFROM T IN '' [;DATABASE=C:\\z.mdb]\nWHERE a = 1;\n"},
    {"INSERT INTO T IN 'C:\\x.mdb' (a) SELECT b FROM U", QueryKind::Append,
     "INSERT INTO T IN 'C:\\x.mdb' ( a )\nSELECT b\nFROM U;\n"},
    {"SELECT a FROM T WITH OWNERACCESS OPTION", QueryKind::Select,
     "SELECT a\nFROM T\nWITH OWNERACCESS OPTION;\n"},
    {"DELETE DISTINCTROW T.a, T.b FROM T INNER JOIN U ON T.k = U.k", QueryKind::Delete,
     "DELETE DISTINCTROW T.a, T.b\nFROM T INNER JOIN U ON T.k = U.k;\n"},
    {"UPDATE DISTINCTROW T SET a = 1", QueryKind::Update, "UPDATE DISTINCTROW T SET a = 1;\n"},
    {"TABLE T UNION ALL TABLE U", QueryKind::Union, "TABLE T\nUNION ALL TABLE U;\n"},
    {"TABLE [Il nome]", QueryKind::Select, "SELECT *\nFROM [Il nome];\n"},
    {"SELECT q.a FROM [SELECT a FROM T]. AS q", QueryKind::Select,
     "SELECT q.a\nFROM (SELECT a FROM T) AS q;\n"},
    {"(SELECT a FROM T) UNION (SELECT b FROM U)", QueryKind::Union,
     "(SELECT a FROM T)\nUNION (SELECT b FROM U);\n"},
    {"ALTER TABLE T DROP COLUMN a;", QueryKind::DataDefinition, "ALTER TABLE T DROP COLUMN a;"},
    {"DROP TABLE [Il nome]", QueryKind::DataDefinition, "DROP TABLE [Il nome]"},
};

TEST(StoredQuery, ATextComesBackInTheEnginesFormAndStaysSo) {
  for (const auto& test : Texts) {
    SCOPED_TRACE(test.written);
    if (!test.shown) {
      EXPECT_THROW(takeApart(test.written), runtime::Error);
      continue;
    }
    const StoredQuery query = takeApart(test.written);
    EXPECT_EQ(query.kind, test.kind);
    const std::string text = putTogether(query);
    std::string lines = text;
    std::erase(lines, '\r');
    EXPECT_EQ(lines, test.shown);
    const StoredQuery again = takeApart(text);
    EXPECT_EQ(again.kind, query.kind);
    EXPECT_EQ(allRows(again), allRows(query));
    // Rows lie in the file in any order.
    StoredQuery turned{query.kind, {query.rows.rbegin(), query.rows.rend()}};
    EXPECT_EQ(putTogether(turned), text);
  }
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
    EXPECT_EQ(rowsOf(takeApart(test.sql), test.attribute), test.rows) << test.sql;
}

int errorOf(const StoredQuery& query) {
  try {
    putTogether(query);
  } catch (const runtime::Error& error) {
    return error.number();
  }
  return 0;
}

/// Rows as a damaged file might hold them.
TEST(StoredQuery, DamagedRowsGiveATextOrAnErrorAndNoMore) {
  StoredQuery query;
  EXPECT_EQ(putTogether(query), "SELECT ;\r\n");
  query.kind = static_cast<QueryKind>(0xF0);
  EXPECT_EQ(errorOf(query), 3129);
  for (const auto kind :
       {QueryKind::Crosstab, QueryKind::Delete, QueryKind::Update, QueryKind::Append, QueryKind::MakeTable,
        QueryKind::DataDefinition, QueryKind::PassThrough, QueryKind::Union}) {
    query.kind = kind;
    EXPECT_EQ(errorOf(query), 0);
  }

  query = takeApart("SELECT a FROM A LEFT JOIN B ON A.k = B.k");
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

TEST(StoredQuery, WhatCannotBeKeptIsRefused) {
  const struct {
    const char* sql;
    int error;
  } cases[] = {{"SELECT a FROM", 3131},
               {"SELECT a +", 3075},
               {"", 3129},
               {"INSERT INTO T SELECT a FROM U UNION SELECT b FROM V", 3129},
               {"(SELECT a FROM T) ORDER BY a", 3129}};
  for (const auto& test : cases) {
    try {
      takeApart(test.sql);
      ADD_FAILURE() << test.sql;
    } catch (const runtime::Error& error) {
      EXPECT_EQ(error.number(), test.error) << test.sql;
    }
  }
}

}  // namespace
}  // namespace jet::sql
