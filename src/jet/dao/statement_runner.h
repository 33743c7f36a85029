#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "jet/image/image.h"
#include "jet/sql/compile.h"
#include "runtime/variant.h"

namespace jet::dao {

/// Answers to a statement's parameters, in their order; those not answered are empty.
using Answers = std::vector<std::optional<runtime::Variant>>;

/// A statement over rows, ready to be stepped.
struct PreparedRows {
  sql::RowStatement plan;
  image::Statement statement;
};

/// Compiles Jet SQL against an image and carries it out.
class StatementRunner : public sql::Schema {
 public:
  explicit StatementRunner(image::Image& image);

  const file::TableDefinition* findTable(std::string_view name) const override {
    return image_.definition(name);
  }

  sql::Statement compile(const std::string& text, bool withRowKeys = false) const;
  /// Makes the tables of `plan` ready. Error 3061 while a parameter is not answered.
  PreparedRows prepare(sql::RowStatement plan, const Answers& answers);
  /// The same for `plan` wrapped into another statement (an INSERT that keeps a snapshot).
  image::Statement prepareInto(const std::string& prefix, const sql::RowStatement& plan,
                               const Answers& answers);
  /// Carries out a statement that returns no rows, whole or not at all; gives the number of rows affected.
  /// Error 3065 for a SELECT.
  std::int64_t execute(const sql::Statement& statement, const Answers& answers);

  image::Image& image() { return image_; }

 private:
  void ready(const sql::RowStatement& plan);
  std::int64_t change(const sql::RowStatement& plan, const Answers& answers);
  std::int64_t changeRowByRow(const sql::RowStatement& plan, const Answers& answers);

  image::Image& image_;
};

}  // namespace jet::dao
