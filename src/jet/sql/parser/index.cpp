// CREATE INDEX.
#include "jet/sql/parser/parser.h"

namespace jet::sql {

tree::CreateIndex Parser::createIndex(bool unique) {
  using Option = tree::CreateIndex::Option;
  clause_ = CreateIndexSyntax;
  cursor_.expectWord("INDEX", CreateIndexSyntax);
  tree::CreateIndex create;
  create.unique = unique;
  create.name = cursor_.expectName(CreateIndexSyntax);
  cursor_.expectWord("ON", CreateIndexSyntax);
  create.table = cursor_.expectName(CreateIndexSyntax);
  cursor_.expectSymbol("(", CreateIndexSyntax);
  do {
    tree::IndexColumn column{cursor_.expectName(CreateIndexSyntax), false};
    if (!cursor_.acceptWord("ASC")) column.descending = cursor_.acceptWord("DESC");
    create.columns.push_back(std::move(column));
  } while (cursor_.acceptSymbol(","));
  cursor_.expectSymbol(")", CreateIndexSyntax);
  if (!cursor_.acceptWord("WITH")) return create;
  if (cursor_.acceptWord("PRIMARY")) {
    create.option = Option::Primary;
    return create;
  }
  create.option = cursor_.atWord("IGNORE") ? Option::IgnoreNull : Option::DisallowNull;
  if (!cursor_.acceptWord("IGNORE")) cursor_.expectWord("DISALLOW", CreateIndexSyntax);
  cursor_.expectWord("NULL", CreateIndexSyntax);
  return create;
}

}  // namespace jet::sql
