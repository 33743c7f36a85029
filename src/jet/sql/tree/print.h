#pragma once

#include <string>
#include <string_view>

namespace jet::sql::tree {

struct Expression;
struct Query;
struct Statement;

/// Jet SQL that parses to an equal tree: names in brackets, operands of operators in parentheses.
std::string print(const Expression& expression);
std::string print(const Query& query);
std::string print(const Statement& statement);

/// `text` as a name in brackets (in back quotes where it holds a bracket) and as a text in apostrophes.
std::string quotedName(std::string_view text);
std::string quotedText(std::string_view text);

}  // namespace jet::sql::tree
