#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "jet/dao/row_changes.h"

namespace jet::dao {

/// Compiles Jet SQL against an image and carries it out.
class StatementRunner : public sql::Schema {
 public:
  explicit StatementRunner(image::Image& image);

  const file::TableDefinition* findTable(std::string_view name) const override {
    return image_.definition(name);
  }
  std::optional<std::string> findQuery(std::string_view name) const override;
  std::string defaultOf(const file::TableDefinition& table, const file::Column& column) const override;

  sql::Statement compile(const std::string& text, bool withRowKeys = false) const;
  /// Error 3219 for what isn't a SELECT.
  sql::RowStatement selection(const std::string& text, bool withRowKeys = false) const;
  /// Error 3065 for a SELECT.
  static sql::RowStatement change(sql::RowStatement plan);
  /// Makes the tables of `plan` ready. Error 3061 while a parameter is not answered.
  image::Statement prepare(const sql::RowStatement& plan, const Answers& answers);
  /// The same for `plan` wrapped into another statement (an INSERT that keeps a snapshot).
  image::Statement prepareInto(const std::string& prefix, const sql::RowStatement& plan,
                               const Answers& answers);
  /// Carries out a statement that returns no rows; gives the number of rows affected. `failOnError` as
  /// RowChanges::run has it. Error 3065 for a SELECT.
  std::int64_t execute(sql::Statement statement, const Answers& answers, bool failOnError);

  image::Image& image() { return image_; }

 private:
  image::Image& image_;
};

}  // namespace jet::dao
