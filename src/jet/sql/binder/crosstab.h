#pragma once

#include "jet/sql/binder/context.h"

namespace jet::sql {

/// TRANSFORM as the SELECT that it stands for: behind the columns of its own query one for each of those that
/// IN tells, or else for each value that the pivot has now in the rows that it reads; their aggregates see
/// only the rows of the column. Error 3143 where the query is no single SELECT, 3190 for 255 columns or more.
tree::Query crosstab(Context& context, tree::Transform transform);

}  // namespace jet::sql
