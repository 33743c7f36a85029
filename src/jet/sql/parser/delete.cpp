#include "jet/sql/parser/parser.h"

namespace jet::sql {

tree::Delete Parser::deletion() {
  tree::Delete deletion;
  cursor_.acceptWord("DISTINCTROW");
  if (cursor_.acceptSymbol("*")) {
    deletion.target = tree::Star{};
  } else if (!cursor_.atWord("FROM")) {
    deletion.target = tree::Star{cursor_.expectName(DeleteSyntax)};
    if (!cursor_.acceptSymbol(".")) cursor_.expectSymbol("!", DeleteSyntax);
    cursor_.expectSymbol("*", DeleteSyntax);
  }
  cursor_.expectWord("FROM", DeleteSyntax);
  deletion.from = from();
  deletion.where = where();
  return deletion;
}

}  // namespace jet::sql
