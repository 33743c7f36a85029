#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A stored query as the rows of the system table MSysQueries keep it: its clauses taken apart.
namespace jet::sql {

/// Kinds of query, as the catalogue's Flags tell them.
enum class QueryKind : std::uint8_t {
  Select = 0x00,
  Delete = 0x20,
  Update = 0x30,
  Append = 0x40,
  DataDefinition = 0x60,
  Union = 0x80
};

struct QueryRow {
  enum Attribute : std::uint8_t {
    Start = 0,
    Kind = 1,
    Parameter = 2,
    Options = 3,
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
};

struct StoredQuery {
  QueryKind kind = QueryKind::Select;
  std::vector<QueryRow> rows;
};

/// Takes the text of a query apart. Error 3075 and kin for syntax, 3129 for what can't be kept as rows: a
/// join over a sub-query, a union of more than two halves.
StoredQuery takeApart(std::string_view sql);

}  // namespace jet::sql
