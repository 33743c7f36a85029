#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "jet/dao/constants.h"
#include "jet/dao/query_def.h"
#include "jet/dao/recordset.h"
#include "jet/dao/table_def.h"

namespace jet::dao {

/// A relation between two tables, as far as it is read.
struct Relation {
  struct Pair {
    std::string field, foreignField;
  };
  std::string Name, Table, ForeignTable;
  int Attributes = 0;  // RelationAttribute
  std::vector<Pair> Fields;
};

/// An open database. Closing it without a transaction saves its changes; inside one, CommitTrans of the
/// workspace does, also after the close. Error 3420 after Close.
class Database {
 public:
  virtual ~Database() = default;
  virtual const std::string& Name() const = 0;  // its path

  /// `source` is the name of a table or of a stored query, or a SELECT. Error 3078 unknown table, 3061
  /// parameters, 3075 and kin syntax.
  virtual RecordsetPtr OpenRecordset(const std::string& source, RecordsetType type = dbOpenDynaset,
                                     int options = 0) = 0;
  /// A temporary query where `name` is empty; else one that is stored. Error 3012 if the name is taken, 3075
  /// and kin for syntax; the tables it names need not exist.
  virtual QueryDefPtr CreateQueryDef(const std::string& name, const std::string& sql) = 0;
  /// Runs a statement that returns no rows, or the stored query of that name: UPDATE, INSERT, DELETE or a
  /// change of design. Error 3065 for a SELECT.
  virtual void Execute(const std::string& sql, int options = 0) = 0;
  virtual std::int64_t RecordsAffected() const = 0;  // of the last Execute

  /// Names of all tables, system ones included, in catalogue order.
  virtual std::vector<std::string> tableNames() const = 0;
  /// Error 3265 if there is none.
  virtual TableDefPtr TableDefs(std::string_view name) = 0;
  /// The collection always shows the current state; kept for the suite's calls.
  virtual void refreshTableDefs() {}
  virtual std::vector<Relation> Relations() const = 0;
  /// Names of all stored queries in catalogue order, hidden ones included.
  virtual std::vector<std::string> queryNames() const = 0;
  /// Error 3265 if there is none.
  virtual QueryDefPtr QueryDefs(std::string_view name) = 0;
  virtual void deleteQueryDef(std::string_view name) = 0;

  /// Saves where no transaction holds it back, and lets the file go. An error of the save leaves the old file
  /// and closes the database all the same.
  virtual void Close() = 0;
};
using DatabasePtr = std::shared_ptr<Database>;

}  // namespace jet::dao
