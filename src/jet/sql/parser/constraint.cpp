// CONSTRAINT and REFERENCES.
#include "jet/sql/parser/parser.h"

namespace jet::sql {

using namespace tree;

/// True at a constraint of a table; its words are names of columns as well.
bool Parser::atConstraint() const {
  const Token& next = cursor_.peek(1);
  return cursor_.atWord("CONSTRAINT") || (cursor_.atWord("PRIMARY") && next.isWord("KEY")) ||
         (cursor_.atWord("FOREIGN") && next.isWord("KEY")) ||
         (cursor_.atWord("UNIQUE") && next.isSymbol("("));
}

Constraint Parser::constraint(bool ofColumn) {
  Constraint constraint;
  if (cursor_.acceptWord("CONSTRAINT")) constraint.name = cursor_.expectName(ConstraintSyntax);
  if (cursor_.acceptWord("PRIMARY")) {
    cursor_.expectWord("KEY", ConstraintSyntax);
    constraint.kind = Constraint::Kind::Primary;
  } else if (cursor_.atWord(ofColumn ? "REFERENCES" : "FOREIGN")) {
    constraint.kind = Constraint::Kind::Foreign;
    if (!ofColumn) {
      cursor_.take();
      cursor_.expectWord("KEY", ConstraintSyntax);
      constraint.columns = names(ConstraintSyntax);
    }
    constraint.references = references();
    return constraint;
  } else {
    cursor_.expectWord("UNIQUE", ConstraintSyntax);
  }
  if (!ofColumn) constraint.columns = names(ConstraintSyntax);
  return constraint;
}

/// REFERENCES table [(columns)] [ON UPDATE CASCADE | NO ACTION] [ON DELETE CASCADE | NO ACTION]
References Parser::references() {
  cursor_.expectWord("REFERENCES", ConstraintSyntax);
  References references{cursor_.expectName(ConstraintSyntax), {}, false, false};
  if (cursor_.atSymbol("(")) references.columns = names(ConstraintSyntax);
  while (cursor_.acceptWord("ON")) {
    const bool update = cursor_.acceptWord("UPDATE");
    if (!update) cursor_.expectWord("DELETE", ConstraintSyntax);
    if (cursor_.acceptWord("NO")) {
      cursor_.expectWord("ACTION", ConstraintSyntax);
    } else {
      cursor_.expectWord("CASCADE", ConstraintSyntax);
      (update ? references.cascadeUpdate : references.cascadeDelete) = true;
    }
  }
  return references;
}

}  // namespace jet::sql
