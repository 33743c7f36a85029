#include "play.h"

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "platform/paths.h"
#include "runtime/error.h"
#include "values.h"

namespace model {

using namespace jet::dao;

namespace {

constexpr std::size_t MostTables = 5, MostRows = 60, MostColumns = 9, MostIndexes = 4;

/// The first lines in which the file and the model differ, with what stands before them.
std::string firstDifference(const std::string& file, const std::string& model) {
  std::istringstream theirs(file), ours(model);
  std::string before, their, our;
  for (int line = 1;; ++line) {
    const bool more = static_cast<bool>(std::getline(theirs, their));
    const bool ourMore = static_cast<bool>(std::getline(ours, our));
    if (!more && !ourMore) return "";
    if (!more || !ourMore || their != our)
      return "line " + std::to_string(line) + ", behind \"" + before + "\"\nfile:  " + (more ? their : "") +
             "\nmodel: " + (ourMore ? our : "");
    before = their;
  }
}

void append(const Column& column, TableDef& definition) {
  const auto field = definition.CreateField(column.name, column.type, column.size);
  if (column.type == dbText || column.type == dbMemo) field.setAllowZeroLength(true);
  definition.Fields().Append(field);
}

template <typename Item>
void eraseNamed(std::vector<Item>& items, const std::string& name) {
  std::erase_if(items, [&](const Item& item) { return item.name == name; });
}

}  // namespace

Play::Play(std::string path, unsigned seed) : path_(std::move(path)), random_(seed) {
  workspace_.CreateDatabase(path_)->Close();
}

const std::vector<Play::WeightedStep>& Play::steps() {
  static const std::vector<WeightedStep> all = {
      {8, &Play::insertRows},  {4, &Play::addRecord},   {6, &Play::editRecord},     {3, &Play::deleteRecord},
      {8, &Play::changeByKey}, {2, &Play::createTable}, {2, &Play::defineTable},    {1, &Play::dropTable},
      {3, &Play::addColumn},   {2, &Play::dropColumn},  {2, &Play::renameColumn},   {1, &Play::moveColumn},
      {3, &Play::createIndex}, {1, &Play::dropIndex},   {3, &Play::createRelation}, {1, &Play::dropRelation},
      {2, &Play::begin},       {1, &Play::commit},      {1, &Play::rollBack},
  };
  return all;
}

std::string Play::session() {
  db_ = workspace_.OpenDatabase(path_, true);
  log_ += "open\n";
  unsigned total = 0;
  for (const WeightedStep& step : steps()) total += step.weight;
  for (unsigned count = 1 + below(12); count > 0 && difference_.empty(); --count) {
    unsigned chosen = below(total);
    for (const WeightedStep& step : steps()) {
      if (chosen < step.weight) {
        (this->*step.run)();
        break;
      }
      chosen -= step.weight;
    }
  }
  finish();
  if (oneIn(8)) compact();
  if (!difference_.empty()) return difference_;
  const std::string theirs = shown(readBack()), ours = shown(model_);
  return firstDifference(theirs, ours);
}

/// Ends the session with its transactions, before or after the close.
void Play::finish() {
  const bool closeFirst = oneIn(2);
  if (closeFirst) db_->Close();
  while (!saved_.empty()) oneIn(3) ? rollBack() : commit();
  if (!closeFirst) db_->Close();
  log_ += "close\n";
}

void Play::compact() {
  log_ += "compact\n";
  const std::string copy = path_ + ".compact";
  DBEngine::CompactDatabase(path_, copy);
  std::filesystem::rename(platform::toSystemPath(copy), platform::toSystemPath(path_));
  // The copy numbers its columns as they are shown, without gaps.
  for (Table& table : model_.tables) {
    table.created = 0;
    for (const std::size_t column : table.displayOrder()) table.columns[column].number = table.created++;
  }
}

Database Play::readBack() const {
  Workspace workspace;
  const auto db = workspace.OpenDatabase(path_, false, true);
  Database result;
  for (const auto& definition : db->TableDefs()) {
    if (definition->Attributes() != 0) continue;
    Table table;
    table.name = definition->Name();
    for (const auto& field : definition->Fields()) {
      Column column;
      column.name = field.Name();
      column.type = field.Type();
      column.size = field.Type() == dbText ? field.Size() : 0;
      column.autoNumber = field.Attributes() & dbAutoIncrField;
      column.position = static_cast<int>(table.columns.size());
      table.columns.push_back(std::move(column));
    }
    for (const auto& index : definition->Indexes())
      if (!index->Foreign())
        table.indexes.push_back(
            {index->Name(), index->Fields(std::size_t{0}).Name(), index->Unique(), index->Primary()});
    const auto rows = definition->OpenRecordset(dbOpenTable);
    for (; !rows->atEnd(); rows->MoveNext()) {
      Row row;
      for (std::size_t i = 0; i < rows->Fields().Count(); ++i) row.push_back(rows->Fields(i).Value());
      table.rows.push_back(std::move(row));
    }
    result.tables.push_back(std::move(table));
  }
  for (const auto& relation : db->Relations()) {
    const auto pair = relation->Fields(std::size_t{0});
    result.relations.push_back({relation->Name(), relation->Table(), pair.Name(), relation->ForeignTable(),
                                pair.ForeignName(), (relation->Attributes() & dbRelationUpdateCascade) != 0,
                                (relation->Attributes() & dbRelationDeleteCascade) != 0});
  }
  return result;
}

bool Play::both(const std::string& what, const std::function<void()>& work, const Change& change) {
  Database changed = model_;
  const int expected = change(changed);
  int found = 0;
  std::string description;
  try {
    work();
  } catch (const runtime::Error& error) {
    found = error.number();
    description = error.description();
  }
  if (expected == 0) model_ = std::move(changed);
  log_ += what.substr(0, 300) + (found == 0 ? "" : " -> " + std::to_string(found)) + "\n";
  if (found != expected)
    difference_ = what.substr(0, 300) + "\nends in " + std::to_string(found) + " " + description +
                  " and not in " + std::to_string(expected);
  return expected == 0;
}

bool Play::both(const std::string& sql, const Change& change) {
  return both(
      sql, [&] { db_->Execute(sql, dbFailOnError); }, change);
}

bool Play::either(const std::string& sql, const std::function<void()>& work, const Change& change) {
  return oneIn(2) ? both(sql, change) : both("by objects: " + sql, work, change);
}

// Choices

Table* Play::anyTable() {
  return model_.tables.empty() ? nullptr : &model_.tables[below(static_cast<unsigned>(model_.tables.size()))];
}

Table* Play::anyTableWithRows() {
  Table* table = anyTable();
  return table && !table->rows.empty() ? table : nullptr;
}

const Index* Play::anyIndex(Table*& table) {
  table = anyTable();
  if (!table || table->indexes.empty()) return nullptr;
  return &table->indexes[below(static_cast<unsigned>(table->indexes.size()))];
}

std::string Play::newName() {
  static constexpr const char* stems[] = {"nome", "Città", "data fine", "Note", "Set", "legge494/96"};
  return stems[below(std::size(stems))] + std::to_string(++names_);
}

Column Play::newColumn(Table& table) {
  Column column;
  column.name = newName();
  column.type = typeOfColumn(below(1000));
  if (column.type == dbText) column.size = static_cast<int>(1 + below(255));
  column.number = table.created++;
  for (const Column& other : table.columns) column.position = std::max(column.position, other.position + 1);
  column.position = std::max(column.position, column.number);
  return column;
}

runtime::Variant Play::valueFor(const Column& column) {
  if (column.type != dbBoolean && oneIn(6)) return runtime::Null{};
  return randomValue(column.type, column.size, random_);
}

Row Play::rowFor(const Table& table) {
  Row row;
  for (const Column& column : table.columns)
    row.push_back(column.autoNumber ? runtime::Variant(runtime::Null{}) : valueFor(column));
  return row;
}

RecordsetPtr Play::at(const Table& table, std::size_t row) {
  auto records = db_->OpenRecordset(table.name, dbOpenDynaset);
  for (std::size_t i = 0; i < row; ++i) records->MoveNext();
  return records;
}

// Data

void Play::insertRows() {
  const Table* chosen = anyTable();
  if (!chosen) return;
  const std::string name = chosen->name;
  for (unsigned count = 1 + below(8); count > 0 && difference_.empty(); --count) {
    const Table& table = *model_.find(name);
    if (table.rows.size() >= MostRows) return;
    const Row row = rowFor(table);
    std::string names, values;
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (table.columns[i].autoNumber) continue;
      names += (names.empty() ? "[" : ", [") + table.columns[i].name + "]";
      values += (values.empty() ? "" : ", ") + literal(row[i]);
    }
    if (names.empty()) return;
    const bool added = both("INSERT INTO [" + name + "] (" + names + ") VALUES (" + values + ")",
                            [&](Database& model) { return model.insert(*model.find(name), row); });
    if (added) takeNumber(name);
  }
}

