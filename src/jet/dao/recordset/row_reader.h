#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "jet/dao/recordset/recordset_base.h"

namespace jet::dao {

/// Stands in a record's key for a table in which an outer join found no row.
constexpr std::int64_t NoRow = 0;

/// Reads records by their keys: the rowid in each of the recordset's tables.
class RowReader {
 public:
  /// `pages`: the tables, by part.
  RowReader(std::shared_ptr<Session> session, std::vector<std::uint32_t> pages,
            const std::vector<FieldInfo>& fields);
  /// Gives the values of expressions: the statement is run anew for the record.
  void takeExpressions(const sql::RowStatement& plan, const Answers& answers);

  const std::vector<std::uint32_t>& pages() const { return pages_; }
  std::size_t parts() const { return pages_.size(); }
  /// False if one of the rows is gone.
  bool read(const std::int64_t* key);
  /// Of the record read last.
  runtime::Variant value(std::size_t field) const;
  /// Lets the rows go, so that their tables can be changed.
  void release();

 private:
  struct Place {
    std::optional<std::size_t> part;
    int column = 0;  // of the part's statement, or of the plan
    sql::Type type = sql::Type::Variant;
  };
  void readExpressions(const std::int64_t* key);

  std::shared_ptr<Session> session_;
  std::vector<std::uint32_t> pages_;
  std::vector<Place> places_;
  std::vector<std::string> texts_;  // SELECT of each part
  std::vector<image::Statement> statements_;
  std::vector<bool> found_;  // by part
  struct Expressions {
    sql::RowStatement plan;
    Answers answers;
    image::Statement statement;
    std::vector<std::optional<runtime::Variant>> last;  // by field
  };
  std::optional<Expressions> expressions_;
};

}  // namespace jet::dao
