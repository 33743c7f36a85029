#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "jet/file/errors.h"
#include "jet/file/page/page_file.h"
#include "jet/file/properties.h"
#include "jet/file/read/catalogue.h"
#include "jet/file/write/database_writer.h"
#include "jet/image/connection.h"
#include "jet/image/design.h"
#include "jet/image/relation_design.h"

/// The working image of an open database: its rows in SQLite, its tables' designs beside them.
namespace jet::image {

struct LinkedTable;

/// One table as the image knows it. Copied when a transaction begins, so that a rollback puts it back.
struct Table {
  std::string name;
  std::uint32_t page = 0;   // first definition page: the table's id; a link has the id of its catalogue row
  std::uint32_t flags = 0;  // of its catalogue row
  std::shared_ptr<const file::TableDefinition> definition;  // read when first asked for
  std::shared_ptr<const LinkedTable> linked;                // a link, once it was used
  bool link = false;                                        // the table lies in another file
  bool made = false;                                        // t<page> stands in the image, perhaps empty
  bool loaded = false;                                      // and holds the rows
  bool scanned = false;                                     // t<page> stands for the rows in the file
  bool guarded = false;                                     // rules and relations stand in the image
  bool rowsChanged = false;                                 // rows must be written anew
  bool designChanged = false;                               // definition must be written anew
  bool isNew = false;                                       // not in the file yet

  bool system() const {
    constexpr std::uint32_t systemBits = 0x80000002;
    return (flags & systemBits) != 0;
  }
};

/// What is about to happen to rows of a table; from it follows which other tables' rows are needed.
struct RowChange {
  enum class Kind { Any, Insert, Update, Delete };
  Kind kind = Kind::Any;
  std::vector<std::uint16_t> assigned;  // Update: Column::number of the columns that get values; none: any
};

/// A table that lies in another file, as the catalogue tells of it.
struct Link {
  std::string path;         // of the other file
  std::string sourceTable;  // the table's name there
  std::string connect;      // kind of source; empty: a Jet file
};

/// The condition in SQLite SQL, about the row NEW of a trigger, under which a row keeps a validation rule of
/// a column, or of its table where that is nullptr. Throws where the rule makes no sense.
using RuleCompiler =
    std::function<std::string(const file::TableDefinition&, const file::Column*, const std::string& rule)>;

/// Tables and stored rows of one open `.mdb`. A table's rows are loaded when a statement first needs them; a
/// table that nothing changed is carried over page by page when the file is saved.
class Image {
 public:
  explicit Image(std::unique_ptr<file::PageFile> source);
  ~Image();

  file::PageFile& source() { return *source_; }
  const Connection& connection() const { return connection_; }

  /// Validation rules are watched once there is somebody who can read them.
  void setRuleCompiler(RuleCompiler compiler) { compileRule_ = std::move(compiler); }

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
  /// Makes `t<page>` ready for `change`: unique and required indexes, Required, AllowZeroLength
  /// and validation rules, auto-numbers and relations are watched (3022, 3058, 3314 to 3317, 3200, 3201). Of
  /// the tables that relations lead to only those are loaded that the change can meet. Error 3027 in a
  /// read-only database and for a link, 3111 for a system table; that of a rule that can't be read.
  void prepareToChange(std::uint32_t page, const std::vector<std::uint16_t>& compared,
                       const RowChange& change = {});
  /// Notes that rows of the table have changed, and those of other tables that cascades of the last statement
  /// changed.
  void markChanged(std::uint32_t page);

  // Tables and their indexes (design_changes.cpp). Every change of design is whole or not at all, and error
  // 3027 in a read-only database; 3057 where it is not for links.

  /// Adds a table of this design (page, rows and maps are the image's business) with the properties of itself
  /// and its columns. Error 3010 if the name is taken, 3012 by a query or link, 3111 by a system table.
  void createTable(file::TableDefinition design, const file::PropertyBlock& properties = {});
  /// Drops a table, or a link and not what it leads to. Error 3376 if there is none, 3281 while a relation
  /// stands on it, 3111 for a system table.
  void dropTable(std::string_view name);
  /// Renames a table or link, in relations too. Errors 3078, 3010 or 3012 if the name is taken, 3125.
  void renameTable(std::string_view name, const std::string& newName);
  /// Errors as addIndex; 3022 or 3058 if the rows don't allow it.
  void createIndex(std::string_view table, const IndexDesign& design);
  /// Errors as removeIndex.
  void dropIndex(std::string_view table, std::string_view name);
  void renameIndex(std::string_view table, std::string_view name, const std::string& newName);

