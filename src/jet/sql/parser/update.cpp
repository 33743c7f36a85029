// UPDATE.
#include "jet/sql/parser/parser.h"

namespace jet::sql {

tree::Update Parser::update() {
  tree::Update update;
  cursor_.acceptWord("DISTINCTROW");
  if (cursor_.peek().kind == Token::Kind::End || cursor_.atWord("SET")) cursor_.fail(UpdateSyntax);
  update.from = from();
  cursor_.expectWord("SET", UpdateSyntax);
  clause_ = ExpressionSyntax;
  do {
    const tree::Place place = cursor_.place();
    tree::Name column{"", cursor_.expectName(UpdateSyntax)};
    if (cursor_.acceptSymbol(".") || cursor_.acceptSymbol("!")) {
      column.table = std::move(column.column);
      column.column = cursor_.expectName(UpdateSyntax);
    }
    cursor_.expectSymbol("=", UpdateSyntax);
    update.assignments.push_back({std::move(column), expression(), place});
  } while (cursor_.acceptSymbol(","));
  update.where = where();
  return update;
}

}  // namespace jet::sql