/// Numbers that refused records have taken may be lost or given again: a new one must only be larger than all
/// that are there.
void Play::takeNumber(const std::string& name) {
  Table& table = *model_.find(name);
  const auto counter =
      std::ranges::find_if(table.columns, [](const Column& column) { return column.autoNumber; });
  if (counter == table.columns.end()) return;
  const auto at = static_cast<std::size_t>(counter - table.columns.begin());
  const auto rows =
      db_->OpenRecordset("SELECT Max([" + counter->name + "]) FROM [" + name + "]", dbOpenSnapshot);
  const std::int32_t given = rows->Fields(std::size_t{0}).Value().toLong();
  for (std::size_t i = 0; i + 1 < table.rows.size(); ++i)
    if (table.rows[i][at].toLong() >= given) difference_ = "the counter of " + name + " gives a number again";
  table.rows.back()[at] = given;
  table.lastNumber = given;
}

void Play::addRecord() {
  Table* table = anyTable();
  if (!table || table->rows.size() >= MostRows) return;
  const std::string name = table->name;
  const Row row = rowFor(*table);
  const bool added = both(
      "AddNew in " + name,
      [&] {
        const auto records = db_->OpenRecordset(table->name, oneIn(2) ? dbOpenDynaset : dbOpenTable);
        records->AddNew();
        for (std::size_t i = 0; i < row.size(); ++i)
          if (!table->columns[i].autoNumber) records->Fields(table->columns[i].name).setValue(row[i]);
        records->Update();
      },
      [&](Database& model) { return model.insert(*model.find(name), row); });
  if (added) takeNumber(name);
}

