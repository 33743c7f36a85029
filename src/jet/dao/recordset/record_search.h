#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "jet/dao/recordset/recordset_base.h"

namespace jet::dao {

/// Looks among the records of a recordset for those that fit a condition. To the condition the recordset is a
/// table: a view of the image with the fields as its columns, and behind them the record's place.
class RecordSearch : private sql::Schema {
 public:
  RecordSearch(std::shared_ptr<Session> session, const std::vector<FieldInfo>& fields);
  ~RecordSearch() override;
  RecordSearch(const RecordSearch&) = delete;
  RecordSearch& operator=(const RecordSearch&) = delete;

  /// A table of the image for what the view needs beside the tables, gone with the search.
  std::string scratch() const;
  void makeScratch(const std::string& columns) const;
  /// SELECT of the view: an expression for each field, then one for the place, and what follows FROM.
  void show(const std::vector<std::string>& fields, const std::string& place, const std::string& from);

  /// The nearest place before or behind `from` that `accept` takes and that fits `criteria`. Error 3077 for
  /// its syntax, 3070 for an unknown name.
  std::optional<std::int64_t> find(const std::string& criteria, std::int64_t from, bool forward,
                                   const std::function<bool(std::int64_t)>& accept);
  /// The places that fit `condition` (empty: all), in the order of `order` (empty: as they are).
  std::vector<std::int64_t> all(const std::string& condition, const std::string& order);

 private:
  const file::TableDefinition* findTable(std::string_view name) const override;
  std::optional<std::string> findQuery(std::string_view name) const override;
  image::Statement prepare(const std::string& sql, const Answers& answers);

  std::shared_ptr<Session> session_;
  file::TableDefinition table_;
  std::string lastSql_;
  image::Statement last_;
};

}  // namespace jet::dao
