#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "jet/sql/stored/stored_query.h"

namespace jet::sql::stored {

/// Collects the rows of one query and numbers them within their attributes.
class Rows {
 public:
  QueryRow& add(QueryRow::Attribute attribute) {
    rows_.emplace_back();
    rows_.back().attribute = attribute;
    rows_.back().order = ++count_[attribute];
    return rows_.back();
  }
  QueryRow& add(QueryRow::Attribute attribute, std::string expression) {
    QueryRow& row = add(attribute);
    row.expression = std::move(expression);
    return row;
  }
  std::vector<QueryRow> take() { return std::move(rows_); }

 private:
  std::array<std::uint32_t, 256> count_{};
  std::vector<QueryRow> rows_;
};

}  // namespace jet::sql::stored
