#pragma once

#include <string>
#include <string_view>

namespace jet::sql::tree {

struct Expression;
struct Query;
struct Statement;
struct TypeName;
struct CreateTable;
struct AlterTable;
struct CreateIndex;
struct DropTable;
struct DropIndex;

/// Jet SQL that parses to an equal tree: names in brackets, operands of operators in parentheses.
std::string print(const Expression& expression);
std::string print(const Query& query);
std::string print(const Statement& statement);
std::string print(const TypeName& type);
std::string print(const CreateTable& create);
std::string print(const AlterTable& alter);
std::string print(const CreateIndex& create);
std::string print(const DropTable& drop);
std::string print(const DropIndex& drop);

/// `text` as a name in brackets (in back quotes where it holds a bracket).
std::string quotedName(std::string_view text);

}  // namespace jet::sql::tree
