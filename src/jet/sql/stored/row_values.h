#pragma once

#include <cstdint>
#include <string_view>

#include "jet/sql/stored/stored_query.h"

/// Numbers and names with a meaning in the rows of stored queries.
namespace jet::sql::stored {

/// Flag bits of the options row. In a union, AllColumns without Distinct is UNION ALL.
constexpr std::int16_t AllColumns = 1, Distinct = 2, OwnerAccess = 4, DistinctRow = 8, HasTop = 0x10,
                       TopPercent = 0x20;
/// Flag of an output row that is one of VALUES.
constexpr auto ValueOutput = static_cast<std::int16_t>(0x8000);
/// Flags of the output and grouping rows of a crosstab query.
constexpr std::int16_t CrosstabValue = 0, PivotColumn = 1, RowHeading = 2;
/// Flags of join rows.
constexpr std::int16_t InnerJoin = 1, LeftJoin = 2, RightJoin = 3;

/// Name2 of the source rows of a union: its first half, which may itself be a union, and its last part.
constexpr std::string_view UnionHalves[] = {"X7YZ_____1", "X7YZ_____2"};
/// The alias of a sub-query in FROM that was given none.
constexpr std::string_view UnnamedSubquery = "%$##@_Alias";
/// Name1 of a descending sorting row.
constexpr std::string_view Descending = "D";

/// Flag of the kind row.
std::int16_t kindFlag(QueryKind kind);

/// The parameter type of this name in any writing; 0, a value of any type, for an unknown one.
std::int16_t parameterType(const std::string& name);
/// How the engine writes a parameter type; "Value" for an unknown one.
std::string_view parameterTypeName(std::int16_t type);

}  // namespace jet::sql::stored
