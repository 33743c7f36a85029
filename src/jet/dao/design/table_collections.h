#pragma once

#include <memory>

#include "jet/dao/table_def.h"
#include "jet/file/errors.h"

namespace jet::dao {

/// TableDef.Fields
class TableFields : public CollectionSource<Field> {
 public:
  explicit TableFields(std::shared_ptr<TableDef> table) : table_(std::move(table)) {}
  const char* title() const override { return source::Fields; }
  std::size_t count() const override;
  Field at(std::size_t position) const override;
  std::optional<std::size_t> find(std::string_view name) const override;
  void append(const Field& field) const override;
  void remove(std::size_t position) const override;

 private:
  void addColumn(TableField& field) const;

  std::shared_ptr<TableDef> table_;
};

/// TableDef.Indexes
class TableIndexes : public CollectionSource<IndexPtr> {
 public:
  explicit TableIndexes(std::shared_ptr<TableDef> table) : table_(std::move(table)) {}
  const char* title() const override { return "DAO.Indexes"; }
  std::size_t count() const override;
  IndexPtr at(std::size_t position) const override;
  std::optional<std::size_t> find(std::string_view name) const override;
  void append(const IndexPtr& index) const override;
  void remove(std::size_t position) const override;

 private:
  /// LogicalIndex::number of those of a stored table.
  std::vector<std::uint32_t> numbers() const;

  std::shared_ptr<TableDef> table_;
};

}  // namespace jet::dao
