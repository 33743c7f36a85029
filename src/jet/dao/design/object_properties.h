#pragma once

#include <memory>

#include "jet/dao/property.h"
#include "jet/dao/session/session.h"

namespace jet::dao {

class Field;
class TableDef;

/// Properties of a table and of a column: those that every one has, and those that were given it.
PropertyCollection tableProperties(std::shared_ptr<Session> session, std::uint32_t page,
                                   std::shared_ptr<const TableDef> table);
PropertyCollection columnProperties(std::shared_ptr<Session> session, std::uint32_t page,
                                    std::uint16_t column, Field field);

}  // namespace jet::dao
