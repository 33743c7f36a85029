#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "jet/sql/compile.h"

struct sqlite3;

/// The functions of domains: DLookup, DCount and their like ask a table or query of their own for one value.
namespace jet::sql {

/// The SELECT that gives `aggregate`(`expression`) of the rows of `domain` that meet `criteria`, of all where
/// that is empty; the expression itself where `aggregate` is.
std::string domainStatement(std::string_view aggregate, std::string_view expression, std::string_view domain,
                            std::string_view criteria);

/// Compiles a SELECT and makes its tables ready to be read, as far as that can be done within a statement.
using DomainCompiler = std::function<RowStatement(const std::string& text)>;

/// Registers what statements call where the texts of a domain are known only row by row.
void registerDomainFunction(sqlite3* connection, DomainCompiler compiler);

}  // namespace jet::sql
