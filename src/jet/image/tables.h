#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "jet/file/page/page_file.h"
#include "jet/file/properties.h"
#include "jet/file/write/database_writer.h"
#include "jet/image/connection.h"
#include "jet/image/prepared.h"

/// What all rooms of the image share: the open file, the scratch database, the list of tables, transactions.
namespace jet::image {

struct LinkedTable;

/// How the rows of a table stand in the image. Only Rows changes it.
enum class RowState {
  InFile,        // not at all
  Scanned,       // temp.t<page> shows them as they lie in the file
  Empty,         // main.t<page> is there without them: triggers of other tables name it
  EmptyScanned,  // both
  Loaded,        // main.t<page> holds them
  Constrained,   // and the triggers that watch them
};

/// What of a table the file doesn't have yet. Each includes those above it.
enum class Unsaved { Nothing, Design, Rows, Table };

/// One table as the image knows it. Copied when a transaction begins, so that a rollback puts it back.
struct Table {
  std::string name;
  std::uint32_t page = 0;   // first definition page: the table's id; a link has the id of its catalogue row
  std::uint32_t flags = 0;  // of its catalogue row
  std::shared_ptr<const file::TableDefinition> definition;  // read when first asked for
  std::shared_ptr<const LinkedTable> linked;                // a link, once it was used
  bool link = false;                                        // the table lies in another file
  RowState rows = RowState::InFile;
  Unsaved unsaved = Unsaved::Nothing;

  bool system() const {
    constexpr std::uint32_t systemBits = 0x80000002;
    return (flags & systemBits) != 0;
  }
  bool scanned() const { return rows == RowState::Scanned || rows == RowState::EmptyScanned; }
  /// True if main.t<page> is there.
  bool made() const { return rows >= RowState::Empty; }
  bool loaded() const { return rows >= RowState::Loaded; }
  void note(Unsaved change) {
    if (unsaved < change) unsaved = change;
  }
};

/// The tables of an open `.mdb`. References to a table hold until one is added or removed, or a transaction
/// is taken back.
class Tables {
 public:
  explicit Tables(std::unique_ptr<file::PageFile> source);

  file::PageFile& source() { return *source_; }
  const Connection& connection() const { return connection_; }
  /// Error 3027 in a read-only database.
  void requireWritable() const;

  /// In catalogue order, system ones included.
  const std::vector<Table>& all() const { return state_.tables; }
  std::vector<Table>& all() { return state_.tables; }
  const Table* find(std::string_view name) const;
  /// Error 3078.
  Table& at(std::uint32_t page);
  Table& named(std::string_view name, int errorNumber);
  /// A table of this file whose design may be changed. Errors 3027, 3057, 3078, 3111.
  Table& changeable(std::uint32_t page);
  Table& changeable(std::string_view name);
  Table& add(Table table);
  void remove(std::uint32_t page);
  void rename(Table& table, const std::string& newName);
  /// A page that no table of the file has, nor was given out before.
  std::uint32_t newPage();

  Generation generation() const { return generation_; }
  /// What was prepared for the designs until now holds no longer.
  void endGeneration() { generation_ = Generation{static_cast<std::uint64_t>(generation_) + 1}; }

  // Transactions nest. They take back with the tables:
  /// the last auto-numbers given out, by page;
  std::map<std::uint32_t, std::int32_t>& autoNumbers() { return state_.autoNumbers; }
  /// the properties that were read, by the object's id.
  std::map<std::uint32_t, std::shared_ptr<const file::PropertyBlock>>& properties() {
    return state_.properties;
  }
  void begin();
  void commit();
  void rollback();
  std::size_t depth() const { return saved_.size(); }

  /// True if the file doesn't have everything yet.
  bool changed() const;
  /// Definition pages of tables that the file still has.
  const std::vector<std::uint32_t>& dropped() const { return state_.dropped; }
  /// Goes on over the file just written.
  void rebase(std::unique_ptr<file::PageFile> source);

 private:
  struct State {
    std::vector<Table> tables;
    std::unordered_map<std::string, std::size_t> names;  // name key -> position in tables
    std::vector<std::uint32_t> dropped;
    std::map<std::uint32_t, std::int32_t> autoNumbers;
    std::map<std::uint32_t, std::shared_ptr<const file::PropertyBlock>> properties;
  };
  void indexNames();

  std::unique_ptr<file::PageFile> source_;
  Connection connection_;
  State state_;
  std::vector<State> saved_;  // one for each open transaction
  Generation generation_{};
  std::unique_ptr<file::FreePages> freePages_;
};

}  // namespace jet::image
