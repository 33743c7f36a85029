#include "model.h"

#include <algorithm>
#include <cctype>
#include <numeric>

namespace model {

namespace {

constexpr int DuplicateKey = 3022, NullInKey = 3058, NoParent = 3201, HasChildren = 3200;

/// As far as the texts of the test go: without regard to case and to closing blanks.
std::string folded(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  const std::string large = "Ì", small = "ì";
  for (auto at = text.find(large); at != std::string::npos; at = text.find(large)) text.replace(at, 2, small);
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string keyOf(const runtime::Variant& value) {
  return value.isText() ? folded(value.toText()) : shown(value);
}

}  // namespace

std::size_t Table::column(std::string_view wanted) const {
  return static_cast<std::size_t>(
      std::ranges::find_if(columns, [&](const Column& each) { return each.name == wanted; }) -
      columns.begin());
}

std::vector<std::size_t> Table::displayOrder() const {
  std::vector<std::size_t> order(columns.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::sort(order, {},
                    [&](std::size_t i) { return std::pair(columns[i].position, columns[i].number); });
  return order;
}

Table* Database::find(std::string_view name) {
  const auto found = std::ranges::find_if(tables, [&](const Table& table) { return table.name == name; });
  return found == tables.end() ? nullptr : &*found;
}

const Relation* Database::parentOf(std::string_view child) const {
  const auto found =
      std::ranges::find_if(relations, [&](const Relation& each) { return each.child == child; });
  return found == relations.end() ? nullptr : &*found;
}

bool Database::isRelated(std::string_view table) const {
  return std::ranges::any_of(
      relations, [&](const Relation& each) { return each.child == table || each.parent == table; });
}

int Database::checkUnique(const Table& table, const std::string& column) const {
  const std::size_t at = table.column(column);
  std::vector<std::string> keys;
  for (const Row& row : table.rows)
    if (!row[at].isNull()) keys.push_back(keyOf(row[at]));
  std::ranges::sort(keys);
  return std::ranges::adjacent_find(keys) == keys.end() ? 0 : DuplicateKey;
}

int Database::checkParent(const Relation& relation) const {
  const auto named = [&](const std::string& name) {
    return std::ranges::find_if(tables, [&](const Table& table) { return table.name == name; });
  };
  const Table& parent = *named(relation.parent);
  const Table& child = *named(relation.child);
  const std::size_t key = parent.column(relation.parentColumn), foreign = child.column(relation.childColumn);
  std::vector<std::string> keys;
  for (const Row& row : parent.rows) keys.push_back(keyOf(row[key]));
  std::ranges::sort(keys);
  const bool orphan = std::ranges::any_of(child.rows, [&](const Row& row) {
    return !row[foreign].isNull() && !std::ranges::binary_search(keys, keyOf(row[foreign]));
  });
  return orphan ? NoParent : 0;
}

/// The indexes of a table, then its parent.
int Database::keepRules(const Table& table) const {
  for (const Index& index : table.indexes) {
    const std::size_t at = table.column(index.column);
    if (index.primary && std::ranges::any_of(table.rows, [&](const Row& row) { return row[at].isNull(); }))
      return NullInKey;
    if (!index.unique) continue;
    if (const int error = checkUnique(table, index.column)) return error;
  }
  const Relation* relation = parentOf(table.name);
  return relation ? checkParent(*relation) : 0;
}

int Database::insert(Table& table, Row row) {
  for (std::size_t i = 0; i < row.size(); ++i) {
    if (!table.columns[i].autoNumber) continue;
    if (row[i].isNull()) row[i] = table.lastNumber + 1;
    table.lastNumber = std::max(table.lastNumber, row[i].toLong());
  }
  table.rows.push_back(std::move(row));
  return keepRules(table);
}

int Database::update(Table& table, std::size_t row, std::size_t column, const runtime::Variant& value) {
  const runtime::Variant old = table.rows[row][column];
  table.rows[row][column] = value;
  for (const Relation& relation : relations) {
    if (relation.parent != table.name || table.column(relation.parentColumn) != column || sameKey(old, value))
      continue;
    Table& child = *find(relation.child);
    const std::size_t foreign = child.column(relation.childColumn);
    for (std::size_t i = 0; i < child.rows.size(); ++i) {
      if (!sameKey(child.rows[i][foreign], old)) continue;
      if (!relation.cascadeUpdate) return HasChildren;
      child.rows[i][foreign] = value;
    }
    if (const int error = keepRules(child)) return error;
  }
  return keepRules(table);
}

int Database::remove(Table& table, std::vector<std::size_t> rows) {
  std::vector<Row> gone;
  for (auto each = rows.rbegin(); each != rows.rend(); ++each) {
    gone.push_back(table.rows[*each]);
    table.rows.erase(table.rows.begin() + static_cast<std::ptrdiff_t>(*each));
  }
  for (const Relation& relation : relations) {
    if (relation.parent != table.name) continue;
    Table& child = *find(relation.child);
    const std::size_t foreign = child.column(relation.childColumn), key = table.column(relation.parentColumn);
    std::vector<std::size_t> children;
    for (std::size_t i = 0; i < child.rows.size(); ++i)
      if (std::ranges::any_of(gone,
                              [&](const Row& row) { return sameKey(row[key], child.rows[i][foreign]); }))
        children.push_back(i);
    if (children.empty()) continue;
    if (!relation.cascadeDelete) return HasChildren;
    if (const int error = remove(child, std::move(children))) return error;
  }
  return 0;
}

bool sameKey(const runtime::Variant& a, const runtime::Variant& b) {
  return !a.isNull() && !b.isNull() && keyOf(a) == keyOf(b);
}

std::string shown(const runtime::Variant& value) {
  if (value.isNull()) return "Null";
  const std::string kind = std::to_string(static_cast<int>(value.kind())) + ":";
  if (const auto* bytes = std::get_if<runtime::Bytes>(&value.value())) {
    std::string text = kind;
    for (const std::byte byte : *bytes) text += std::to_string(std::to_integer<int>(byte)) + ",";
    return text;
  }
  return kind + value.toText();
}

std::string shown(const Database& database) {
  std::string text;
  for (const Table& table : database.tables) {
    text += "table " + table.name + "\n";
    const auto order = table.displayOrder();
    for (const std::size_t i : order) {
      const Column& column = table.columns[i];
      text += "  column " + column.name + " " + std::to_string(column.type) + " " +
              std::to_string(column.size) + (column.autoNumber ? " counter" : "") + "\n";
    }
    auto indexes = table.indexes;
    std::ranges::sort(indexes, {}, &Index::name);
    for (const Index& index : indexes)
      text += "  index " + index.name + " (" + index.column + ")" + (index.unique ? " unique" : "") +
              (index.primary ? " primary" : "") + "\n";
    for (const Row& row : table.rows) {
      text += "  row";
      for (const std::size_t i : order) text += " " + shown(row[i]);
      text += "\n";
    }
  }
  auto relations = database.relations;
  std::ranges::sort(relations, {}, &Relation::name);
  for (const Relation& each : relations)
    text += "relation " + each.name + ": " + each.child + "." + each.childColumn + " -> " + each.parent +
            "." + each.parentColumn + (each.cascadeUpdate ? " update" : "") +
            (each.cascadeDelete ? " delete" : "") + "\n";
  return text;
}

}  // namespace model
