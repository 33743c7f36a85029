#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "jet/dao/constants.h"
#include "jet/dao/property.h"
#include "jet/dao/query_def.h"
#include "jet/dao/recordset.h"
#include "jet/dao/relation.h"
#include "jet/dao/table_def.h"

namespace jet::dao {

/// An open database. Closing it without a transaction saves its changes; inside one, CommitTrans of the
/// workspace does, also after the close. Error 3420 after Close. An interface with one class behind it, as
/// QueryDef is: who uses the objects includes nothing of the engine below them.
class Database {
 public:
  virtual ~Database() = default;
  virtual const std::string& Name() const = 0;  // its path

  /// `source` is the name of a table or of a stored query, or a SELECT. Without a type, a table of this file
  /// is opened as a table and anything else as a dynaset. Error 3078 unknown table, 3061 parameters, 3075 and
  /// kin syntax.
  virtual RecordsetPtr OpenRecordset(const std::string& source, RecordsetType type = {}, int options = 0) = 0;
  /// Runs a statement that returns no rows, or the stored query of that name: UPDATE, INSERT, DELETE or a
  /// change of design. With dbFailOnError all its rows are changed or none; without it, rows that a key, a
  /// rule, a relation or a conversion refuses are left out in silence. Error 3065 for a SELECT.
  virtual void Execute(const std::string& sql, int options = 0) = 0;
  virtual std::int64_t RecordsAffected() const = 0;  // of the last Execute

  /// All tables and links in catalogue order, system tables included. Delete drops a table with its rows
  /// (3281 while a relation stands on it), or a link.
  virtual TableDefCollection TableDefs() = 0;
  TableDefPtr TableDefs(std::string_view name) { return TableDefs().Item(name); }
  /// In the order in which they were made.
  virtual RelationCollection Relations() = 0;
  RelationPtr Relations(std::string_view name) { return Relations().Item(name); }
  /// The stored queries in catalogue order, hidden ones included.
  virtual QueryDefCollection QueryDefs() = 0;
  QueryDefPtr QueryDefs(std::string_view name) { return QueryDefs().Item(name); }

  /// Objects that aren't in the database until they are appended to its collections.
  virtual TableDefPtr CreateTableDef(const std::string& name = "") = 0;
  virtual RelationPtr CreateRelation(const std::string& name = "", const std::string& table = "",
                                     const std::string& foreignTable = "", int attributes = 0) = 0;
  virtual Property CreateProperty(const std::string& name, int type, const runtime::Variant& value) = 0;
  /// A temporary query where `name` is empty; else one that is stored at once. Error 3012 if the name is
  /// taken, 3075 and kin for syntax; the tables it names need not exist.
  virtual QueryDefPtr CreateQueryDef(const std::string& name, const std::string& sql) = 0;

  /// Saves where no transaction holds it back, and lets the file go. An error of the save leaves the old file
  /// and closes the database all the same.
  virtual void Close() = 0;
};
using DatabasePtr = std::shared_ptr<Database>;

}  // namespace jet::dao
