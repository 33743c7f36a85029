// DELETE.
#include "jet/sql/parser/parser.h"

namespace jet::sql {

/// DELETE [* | table.* | table.column] FROM; a column stands for its table.
tree::Delete Parser::deletion() {
  tree::Delete deletion;
  cursor_.acceptWord("DISTINCTROW");
  if (cursor_.acceptSymbol("*")) {
    deletion.target = tree::Star{};
  } else if (!cursor_.atWord("FROM")) {
    deletion.target = tree::Star{deletedTable()};
    // The engine writes the columns of a condition behind.
    while (cursor_.acceptSymbol(",")) deletedTable();
  }
  cursor_.expectWord("FROM", DeleteSyntax);
  deletion.from = from();
  deletion.where = where();
  return deletion;
}

/// table.* or table.column: which column makes no difference.
std::string Parser::deletedTable() {
  std::string table = cursor_.expectName(DeleteSyntax);
  if (!cursor_.acceptSymbol(".")) cursor_.expectSymbol("!", DeleteSyntax);
  if (!cursor_.acceptSymbol("*")) cursor_.expectName(DeleteSyntax);
  return table;
}

}  // namespace jet::sql
