#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/variant.h"

/// A database as plain vectors: what the engine's must equal after every step.
namespace model {

struct Column {
  std::string name;
  int type = 0;  // jet::dao::DataType
  int size = 0;  // characters of a text
  bool autoNumber = false;
  int position = 0;
  int number = 0;  // among those of one position the lower comes first
};

struct Index {
  std::string name;
  std::string column;
  bool unique = false, primary = false;
};

using Row = std::vector<runtime::Variant>;  // in the order of Table::columns

struct Table {
  std::string name;
  std::vector<Column> columns;  // in the order of creation
  std::vector<Index> indexes;
  std::vector<Row> rows;
  std::int32_t lastNumber = 0;  // of the auto-number
  int created = 0;              // columns ever made

  std::size_t column(std::string_view name) const;  // of a column that is there
  std::vector<std::size_t> displayOrder() const;
};

/// Rows of `child` point at rows of `parent`; a table has at most one parent, and never itself among its
/// ancestors.
struct Relation {
  std::string name, parent, parentColumn, child, childColumn;
  bool cascadeUpdate = false, cascadeDelete = false;
};

struct Database {
  std::vector<Table> tables;
  std::vector<Relation> relations;

  Table* find(std::string_view name);
  const Relation* parentOf(std::string_view child) const;
  bool isRelated(std::string_view table) const;

  // Each gives the number of the engine's error, or 0; after an error the database is in disorder, so that it
  // is tried on a copy.
  int insert(Table& table, Row row);
  int update(Table& table, std::size_t row, std::size_t column, const runtime::Variant& value);
  /// Rows that are given by their places, ascending.
  int remove(Table& table, std::vector<std::size_t> rows);
  int checkUnique(const Table& table, const std::string& column) const;
  int checkParent(const Relation& relation) const;

 private:
  int keepRules(const Table& table) const;
};

/// Two values that an index can't tell apart: numbers that are equal, texts that are equal but for case.
bool sameKey(const runtime::Variant& a, const runtime::Variant& b);
/// The value with its kind, for comparisons and messages.
std::string shown(const runtime::Variant& value);
/// Tables, columns, indexes, relations and rows, one a line.
std::string shown(const Database& database);

}  // namespace model
