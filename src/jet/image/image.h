#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "jet/file/catalogue.h"
#include "jet/file/database_writer.h"
#include "jet/file/page_file.h"
#include "jet/file/properties.h"
#include "jet/image/connection.h"
#include "jet/image/design.h"

/// The working image of an open database: its rows in SQLite, its tables' designs beside them.
namespace jet::image {

/// One table as the image knows it. Copied when a transaction begins, so that a rollback puts it back.
struct Table {
  std::string name;
  std::uint32_t page = 0;                                   // first definition page: the table's id
  std::uint32_t flags = 0;                                  // of its catalogue row
  std::shared_ptr<const file::TableDefinition> definition;  // read when first asked for
  bool loaded = false;                                      // rows lie in the image
  bool scanned = false;                                     // t<page> stands for the rows in the file
  bool guarded = false;                                     // unique indexes and rules stand in the image
  bool rowsChanged = false;                                 // rows must be written anew
  bool designChanged = false;                               // definition must be written anew
  bool isNew = false;                                       // not in the file yet
};

/// Tables and stored rows of one open `.mdb`. A table's rows are loaded when a statement first needs them; a
/// table that nothing changed is carried over page by page when the file is saved.
class Image {
 public:
  explicit Image(std::unique_ptr<file::PageFile> source);
  ~Image();

  file::PageFile& source() { return *source_; }
  const Connection& connection() const { return connection_; }

  /// All tables in catalogue order, system ones included.
  const std::vector<Table>& tables() const { return state_.tables; }
  const Table* find(std::string_view name) const;
  /// The table's definition, or nullptr.
  const file::TableDefinition* definition(std::string_view name);
  const file::TableDefinition& definition(std::uint32_t page);
  std::shared_ptr<const file::TableDefinition> sharedDefinition(std::uint32_t page);

  /// Makes table `t<page>` ready for a statement that compares, joins or sorts by the columns `compared`;
  /// indexes that begin with one of them are made.
  void prepareToRead(std::uint32_t page, const std::vector<std::uint16_t>& compared);
  /// Makes `t<page>` ready for a statement that reads its rows once, in order: large tables stay in the file.
  void prepareToScan(std::uint32_t page);
  /// Makes `t<page>` ready before rows are added, changed or deleted: unique and required indexes and
  /// Required fields are watched from now on (3022, 3058, 3314), auto-numbers given out. Error 3027 in a
  /// read-only database.
  void prepareToChange(std::uint32_t page, const std::vector<std::uint16_t>& compared);
  /// Notes that rows of the table have changed.
  void markChanged(std::uint32_t page);

  /// Adds a table of this design (page, rows and maps are the image's business). Error 3010 if the name is
  /// taken. `required`: names of the columns that must not be null.
  void createTable(file::TableDefinition design, const std::vector<std::string>& required);
  /// Error 3376 if there is none, 3281 while a relation stands on it.
  void dropTable(std::string_view name);
  /// Errors as addIndex; 3022 or 3058 if the rows don't allow it.
  void createIndex(std::string_view table, const IndexDesign& design);
  void dropIndex(std::string_view table, std::string_view name);
  /// Error 3191 if the table has the name.
  void renameColumn(std::uint32_t page, std::string_view name, const std::string& newName);
  /// Error 3280 while an index uses it.
  void dropColumn(std::uint32_t page, std::string_view name);
  /// Adds an object without a page of its own (a query) in the container of tables and gives its id.
  /// Error 3012 if the name is taken.
  std::uint32_t createObject(const std::string& name, file::ObjectType type, std::uint32_t flags);
  /// Sets name and flags of an object of the container of tables, and the time of its last change. Error 3012
  /// if another object has the name.
  void changeObject(std::uint32_t id, const std::string& name, std::uint32_t flags);
  /// Removes an object without a page of its own, with its permissions.
  void dropObject(std::uint32_t id);
  /// Makes a system table ready for rows to be added with plain statements, and notes the change.
  void changeSystemTable(std::uint32_t page);
  /// Properties of an object by its id.
  file::PropertyBlock properties(std::uint32_t id);

  /// Transactions nest.
  void begin();
  void commit();
  void rollback();
  std::size_t depth() const { return saved_.size(); }

  bool changed() const;
  /// Writes the whole file as it now is.
  void write(platform::File& out);
  /// Goes on over the file just written.
  void rebase(std::unique_ptr<file::PageFile> source);

 private:
  struct State {
    std::vector<Table> tables;
    std::unordered_map<std::string, std::size_t> names;  // name key -> position in tables
    std::vector<std::uint32_t> dropped;
    std::map<std::uint32_t, std::int32_t> autoNumbers;  // last ones given out, by page
  };

  static void autoNumber(sqlite3_context* context, int count, sqlite3_value** values);

  Table& table(std::uint32_t page);
  Table& tableNamed(std::string_view name, int errorNumber);
  const file::TableDefinition& definition(Table& table);
  void indexNames();
  void requireWritable() const;
  void createRows(const file::TableDefinition& definition);
  void load(Table& table);
  void makeIndexes(const file::TableDefinition& definition, const std::vector<std::uint16_t>& compared,
                   bool changing);
  void guard(Table& table);
  /// True if an object of the container of tables, other than `except`, has the name.
  bool nameTaken(std::string_view name, std::uint32_t except = 0);
  /// Takes the indexes and rules of a table out of the image; they are made anew when needed.
  void dropRules(Table& table);
  /// A design that the file doesn't have yet.
  void setDefinition(Table& table, file::TableDefinition definition);

  std::unique_ptr<file::PageFile> source_;
  Connection connection_;
  State state_;
  std::vector<State> saved_;  // one for each open transaction
  std::unique_ptr<file::FreePages> freePages_;
};

/// A piece of work that is taken back unless kept.
class Transaction {
 public:
  explicit Transaction(Image& image) : image_(image) { image_.begin(); }
  ~Transaction() {
    if (!kept_) image_.rollback();
  }
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  void keep() {
    image_.commit();
    kept_ = true;
  }

 private:
  Image& image_;
  bool kept_ = false;
};

}  // namespace jet::image
