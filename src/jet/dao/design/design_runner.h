#pragma once

#include <cstdint>

#include "jet/dao/query/statement_runner.h"

namespace jet::dao {

/// Carries out the statements that alter the design: each whole or not at all. Errors are those of
/// image::Image; 3078 unknown table, 3381 unknown column in an ALTER TABLE, 3409 in an index.
class DesignRunner {
 public:
  explicit DesignRunner(StatementRunner& runner) : runner_(runner), image_(runner.image()) {}

  void run(const sql::CreateTable& table);
  void run(const sql::CreateIndex& index);
  void run(const sql::CreateRelation& relation);
  void run(const sql::AddColumn& added);
  /// Values are converted as an UPDATE would; one that can't be is its error.
  void run(const sql::AlterColumn& altered);
  void run(const sql::SetDefault& wanted);
  void run(const sql::DropColumn& dropped);
  void run(const sql::DropConstraint& dropped);
  void run(const sql::DropTable& dropped);
  void run(const sql::DropIndex& dropped);
  /// Gives the number of rows in the new table.
  std::int64_t run(const sql::SelectInto& into, const Answers& answers);

 private:
  const file::TableDefinition& table(const std::string& name) const;
  void relate(const std::string& table, const sql::CreateRelation& relation);
  void convert(const file::TableDefinition& table, const file::Column& from, const sql::NewColumn& to);
  void requireLongs(std::uint32_t page, const file::Column& column) const;
  void setRules(std::uint32_t page, const sql::NewColumn& column);

  StatementRunner& runner_;
  image::Image& image_;
};

}  // namespace jet::dao
