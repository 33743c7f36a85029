#pragma once

#include "jet/sql/tree/statement.h"

namespace jet::sql {

/// TRANSFORM with its columns told by IN, as the SELECT that it stands for: behind the columns of its own
/// query one for each of them, where every aggregate sees only the rows of that column. Error 3143 where no
/// columns are told, or the query is no single SELECT.
tree::Query crosstab(tree::Transform transform);

}  // namespace jet::sql