  // Columns (column_changes.cpp)

  /// Appends a column (newColumn) and gives its number. Rows hold Null there (Boolean: False), an auto-number
  /// counts them in their order. Its rules and default are properties, set afterwards. Errors as
  /// image::addColumn.
  std::uint16_t addColumn(std::uint32_t page, file::Column column);
  /// Puts column `with` in the place of column `name`, which goes: `with` takes its name, its position, its
  /// part in indexes (made anew) and, unless `with` has its own of that name, its properties. How the values
  /// come over is the caller's business, beforehand. Error 3303 while a relation uses the old column, 3022 or
  /// 3058 if the rows don't allow an index.
  void replaceColumn(std::uint32_t page, std::string_view name, std::string_view with);
  /// Another size of a Text (characters) or Binary (bytes) column. Error 3163 if a value is longer.
  void resizeColumn(std::uint32_t page, std::string_view name, std::uint16_t size);
  /// Error 3191 if the table has the name. Relations follow.
  void renameColumn(std::uint32_t page, std::string_view name, const std::string& newName);
  /// Lets a Long column give out numbers, beginning behind the largest it holds. Error 3090 for a second one
  /// in the table, 3259 for another type.
  void makeAutoNumber(std::uint32_t page, std::string_view name);
  /// The place in the order of `*`. Equal positions follow the order in which the columns were made; a
  /// negative one is before all others. Error 3259 beyond 65535.
  void moveColumn(std::uint32_t page, std::string_view name, std::int32_t position);
  /// Error 3280 while an index uses it, 3303 while a relation does.
  void dropColumn(std::uint32_t page, std::string_view name);

  // Relations (relation_changes.cpp)

  /// All relations of the file, in the order in which they were made.
  std::vector<RelationDesign> relations();
  /// Error 3012 if the name is taken, 3078 unknown table, 3265 unknown column; 3366 without columns; where it
  /// is enforced also 3368 types that differ, 3609 no unique index over just the parent's columns, 3201 rows
  /// without a parent, 3057 a linked table, 3284 an index of the foreign table has the name.
  void createRelation(const RelationDesign& design);
  /// Error 3265 if there is none.
  void dropRelation(std::string_view name);

  // Objects of the catalogue, properties, links (objects.cpp, links.cpp)

  /// Objects of this type in the order of the catalogue.
  std::vector<file::CatalogueObject> objects(file::ObjectType type);
  /// The table, link or query of this name, or what lies in another container.
  std::optional<file::CatalogueObject> findObject(std::string_view name,
                                                  std::uint32_t container = file::TablesContainer);
  /// Adds an object without a page of its own (a query) in the container of tables and gives its id, the
  /// lowest that is free. Error 3012 if the name is taken.
  std::uint32_t createObject(const std::string& name, file::ObjectType type, std::uint32_t flags);
  /// Sets name and flags of an object of the container of tables, and the time of its last change. Error 3012
  /// if another object has the name.
  void changeObject(std::uint32_t id, const std::string& name, std::uint32_t flags);
  /// Removes an object without a page of its own, with its permissions.
  void dropObject(std::uint32_t id);
  /// Makes a system table ready for rows to be added with plain statements, and notes the change.
  void changeSystemTable(std::uint32_t page);

  /// Properties of an object by its id (a table's is its page) and of its columns; valid until a change.
  const file::PropertyBlock& properties(std::uint32_t id);
  /// Adds or replaces a property of the object (empty `column`) or of a column. It is kept as given: see
  /// property_values.h for the types.
  void setProperty(std::uint32_t id, std::string_view column, const file::PropertyItem& item);
  /// Nothing happens where there is none.
  void removeProperty(std::uint32_t id, std::string_view column, std::string_view name);

  /// Links table `sourceTable` of the file `path` under a name. The file is looked at when the link is used:
  /// 3024 no such file, 3044 no such folder, 3011 no such table in it, 3170 another kind of source. Error
  /// 3012 if the name is taken.
  void linkTable(const std::string& name, const Link& link);
  /// What a link leads to; nothing for a table of this file.
  std::optional<Link> link(std::uint32_t page);

