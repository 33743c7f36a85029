#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "jet/image/column_changes.h"
#include "jet/image/constraints.h"
#include "jet/image/relation_changes.h"
#include "jet/image/transaction.h"

/// The working image of an open database: its rows in SQLite, its tables' designs beside them.
namespace jet::image {

/// Tables and stored rows of one open `.mdb`. A table's rows are loaded when a statement first needs them; a
/// table that nothing changed is carried over page by page when the file is saved. The image only opens the
/// doors: what an operation does and which errors it has stands in the header named above each group.
class Image {
 public:
  explicit Image(std::unique_ptr<file::PageFile> source);

  // tables.h

  file::PageFile& source() { return tables_.source(); }
  const Connection& connection() const { return tables_.connection(); }
  const std::vector<Table>& tables() const { return tables_.all(); }
  const Table* find(std::string_view name) const { return tables_.find(name); }
  Generation generation() const { return tables_.generation(); }
  void begin() { tables_.begin(); }
  void commit() { tables_.commit(); }
  void rollback() { tables_.rollback(); }
  std::size_t depth() const { return tables_.depth(); }
  bool changed() const { return tables_.changed(); }
  void rebase(std::unique_ptr<file::PageFile> source) { tables_.rebase(std::move(source)); }
  /// Writes the whole file as it now is.
  void write(platform::File& out);

  // rows.h

  /// The table's definition, or nullptr.
  const file::TableDefinition* definition(std::string_view name);
  const file::TableDefinition& definition(std::uint32_t page) { return rows_.definition(tables_.at(page)); }
  std::shared_ptr<const file::TableDefinition> sharedDefinition(std::uint32_t page) {
    return rows_.sharedDefinition(page);
  }
  std::optional<Link> link(std::uint32_t page) { return rows_.link(tables_.at(page)); }
  /// Makes table `t<page>` ready for a statement that compares, joins or sorts by the columns `compared`;
  /// indexes that begin with one of them are made.
  void prepareToRead(std::uint32_t page, const std::vector<std::uint16_t>& compared);
  /// Makes `t<page>` ready for a statement that reads its rows once, in order: large tables stay in the file.
  void prepareToScan(std::uint32_t page) { rows_.scan(tables_.at(page)); }

  // constraints.h

  void setRuleCompiler(RuleCompiler compiler) { constraints_.setRuleCompiler(std::move(compiler)); }
  void prepareToChange(std::uint32_t page, const std::vector<std::uint16_t>& compared,
                       const RowChange& change = {}) {
    constraints_.prepareToChange(page, compared, change);
  }
  void markChanged(std::uint32_t page) { constraints_.markChanged(page); }

  // catalogue.h

  std::vector<file::CatalogueObject> objects(file::ObjectType type) { return catalogue_.objects(type); }
  std::optional<file::CatalogueObject> findObject(std::string_view name,
                                                  std::uint32_t container = file::TablesContainer) {
    return catalogue_.findObject(name, container);
  }
  std::uint32_t createObject(const std::string& name, file::ObjectType type, std::uint32_t flags) {
    return catalogue_.createObject(name, type, flags);
  }
  void changeObject(std::uint32_t id, const std::string& name, std::uint32_t flags) {
    catalogue_.changeObject(id, name, flags);
  }
  void dropObject(std::uint32_t id) { catalogue_.dropObject(id); }
  void changeSystemTable(std::uint32_t page) { catalogue_.changeSystemTable(page); }
  const file::PropertyBlock& properties(std::uint32_t id) { return catalogue_.properties(id); }
  void setProperty(std::uint32_t id, std::string_view column, const file::PropertyItem& item) {
    catalogue_.setProperty(id, column, item);
  }
  void removeProperty(std::uint32_t id, std::string_view column, std::string_view name) {
    catalogue_.removeProperty(id, column, name);
  }
  void linkTable(const std::string& name, const Link& link) { catalogue_.linkTable(name, link); }
  std::vector<RelationDesign> relations() { return catalogue_.relations(); }

  // table_changes.h

  void createTable(file::TableDefinition design, const file::PropertyBlock& properties = {}) {
    tableChanges_.create(std::move(design), properties);
  }
  void dropTable(std::string_view name) { tableChanges_.drop(name); }
  void renameTable(std::string_view name, const std::string& newName) { tableChanges_.rename(name, newName); }
  void createIndex(std::string_view table, const IndexDesign& design) {
    tableChanges_.createIndex(table, design);
  }
  void dropIndex(std::string_view table, std::string_view name) { tableChanges_.dropIndex(table, name); }
  void renameIndex(std::string_view table, std::string_view name, const std::string& newName) {
    tableChanges_.renameIndex(table, name, newName);
  }

  // column_changes.h

  std::uint16_t addColumn(std::uint32_t page, file::Column column) {
    return columnChanges_.add(page, std::move(column));
  }
  void replaceColumn(std::uint32_t page, std::string_view name, std::string_view with) {
    columnChanges_.replace(page, name, with);
  }
  void resizeColumn(std::uint32_t page, std::string_view name, std::uint16_t size) {
    columnChanges_.resize(page, name, size);
  }
  void renameColumn(std::uint32_t page, std::string_view name, const std::string& newName) {
    columnChanges_.rename(page, name, newName);
  }
  void makeAutoNumber(std::uint32_t page, std::string_view name) {
    columnChanges_.makeAutoNumber(page, name);
  }
  void moveColumn(std::uint32_t page, std::string_view name, std::int32_t position) {
    columnChanges_.move(page, name, position);
  }
  void dropColumn(std::uint32_t page, std::string_view name) { columnChanges_.drop(page, name); }

  // relation_changes.h

  void createRelation(const RelationDesign& design) { relationChanges_.create(design); }
  void dropRelation(std::string_view name) { relationChanges_.drop(name); }

 private:
  // Each room uses those above it.
  Tables tables_;
  Rows rows_;
  Catalogue catalogue_;
  AutoNumbers autoNumbers_;
  Constraints constraints_;
  TableChanges tableChanges_;
  ColumnChanges columnChanges_;
  RelationChanges relationChanges_;
};

}  // namespace jet::image
