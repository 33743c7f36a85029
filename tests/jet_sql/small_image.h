#pragma once

#include <sqlite3.h>

#include <string>
#include <vector>

#include "jet/sql/compile.h"
#include "jet/sql/functions.h"
#include "runtime/variant.h"

/// A SQLite image of a few tables, as the image layer would make it, with a statement runner.
namespace jet::sql::test {

class SmallImage : public Schema {
 public:
  SmallImage();
  ~SmallImage() override { sqlite3_close(connection_); }
  SmallImage(const SmallImage&) = delete;

  const file::TableDefinition* findTable(std::string_view name) const override;
  std::optional<std::string> findQuery(std::string_view name) const override;
  std::string defaultOf(const file::TableDefinition& table, const file::Column& column) const override;

  /// Compiles and runs a statement whose parameters are answered by `answers` in order, as SQLite literals.
  /// Its rows as text, "a|b" each and "; " between them; the number of changed rows for another statement. An
  /// error as "error <number>" or "error <number> at <position>". The statement is printed back and parsed on
  /// the way.
  std::string run(const std::string& text, const std::vector<std::string>& answers = {});
  std::string rows(const std::string& text) { return run(text); }

  RowStatement compileRows(const std::string& text, const Options& options = {}) const {
    return std::get<RowStatement>(compile(text, *this, options));
  }
  /// Rows of a compiled statement, or its count of changes. Throws the error of a step.
  std::string step(const RowStatement& statement, const std::vector<std::string>& answers);
  /// Carries out a change in its two steps, each row on its own: "3 applied", and ", error <number>" behind
  /// it for each that failed.
  std::string stepByRow(const RowStatement& statement, const std::vector<std::string>& answers = {});
  sqlite3* connection() const { return connection_; }

 private:
  void add(file::TableDefinition table);
  void execute(const std::string& sql);

  sqlite3* connection_ = nullptr;
  std::vector<file::TableDefinition> tables_;
};

/// Fails the test unless the text printed from the statement's tree parses to an equal tree.
void expectPrintsBack(const std::string& text);

}  // namespace jet::sql::test
