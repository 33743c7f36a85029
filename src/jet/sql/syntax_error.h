#pragma once

#include "runtime/error.h"

namespace jet::sql {

/// Errors that a statement's text can meet, syntax and names; as DAO publishes them.
enum StatementError : int {
  UpdateImpossible = 3073,
  TooFewParameters = 3061,
  UnknownName = 3070,
  ExpressionSyntax = 3075,
  UnknownTable = 3078,
  AmbiguousColumn = 3079,
  UnknownFunction = 3085,
  OrderConflictsWithDistinct = 3093,
  AggregateInClause = 3096,
  NotAggregated = 3122,
  UnknownInsertColumn = 3127,
  DeleteSyntax = 3128,
  InvalidStatement = 3129,
  FromSyntax = 3131,
  InsertSyntax = 3134,
  OrderBySyntax = 3138,
  ParametersSyntax = 3139,
  SelectSyntax = 3141,
  TextBehindStatement = 3142,
  TransformSyntax = 3143,
  UpdateSyntax = 3144,
  ExternalDatabase = 3170,
  TooManyFields = 3190,
  ConstraintSyntax = 3289,
  CreateTableSyntax = 3290,
  CreateIndexSyntax = 3291,
  ColumnDefinitionSyntax = 3292,
  AlterTableSyntax = 3293,
  DropSyntax = 3295,
  UnionColumnsDiffer = 3307,
  SubqueryColumns = 3306,
  InsertCountDiffers = 3346,
  SubqueryRows = 3354,
  TooComplex = 3360,
  UnknownReference = 3387,
  TypesDiffer = 3464,
};

/// An error of a statement's text with its place: `position` counts characters of the statement from 0.
class SyntaxError : public runtime::Error {
 public:
  SyntaxError(int number, std::string description, std::size_t position)
      : Error(number, "DAO.Database", std::move(description)), position_(position) {}
  /// With the description of `number`; `detail` names the word or object concerned.
  SyntaxError(StatementError number, const std::string& detail, std::size_t position);
  std::size_t position() const { return position_; }

 private:
  std::size_t position_;
};

}  // namespace jet::sql