  /// Another number after each change of design, and whenever t<page> of a table may have gone: a statement
  /// compiled and made ready while it was the same can be run again as it is.
  std::uint64_t generation() const { return generation_; }

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
    std::map<std::uint32_t, std::shared_ptr<const file::PropertyBlock>> properties;  // those read, by id
  };

  /// The number given out last by this connection, 0 before the first.
  static void identity(sqlite3_context* context, int count, sqlite3_value** values);
  static void autoNumber(sqlite3_context* context, int count, sqlite3_value** values);
  /// Called where a cascade changes rows of another table.
  static void cascaded(sqlite3_context* context, int count, sqlite3_value** values);

  Table& table(std::uint32_t page);
  Table& tableNamed(std::string_view name, int errorNumber);
  /// A table of this file that may be altered. Errors 3027, 3057, 3078, 3111.
  Table& changeable(std::uint32_t page);
  Table& changeable(std::string_view name);
  const file::TableDefinition& definition(Table& table);
  const file::TableDefinition& linkedDefinition(Table& table);
  void indexNames();
  void requireWritable() const;

  /// Makes the empty t<page>.
  void makeRows(Table& table);
  void load(Table& table);
  void loadFromFile(const file::TableDefinition& design);
  void loadFrom(const file::PageFile& pages, const file::TableDefinition& design, const Table& table);
  /// Takes t<page> out of the image, as it stands in the file's stead or as a scan.
  void dropRows(Table& table);
  void dropScan(Table& table);
  void makeIndexes(const file::TableDefinition& definition, const std::vector<std::uint16_t>& compared,
                   bool changing);
  /// Makes t<page> and the rows that relations of it need ready for a change. What was readied for the same
  /// statement already is in `done`.
  struct Readied {
    std::uint32_t page;
    RowChange::Kind kind;
    std::vector<std::uint16_t> assigned;
    bool operator==(const Readied&) const = default;
  };
  void readyChange(Table& table, const std::vector<std::uint16_t>& compared, const RowChange& change,
                   std::vector<Readied>& done);
  void readyPartners(Table& table, const RowChange& change, std::vector<Readied>& done);

  /// Sets up the triggers of a table.
  void guard(Table& table);
  void guardAutoNumber(Table& table, const file::Column& column);
  struct Bond;
  std::vector<Bond> bonds(Table& table, file::LogicalIndex::Side side);
  /// Condition under which a row of the other table is the partner of row `changed`, NEW or OLD.
  static std::string partners(const Bond& bond, const std::string& changed, bool changedIsChild);
  void guardRelations(Table& table);
  void guardAsChild(const Bond& bond, std::size_t number);
  void guardAsParent(const Bond& bond, std::size_t number);
  /// Takes the triggers (and the indexes) of a table out of the image; they are made anew when needed.
  void dropTriggers(Table& table);
  void dropRules(Table& table);
  /// The triggers of a table and of those that relations lead to.
  void dropTriggersAround(const Table& table);

  /// A design that the file doesn't have yet.
  void setDefinition(Table& table, file::TableDefinition definition);
  /// Errors 3022 and 3058 if the rows don't allow the real index at this position.
  void checkRows(Table& table, const file::TableDefinition& design, std::size_t index);
  void requireUnrelated(const Table& owner, const file::Column& column);
  void forgetSlotZero(Table& table, const file::Column& gone);

  void enforce(const RelationDesign& relation, std::uint32_t parent, std::uint32_t child);
  void checkPartners(const RelationDesign& relation, Table& parent, Table& child);
  void release(const RelationDesign& relation);

  void renameObject(std::uint32_t id, const std::string& newName);
  void removeObject(std::uint32_t id);
  void changeProperties(std::uint32_t id, file::PropertyBlock block);

  std::unique_ptr<file::PageFile> source_;
  Connection connection_;
  RuleCompiler compileRule_;
  State state_;
  std::vector<State> saved_;  // one for each open transaction
  std::uint64_t generation_ = 0;
  std::unique_ptr<file::FreePages> freePages_;
  std::int32_t identity_ = 0;
  std::set<std::uint32_t> cascaded_;  // tables that cascades changed since the last prepareToChange
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