void Play::editRecord() {
  Table* table = anyTableWithRows();
  if (!table) return;
  const std::size_t row = below(static_cast<unsigned>(table->rows.size()));
  const std::size_t column = below(static_cast<unsigned>(table->columns.size()));
  if (table->columns[column].autoNumber) return;
  const auto value = valueFor(table->columns[column]);
  both(
      "Edit in " + table->name + " row " + std::to_string(row) + " " + table->columns[column].name + " = " +
          shown(value),
      [&] {
        const auto records = at(*table, row);
        records->Edit();
        records->Fields(table->columns[column].name).setValue(value);
        records->Update();
      },
      [&](Database& model) { return model.update(*model.find(table->name), row, column, value); });
}

void Play::deleteRecord() {
  Table* table = anyTableWithRows();
  if (!table) return;
  const std::size_t row = below(static_cast<unsigned>(table->rows.size()));
  both(
      "Delete in " + table->name + " row " + std::to_string(row), [&] { at(*table, row)->Delete(); },
      [&](Database& model) { return model.remove(*model.find(table->name), {row}); });
}

/// The first column of whole numbers.
static std::optional<std::size_t> keyColumn(const Table& table) {
  const auto found =
      std::ranges::find_if(table.columns, [](const Column& column) { return column.type == dbLong; });
  if (found == table.columns.end()) return std::nullopt;
  return static_cast<std::size_t>(found - table.columns.begin());
}

/// Changes or deletes the rows whose key fulfils a condition.
void Play::changeByKey() {
  Table* table = anyTableWithRows();
  const auto key = table ? keyColumn(*table) : std::nullopt;
  if (!key) return;
  const bool deletes = oneIn(3);
  const std::size_t column = below(static_cast<unsigned>(table->columns.size()));
  if (!deletes && table->columns[column].autoNumber) return;
  const auto value = valueFor(table->columns[column]);
  const auto limit = static_cast<std::int32_t>(below(30));
  std::vector<std::size_t> rows;
  for (std::size_t i = 0; i < table->rows.size(); ++i) {
    const runtime::Variant& found = table->rows[i][*key];
    if (!found.isNull() && (deletes ? found.toLong() > limit : found.toLong() == limit)) rows.push_back(i);
  }
  const std::string where =
      " WHERE [" + table->columns[*key].name + "] " + (deletes ? "> " : "= ") + std::to_string(limit);
  both(deletes ? "DELETE * FROM [" + table->name + "]" + where
               : "UPDATE [" + table->name + "] SET [" + table->columns[column].name +
                     "] = " + literal(value) + where,
       [&](Database& model) {
         Table& changed = *model.find(table->name);
         if (deletes) return model.remove(changed, rows);
         for (const std::size_t row : rows)
           if (const int error = model.update(changed, row, column, value)) return error;
         return 0;
       });
}

