#include "jet/sql/parser/parser.h"

namespace jet::sql {

tree::Insert Parser::insert() {
  cursor_.expectWord("INTO", InsertSyntax);
  const tree::Place tablePlace = cursor_.place();
  tree::Insert insert{{cursor_.expectName(InsertSyntax), tablePlace}, {}, std::vector<tree::Expression>{}};
  if (cursor_.acceptSymbol("(")) {
    do {
      const tree::Place place = cursor_.place();
      insert.columns.push_back({cursor_.expectName(InsertSyntax), place});
    } while (cursor_.acceptSymbol(","));
    cursor_.expectSymbol(")", InsertSyntax);
  }
  if (cursor_.atWord("SELECT")) {
    insert.rows = query();
    return insert;
  }
  cursor_.expectWord("VALUES", InsertSyntax);
  cursor_.expectSymbol("(", InsertSyntax);
  insert.rows = expressions(")");
  clause_ = InsertSyntax;
  return insert;
}

}  // namespace jet::sql
