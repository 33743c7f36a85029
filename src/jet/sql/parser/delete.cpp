#include "jet/sql/parser/parser.h"

namespace jet::sql {

/// DELETE [* | table.* | table.column] FROM; a column stands for its table.
tree::Delete Parser::deletion() {
  tree::Delete deletion;
  cursor_.acceptWord("DISTINCTROW");
  if (cursor_.acceptSymbol("*")) {
    deletion.target = tree::Star{};
  } else if (!cursor_.atWord("FROM")) {
    deletion.target = tree::Star{cursor_.expectName(DeleteSyntax)};
    if (!cursor_.acceptSymbol(".")) cursor_.expectSymbol("!", DeleteSyntax);
    if (!cursor_.acceptSymbol("*")) cursor_.expectName(DeleteSyntax);
  }
  cursor_.expectWord("FROM", DeleteSyntax);
  deletion.from = from();
  deletion.where = where();
  return deletion;
}

}  // namespace jet::sql
