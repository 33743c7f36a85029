#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "jet/dao/query/row_changes.h"

namespace jet::dao {

/// Compiles Jet SQL against an image and carries it out.
class StatementRunner : public sql::Schema {
 public:
  explicit StatementRunner(image::Image& image);

  const file::TableDefinition* findTable(std::string_view name) const override {
    return image_.definition(name);
  }
  /// The texts are kept until a design changes.
  std::optional<std::string> findQuery(std::string_view name) const override;
  std::optional<std::string> findAction(std::string_view name) const override;
  std::string defaultOf(const file::TableDefinition& table, const file::Column& column) const override;

  std::optional<std::vector<runtime::Variant>> values(const sql::RowStatement& list,
                                                      const Answers& answers) const override;

  sql::Statement compile(const std::string& text, const sql::Options& options = {}) const;
  /// Error 3219 for what isn't a SELECT.
  sql::RowStatement selection(const std::string& text, const sql::Options& options) const;
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
  std::optional<std::string> readQuery(std::string_view name) const;

  image::Image& image_;
  mutable image::Prepared<std::map<std::string, std::optional<std::string>>> queries_;  // by file::nameKey
  /// The last selections that were compiled, so that a loop over one costs its steps; by text and
  /// withRowKeys.
  mutable image::Prepared<std::map<std::pair<std::string, bool>, sql::RowStatement>> selections_;
};

}  // namespace jet::dao