// Design

void Play::createTable() {
  if (model_.tables.size() >= MostTables) return;
  Table table;
  table.name = newName();
  Column id{newName(), dbLong, 0, oneIn(2), 0, table.created++};
  std::string sql = "CREATE TABLE [" + table.name + "] ([" + id.name + "] " +
                    (id.autoNumber ? "COUNTER" : "LONG") + " CONSTRAINT PrimaryKey PRIMARY KEY";
  table.indexes.push_back({"PrimaryKey", id.name, true, true});
  table.columns.push_back(id);
  for (unsigned count = below(4); count > 0; --count) {
    const Column column = newColumn(table);
    sql += ", [" + column.name + "] " + typeName(column.type, column.size);
    table.columns.push_back(column);
  }
  both(sql + ")", [&](Database& model) {
    model.tables.push_back(table);
    return 0;
  });
}

void Play::defineTable() {
  if (model_.tables.size() >= MostTables) return;
  Table table;
  table.name = newName();
  for (unsigned count = 1 + below(5); count > 0; --count) table.columns.push_back(newColumn(table));
  both(
      "Append of table " + table.name,
      [&] {
        const auto definition = db_->CreateTableDef(table.name);
        for (const Column& column : table.columns) append(column, *definition);
        db_->TableDefs().Append(definition);
      },
      [&](Database& model) {
        model.tables.push_back(table);
        return 0;
      });
}

void Play::dropTable() {
  Table* table = anyTable();
  if (!table) return;
  constexpr int inUse = 3281;
  const std::string name = table->name;
  const auto change = [&](Database& model) {
    if (model.isRelated(name)) return inUse;
    eraseNamed(model.tables, name);
    return 0;
  };
  either(
      "DROP TABLE [" + name + "]", [&] { db_->TableDefs().Delete(name); }, change);
}

void Play::addColumn() {
  Table* table = anyTable();
  if (!table || table->columns.size() >= MostColumns) return;
  Table copy = *table;
  const Column column = newColumn(copy);
  either(
      "ALTER TABLE [" + table->name + "] ADD COLUMN [" + column.name + "] " +
          typeName(column.type, column.size),
      [&] { append(column, *db_->TableDefs(table->name)); },
      [&](Database& model) {
        Table& changed = *model.find(table->name);
        changed.columns.push_back(column);
        changed.created = column.number + 1;
        const runtime::Variant empty = column.type == dbBoolean ? runtime::Variant(false) : runtime::Null{};
        for (Row& row : changed.rows) row.push_back(empty);
        return 0;
      });
}

void Play::dropColumn() {
  Table* table = anyTable();
  if (!table || table->columns.size() < 2) return;
  const std::string name = table->name,
                    column = table->columns[below(static_cast<unsigned>(table->columns.size()))].name;
  both("ALTER TABLE [" + name + "] DROP COLUMN [" + column + "]", [&](Database& model) {
    constexpr int inIndex = 3280, inRelation = 3303;
    for (const Relation& each : model.relations)
      if ((each.parent == name && each.parentColumn == column) ||
          (each.child == name && each.childColumn == column))
        return inRelation;
    Table& changed = *model.find(name);
    for (const Index& index : changed.indexes)
      if (index.column == column) return inIndex;
    const auto at = static_cast<std::ptrdiff_t>(changed.column(column));
    for (Row& row : changed.rows) row.erase(row.begin() + at);
    changed.columns.erase(changed.columns.begin() + at);
    return 0;
  });
}

void Play::renameColumn() {
  Table* table = anyTable();
  if (!table) return;
  const std::string name = table->name,
                    column = table->columns[below(static_cast<unsigned>(table->columns.size()))].name;
  const std::string target = oneIn(4) ? table->columns.front().name : newName();
  both(
      "Rename of " + name + "." + column + " to " + target,
      [&] { db_->TableDefs(name)->Fields(column).setName(target); },
      [&](Database& model) {
        constexpr int taken = 3191;
        Table& changed = *model.find(name);
        if (target != column && changed.column(target) < changed.columns.size()) return taken;
        changed.columns[changed.column(column)].name = target;
        for (Index& index : changed.indexes)
          if (index.column == column) index.column = target;
        for (Relation& relation : model.relations) {
          if (relation.parent == name && relation.parentColumn == column) relation.parentColumn = target;
          if (relation.child == name && relation.childColumn == column) relation.childColumn = target;
        }
        return 0;
      });
}

