#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "jet/file/definition.h"
#include "jet/sql/type.h"
#include "runtime/variant.h"

/// From Jet SQL to what the image executes: lexer -> parser -> syntax tree -> binder -> bound tree ->
/// translation.
namespace jet::sql {

/// Answers to a statement's parameters, in their order; those not answered are empty.
using Answers = std::vector<std::optional<runtime::Variant>>;

struct RowStatement;

/// What the binder asks of the open database.
class Schema {
 public:
  virtual ~Schema() = default;
  /// The table's definition, or nullptr; names compare as file::sameName does.
  virtual const file::TableDefinition* findTable(std::string_view name) const = 0;
  /// The text of a stored query that can stand where a table stands; asked where no table has the name.
  virtual std::optional<std::string> findQuery(std::string_view) const { return std::nullopt; }
  /// The text of any stored query, for EXECUTE.
  virtual std::optional<std::string> findAction(std::string_view) const { return std::nullopt; }
  /// The values of `list`, a SELECT of one column, as they are now: a crosstab's columns. Nothing while a
  /// parameter of `list` is not answered.
  virtual std::optional<std::vector<runtime::Variant>> values(const RowStatement&, const Answers&) const {
    return std::nullopt;
  }
  /// The expression that a new row gets in a column that is given no value; empty where there is none.
  virtual std::string defaultOf(const file::TableDefinition&, const file::Column&) const { return {}; }
};

/// A parameter of a statement, declared by PARAMETERS or found as an unknown name; in order of appearance.
struct Parameter {
  std::string name;
  Type type;  // Type::Variant where not declared
};

struct ResultColumn {
  std::string name;
  Type type;
  std::string sourceTable, sourceColumn;  // empty for an expression
  std::optional<std::size_t> table;       // entry of RowStatement::tables that it shows a column of
};

/// A table that a query reads or changes, with what of it is used.
struct TouchedTable {
  std::uint32_t page = 0;               // TableDefinition::page
  std::string alias;                    // as the statement calls it
  std::vector<std::uint16_t> compared;  // Column::number of columns in conditions, joins, grouping or sorting
  /// What happens to its rows.
  enum class Change { None, Insert, Update, Delete };
  Change change = Change::None;
  std::vector<std::uint16_t> assigned;  // Column::number of the columns that an UPDATE gives values
};

/// SELECT, UPDATE, INSERT or DELETE as SQLite SQL over the image: table `t<page>`, columns `c<number>`,
/// parameter i of `parameters` is ?<i+1>.
struct RowStatement {
  enum class Kind { Select, Update, Insert, Delete };
  Kind kind = Kind::Select;
  std::string sql;
  std::vector<Parameter> parameters;
  std::vector<ResultColumn> columns;  // Select
  std::vector<TouchedTable> tables;
  /// Select with `withRowKeys`, where each result row stands for one row of each table: the result has,
  /// behind `columns`, the rowid of each of the first `rowKeys` entries of `tables`, which are the tables of
  /// FROM in order (the others belong to sub-queries); Null where an outer join found no row. Zero otherwise:
  /// grouping, DISTINCT, UNION, a query in FROM.
  std::size_t rowKeys = 0;
  /// UPDATE, INSERT and DELETE in two steps, so that a row whose value does not convert, or that breaks a
  /// key, fails alone. The answers to the parameters are bound to all statements. `sql` is empty where the
  /// steps are the only way: several tables are changed, a join may reach a row twice whose new value is made
  /// from its old one, or an outer join finds no row to change, so that one is added.
  struct Steps {
    /// A SELECT whose rows are kept before any of them is applied, so that what is applied does not change
    /// which rows there are: the rowids to change, and what each new value takes from elsewhere than its own
    /// row.
    std::string spool;
    /// Carried out for one row of the spool after the other, which is the only row of temp.jet_rows then. New
    /// values are computed and converted here, from the row as the rows before have left it.
    std::vector<std::string> apply;
  };
  std::optional<Steps> steps;
  /// A function of a domain may ask for any table, by a name that is known only when it runs.
  bool mayReadAnyTable = false;
  /// The columns of a crosstab were rows when it was compiled: next time there may be others.
  bool columnsFromRows = false;
};

/// An index, or ALTER TABLE ... ADD CONSTRAINT of a key.
struct CreateIndex {
  struct Part {
    std::string column;
    bool ascending = true;
  };
  std::string table, name;
  std::vector<Part> columns;
  bool unique = false, primary = false, disallowNull = false, ignoreNull = false;
};

/// REFERENCES: rows of `table` point at rows of `parent`.
struct CreateRelation {
  std::string name, table, parent;
  std::vector<std::string> columns;        // of `table`
  std::vector<std::string> parentColumns;  // in the same order; empty: those of the parent's primary key
  bool cascadeUpdate = false, cascadeDelete = false;
};

struct NewColumn {
  std::string name;
  file::ColumnType type = file::ColumnType::Text;
  std::uint16_t size = 0;                  // Text: characters (255 if not told), Binary: bytes
  std::uint8_t precision = 18, scale = 0;  // Numeric
  bool autoNumber = false;
  std::int32_t seed = 1;  // first number of an auto-number
  bool notNull = false;
  std::string defaultValue;  // an expression; empty: none
};

/// CREATE TABLE; page numbers, slots and offsets are the image's business.
struct CreateTable {
  std::string table;
  std::vector<NewColumn> columns;
  std::vector<CreateIndex> indexes;  // of its constraints
  std::vector<CreateRelation> relations;
};

/// ALTER TABLE ... ADD COLUMN.
struct AddColumn {
  std::string table;
  NewColumn column;
  std::vector<CreateIndex> indexes;
  std::vector<CreateRelation> relations;
};
/// ALTER TABLE ... ALTER COLUMN: another type, size or rule; the values are converted.
struct AlterColumn {
  std::string table;
  NewColumn column;
};
struct SetDefault {
  std::string table, column;
  std::string defaultValue;  // an expression; empty: none from now on
};
struct DropColumn {
  std::string table, column;
};
/// ALTER TABLE ... DROP CONSTRAINT: an index or a relation of the table.
struct DropConstraint {
  std::string table, name;
};
/// SELECT ... INTO: a new table of the rows' columns.
struct SelectInto {
  std::string table;
  RowStatement rows;
};

struct DropTable {
  std::string table;
};
struct DropIndex {
  std::string table, name;
};

using Statement = std::variant<RowStatement, CreateTable, CreateIndex, CreateRelation, AddColumn, AlterColumn,
                               SetDefault, DropColumn, DropConstraint, SelectInto, DropTable, DropIndex>;

struct Options {
  bool withRowKeys = false;
  Answers answers = {};  // as far as they are known; a crosstab's columns may hang on them
};

/// Parses, binds and translates one statement (a closing semicolon is allowed). Every error of the
/// statement's text is a SyntaxError with its place: 3075 and its kin for syntax, 3078 unknown table, 3464
/// types that can't be compared and so on. 3061 is the caller's when a parameter stays unanswered.
Statement compile(std::string_view text, const Schema& schema, const Options& options = {});

/// The condition under which a row keeps a rule of `column`, or of its table where that is nullptr: SQLite
/// SQL about the row NEW of a trigger, Null where the rule says nothing. The column itself stands where the
/// text leaves out the left side of a comparison (">0", "Like 'A*'", "Is Null Or >5"). A SyntaxError as of
/// compile, 3387 for a name that is no column of the table.
std::string compileRule(std::string_view text, const file::TableDefinition& table, const file::Column* column,
                        const Schema& schema);

}  // namespace jet::sql
