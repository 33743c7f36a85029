#pragma once

#include "jet/file/definition.h"
#include "jet/sql/tree/statement.h"
#include "jet/sql/type.h"

namespace jet::sql {

/// A column type by one of its names in CREATE TABLE and PARAMETERS.
struct NamedType {
  const char* name;  // in capitals
  file::ColumnType type;
  bool autoNumber = false;
};

/// nullptr for a name that is no type.
const NamedType* findType(const std::string& name);

/// Error 3139 for a name that is no type.
Type parameterType(const tree::TypeName& type);

}  // namespace jet::sql
