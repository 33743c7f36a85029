#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "jet/dao/field.h"

namespace jet::dao {

/// A table's index, as far as it is read.
struct Index {
  struct Part {
    std::string name;
    bool descending = false;
  };
  std::string Name;
  std::vector<Part> Fields;
  bool Primary = false, Unique = false, Required = false, IgnoreNulls = false, Foreign = false;
};

/// The design of one table.
class TableDef {
 public:
  virtual ~TableDef() = default;
  virtual std::string Name() const = 0;
  /// In display order.
  virtual std::size_t fieldCount() const = 0;
  virtual Field Fields(std::size_t index) = 0;
  /// Error 3265 if there is none.
  virtual Field Fields(std::string_view name) = 0;
  /// Removes the column with its data. Error 3265 if there is none, 3280 while an index uses it.
  virtual void deleteField(std::string_view name) = 0;
  virtual std::vector<Index> Indexes() const = 0;
};
using TableDefPtr = std::shared_ptr<TableDef>;

}  // namespace jet::dao
