#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A stored query as the rows of the system table MSysQueries keep it: a row for each piece of its clauses.
/// The texts of expressions are kept as they were written.
namespace jet::sql {

/// Kinds of query: bits of the catalogue's Flags, and the type numbers of the data access objects.
enum class QueryKind : std::uint8_t {
  Select = 0x00,
  Crosstab = 0x10,
  Delete = 0x20,
  Update = 0x30,
  Append = 0x40,
  MakeTable = 0x50,
  DataDefinition = 0x60,
  PassThrough = 0x70,
  Union = 0x80
};
/// The bits of the catalogue's Flags that tell the kind.
constexpr std::uint32_t QueryKindBits = 0xF0;

struct QueryRow {
  enum Attribute : std::uint8_t {
    Start = 0,
    Kind = 1,
    Parameter = 2,
    Options = 3,
    OtherDatabase = 4,
    Source = 5,
    Output = 6,
    Join = 7,
    Where = 8,
    GroupBy = 9,
    Having = 10,
    OrderBy = 11,
    End = 255
  };
  Attribute attribute = Start;
  std::uint32_t order = 1;  // counts from 1 within an attribute
  std::optional<std::string> name1, name2, expression;
  std::optional<std::int16_t> flag;
  std::optional<std::int32_t> size;  // of a Text parameter; kept by Jet 4 alone
  bool operator==(const QueryRow&) const = default;
};

struct StoredQuery {
  QueryKind kind = QueryKind::Select;
  std::vector<QueryRow> rows;
};

/// Decodes the text of a query into its rows. Error 3075 and kin for syntax; 3129 for what rows can't keep:
/// INSERT of a UNION or of a query in parentheses.
StoredQuery decodeQuery(std::string_view sql);

/// The text of a query: each clause on a line of its own, a closing semicolon, CR LF at the ends of lines.
/// A pass-through query and a definition come as they were written. Rows of any order; what is missing is
/// left out, so that damaged rows give a text that doesn't parse. Error 3129 for an unknown kind.
std::string queryText(const StoredQuery& query);

}  // namespace jet::sql
