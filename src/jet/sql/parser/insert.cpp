// INSERT INTO.
#include "jet/sql/parser/parser.h"

namespace jet::sql {

tree::Insert Parser::insert() {
  cursor_.expectWord("INTO", InsertSyntax);
  const tree::Place tablePlace = cursor_.place();
  tree::Insert insert{
      {cursor_.expectName(InsertSyntax), tablePlace}, "", {}, std::vector<tree::Expression>{}};
  insert.in = externalDatabase(InsertSyntax);
  if (cursor_.atSymbol("(") && !atQuery()) {
    cursor_.take();
    do {
      if (cursor_.peek(1).isSymbol(".") || cursor_.peek(1).isSymbol("!")) {
        cursor_.expectName(InsertSyntax);  // the table's own
        cursor_.take();
      }
      const tree::Place place = cursor_.place();
      insert.columns.push_back({cursor_.expectName(InsertSyntax), place});
    } while (cursor_.acceptSymbol(","));
    cursor_.expectSymbol(")", InsertSyntax);
    if (insert.in.empty()) insert.in = externalDatabase(InsertSyntax);
  }
  if (atQuery()) {
    insert.rows = query();
    return insert;
  }
  cursor_.expectWord("VALUES", InsertSyntax);
  cursor_.expectSymbol("(", InsertSyntax);
  if (cursor_.atSymbol(")")) cursor_.fail(InsertSyntax);
  insert.rows = expressions(")");
  clause_ = InsertSyntax;
  return insert;
}

}  // namespace jet::sql
