#pragma once

#include <string>

namespace jet::dao {
class TableDef;
}

namespace jetsql {

/// The statements that make a table and its indexes, as Jet SQL; indexes that belong to a relation are left
/// out.
std::string designStatements(jet::dao::TableDef& table);

}  // namespace jetsql
