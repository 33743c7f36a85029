#pragma once

#include <string>

namespace jet::dao {
class Relation;
class TableDef;
}  // namespace jet::dao

namespace jetsql {

/// The statements that make a table and its indexes, as Jet SQL; indexes that belong to a relation are left
/// out. A link to another file is a comment.
std::string designStatements(jet::dao::TableDef& table);
/// The statement that makes a relation; one that isn't enforced is a comment.
std::string designStatement(jet::dao::Relation& relation);

}  // namespace jetsql
