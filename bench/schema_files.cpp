#include "schema_files.h"

#include <filesystem>

#include "jet/dao/engine.h"
#include "office_file.h"
#include "platform/paths.h"

namespace bench {
namespace {

using namespace jet::dao;

constexpr long RowsOfTable = 2000;

void remove(const std::string& path) {
  std::filesystem::remove(platform::toSystemPath(path));
}

std::string fieldName(int number) {
  return "ds_campo_" + std::to_string(number);
}

/// Longs and texts in turn; the first is the key.
int fieldType(int number) {
  return number % 2 == 0 ? dbLong : dbText;
}

void makeTable(Database& db, const std::string& name, const std::string& parent, int fields) {
  std::string columns;
  for (int field = 0; field < fields; ++field)
    columns += (field ? ", " : "") + fieldName(field) + (fieldType(field) == dbLong ? " LONG" : " TEXT(20)");
  db.Execute("CREATE TABLE " + name + " (" + columns + ", CONSTRAINT PrimaryKey PRIMARY KEY (ds_campo_0))",
             dbFailOnError);
  db.Execute("CREATE INDEX Nome ON " + name + " (ds_campo_1, ds_campo_2)", dbFailOnError);
  const auto rows = db.OpenRecordset(name, dbOpenTable);
  for (std::int32_t row = 0; row < RowsOfTable; ++row) {
    rows->AddNew();
    for (int field = 0; field < fields; ++field) {
      const auto column = rows->Fields(static_cast<std::size_t>(field));
      column.setValue(fieldType(field) == dbLong ? runtime::Variant(row) : "valore " + std::to_string(row));
    }
    rows->Update();
  }
  rows->Close();
  if (!parent.empty())
    db.Execute("ALTER TABLE " + name + " ADD CONSTRAINT r" + name + " FOREIGN KEY (ds_campo_2) REFERENCES " +
                   parent + " (ds_campo_0)",
               dbFailOnError);
}

void add(Database& db, const std::string& table, const std::string& values) {
  db.Execute("INSERT INTO " + table + " VALUES ('Tutti', " + values + ")", dbFailOnError);
}

std::string fieldRow(const std::string& table, const std::string& field, int type, int size, int position) {
  return "'" + table + "', '" + field + "', " + std::to_string(type) + ", " + std::to_string(size) +
         ", 0, False, False, NULL, " + std::to_string(position) + ", False";
}

void listTable(Database& db, const std::string& name, const std::string& parent, int fields) {
  for (int field = 0; field < fields; ++field)
    add(db, "CampiTabella", fieldRow(name, fieldName(field), fieldType(field), 20, field));
  add(db, "Indici", "'" + name + "', 'PrimaryKey', True, True, False");
  add(db, "CampiIndice", "'" + name + "', 'PrimaryKey', 'ds_campo_0', 0");
  add(db, "Indici", "'" + name + "', 'Nome', False, False, False");
  for (const char* field : {"ds_campo_1", "ds_campo_2"})
    add(db, "CampiIndice", "'" + name + "', 'Nome', '" + field + "', 0");
  if (parent.empty()) return;
  add(db, "Relazioni", "'r" + name + "', '" + parent + "', '" + name + "', 0");
  add(db, "CampiRelazione", "'r" + name + "', 'ds_campo_0', 'ds_campo_2'");
}

}  // namespace

void makeEqualPair(const std::string& target, const std::string& reference, int tables, int fields) {
  remove(target);
  remove(reference);
  makeReference(reference);
  Workspace workspace;
  const auto db = workspace.CreateDatabase(target), catalogue = workspace.OpenDatabase(reference, true);
  for (int table = 0; table < tables; ++table) {
    const std::string name = "tabella_" + std::to_string(table);
    const std::string parent = table ? "tabella_" + std::to_string(table - 1) : "";
    makeTable(*db, name, parent, fields);
    listTable(*catalogue, name, parent, fields);
  }
  db->Close();
  catalogue->Close();
}

void makeFieldReference(const std::string& path, const std::string& table, const std::string& field, int type,
                        int size) {
  remove(path);
  makeReference(path);
  const auto db = DBEngine::Workspaces(0)->OpenDatabase(path, true);
  add(*db, "CampiTabella", fieldRow(table, field, type, size, 0));
  db->Close();
}

}  // namespace bench
