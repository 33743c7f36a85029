#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "jet/dao/index.h"
#include "jet/dao/property.h"
#include "jet/dao/recordset.h"

namespace jet::image {
struct Table;
}

namespace jet::dao {

class TableField;

/// The design of one table, or a link to one of another file: a design of its own until it is appended, then
/// the table of the database.
class TableDef : public std::enable_shared_from_this<TableDef> {
 public:
  TableDef(std::shared_ptr<Session> session, std::string name);
  TableDef(std::shared_ptr<Session> session, std::uint32_t page);

  std::string Name() const;
  /// Renames the table. Error 3010 or 3012 if the name is taken.
  void setName(const std::string& name);
  int Attributes() const;  // TableAttribute bits
  /// Of a link ";DATABASE=" and the path of the other file; empty for a table of this one. Settable before
  /// Append (3219 afterwards).
  std::string Connect() const;
  void setConnect(const std::string& connect);
  /// The name that the table has in the other file.
  std::string SourceTableName() const;
  void setSourceTableName(const std::string& name);
  /// -1 for a link.
  std::int64_t RecordCount() const;

  /// In display order. Append adds a column (3191 if there is one of the name), Delete drops it with its data
  /// (3280 while an index uses it, 3303 a relation).
  FieldCollection Fields();
  Field Fields(std::size_t position) { return Fields().Item(position); }
  Field Fields(std::string_view name) { return Fields().Item(name); }
  IndexCollection Indexes();
  IndexPtr Indexes(std::size_t position) { return Indexes().Item(position); }
  IndexPtr Indexes(std::string_view name) { return Indexes().Item(name); }
  /// Error 3219 before Append.
  PropertyCollection Properties();
  Property Properties(std::string_view name) { return Properties().Item(name); }

  /// Objects that aren't part of the table until they are appended to its collections.
  Field CreateField(const std::string& name = "", int type = 0, int size = 0) const;
  IndexPtr CreateIndex(const std::string& name = "") const;
  Property CreateProperty(const std::string& name, int type, const runtime::Variant& value) const;

  RecordsetPtr OpenRecordset(RecordsetType type = {}, int options = 0);

  /// What Append does: makes the table, or the link. Error 3264 without fields, 3010 or 3012 if the name is
  /// taken; 3024 and 3011 if what a link leads to isn't there, 3170 for a kind of source that isn't Jet's.
  void append();

 private:
  friend class TableFields;
  friend class TableIndexes;
  struct Draft {
    std::string name, connect, sourceTableName;
    std::vector<std::shared_ptr<TableField>> fields;
    std::vector<IndexPtr> indexes;
  };
  Draft& draft();
  const image::Table& stored() const;
  const file::TableDefinition& design() const;
  void makeTable();
  void makeLink();

  std::shared_ptr<Session> session_;
  Draft draft_;
  std::optional<std::uint32_t> page_;
};
using TableDefPtr = std::shared_ptr<TableDef>;
using TableDefCollection = Collection<TableDefPtr>;

}  // namespace jet::dao