void Play::moveColumn() {
  Table* table = anyTable();
  if (!table) return;
  const std::string name = table->name;
  const std::size_t column = below(static_cast<unsigned>(table->columns.size()));
  const int position = static_cast<int>(below(8));
  both(
      "Position " + std::to_string(position) + " of " + name + "." + table->columns[column].name,
      [&] { db_->TableDefs(name)->Fields(table->columns[column].name).setOrdinalPosition(position); },
      [&](Database& model) {
        model.find(name)->columns[column].position = position;
        return 0;
      });
}

void Play::createIndex() {
  Table* table = anyTable();
  if (!table || table->indexes.size() >= MostIndexes) return;
  const Column& column = table->columns[below(static_cast<unsigned>(table->columns.size()))];
  if (!isIndexable(column.type)) return;
  const Index index{newName(), column.name, oneIn(3), false};
  const std::string name = table->name;
  const auto change = [&](Database& model) {
    Table& changed = *model.find(name);
    changed.indexes.push_back(index);
    return index.unique ? model.checkUnique(changed, index.column) : 0;
  };
  either(
      std::string("CREATE ") + (index.unique ? "UNIQUE " : "") + "INDEX [" + index.name + "] ON [" + name +
          "] ([" + index.column + "])",
      [&] {
        const auto definition = db_->TableDefs(name);
        const auto made = definition->CreateIndex(index.name);
        made->setUnique(index.unique);
        made->Fields().Append(made->CreateField(index.column));
        definition->Indexes().Append(made);
      },
      change);
}

void Play::dropIndex() {
  Table* table = nullptr;
  const Index* index = anyIndex(table);
  if (!index || model_.isRelated(table->name)) return;
  const std::string name = table->name, indexName = index->name;
  const auto change = [&](Database& model) {
    eraseNamed(model.find(name)->indexes, indexName);
    return 0;
  };
  either(
      "DROP INDEX [" + indexName + "] ON [" + name + "]",
      [&] { db_->TableDefs(name)->Indexes().Delete(indexName); }, change);
}

/// Only where the child has no parent yet and comes later than it, so that relations make trees.
void Play::createRelation() {
  if (model_.tables.size() < 2) return;
  const std::size_t later = 1 + below(static_cast<unsigned>(model_.tables.size() - 1));
  const Table& child = model_.tables[later];
  const Table& parent = model_.tables[below(static_cast<unsigned>(later))];
  if (model_.parentOf(child.name) || parent.indexes.empty() || !parent.indexes.front().primary) return;
  const auto foreign = std::ranges::find_if(
      child.columns, [](const Column& column) { return column.type == dbLong && !column.autoNumber; });
  if (foreign == child.columns.end()) return;
  const Relation relation{newName(), parent.name, parent.indexes.front().column, child.name, foreign->name,
                          oneIn(2),  oneIn(2)};
  both(
      "Append of relation " + relation.name + " " + relation.child + "." + relation.childColumn + " -> " +
          relation.parent + "." + relation.parentColumn,
      [&] {
        const int attributes = (relation.cascadeUpdate ? dbRelationUpdateCascade : 0) |
                               (relation.cascadeDelete ? dbRelationDeleteCascade : 0);
        const auto made = db_->CreateRelation(relation.name, relation.parent, relation.child, attributes);
        made->Fields().Append(made->CreateField(relation.parentColumn, relation.childColumn));
        db_->Relations().Append(made);
      },
      [&](Database& model) {
        model.relations.push_back(relation);
        return model.checkParent(relation);
      });
}

void Play::dropRelation() {
  if (model_.relations.empty()) return;
  const std::string name = model_.relations[below(static_cast<unsigned>(model_.relations.size()))].name;
  both(
      "Delete of relation " + name, [&] { db_->Relations().Delete(name); },
      [&](Database& model) {
        eraseNamed(model.relations, name);
        return 0;
      });
}

// Transactions

void Play::begin() {
  if (saved_.size() >= 4) return;
  log_ += "BeginTrans\n";
  workspace_.BeginTrans();
  saved_.push_back(model_);
}

void Play::commit() {
  if (saved_.empty()) return;
  log_ += "CommitTrans\n";
  workspace_.CommitTrans();
  saved_.pop_back();
}

void Play::rollBack() {
  if (saved_.empty()) return;
  log_ += "Rollback\n";
  workspace_.Rollback();
  model_ = std::move(saved_.back());
  saved_.pop_back();
}

}  // namespace model
