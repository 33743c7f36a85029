#pragma once

#include <optional>

#include "jet/image/linked_table.h"
#include "jet/image/tables.h"

namespace jet::image {

/// Brings definitions and rows of the tables from the file, or from the one that a link leads to, into the
/// image, and takes them out again. All changes of RowState are here.
class Rows {
 public:
  explicit Rows(Tables& tables);
  Rows(const Rows&) = delete;
  Rows& operator=(const Rows&) = delete;

  const file::PageFile& source() const { return tables_.source(); }
  /// Read when first asked for, a link's anew if its file has changed. Errors of links: findLinked, 3170.
  const file::TableDefinition& definition(Table& table);
  std::shared_ptr<const file::TableDefinition> sharedDefinition(std::uint32_t page);
  /// What a link leads to; nothing for a table of this file.
  std::optional<Link> link(const Table& table);

  /// Loaded, if it isn't yet.
  void load(Table& table);
  /// Scanned, where the table is large and not loaded; else loaded.
  void scan(Table& table);
  /// Makes the t<page> of a table that is new and has no rows: Loaded.
  void makeNew(Table& table);
  /// At least Empty.
  void makeTable(Table& table);
  /// Makes the indexes of t<page> that begin with one of `compared`, for a change the unique ones too. Error
  /// 3022 if the rows don't allow one.
  void makeIndexes(const file::TableDefinition& design, const std::vector<std::uint16_t>& compared,
                   bool changing);
  /// Notes that a loaded table has all its triggers.
  static void markConstrained(Table& table);

  // What was prepared before holds no longer after each of these.
  void dropTriggers(Table& table);
  void dropIndexesAndTriggers(Table& table);
  void dropScan(Table& table);
  /// Back to InFile.
  void drop(Table& table);

 private:
  const file::TableDefinition& linkedDefinition(Table& table);
  void createTable(const file::TableDefinition& design) const;
  void loadFromFile(const file::TableDefinition& design) const;
  void loadFromLink(const file::PageFile& pages, const file::TableDefinition& design,
                    const Table& table) const;

  Tables& tables_;
  const Connection& connection_;
};

}  // namespace jet::image
