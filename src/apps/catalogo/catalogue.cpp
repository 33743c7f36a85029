// The catalogue's rows of a model, and what "Tutti" states otherwise.
#include "apps/catalogo/catalogue.h"

#include <algorithm>
#include <map>
#include <set>

#include "apps/catalogo/model.h"
#include "apps/catalogo/tables.h"
#include "jet/dao/database.h"
#include "jet/file/definition.h"
#include "jet/file/errors.h"
#include "runtime/error.h"

namespace catalogo {
namespace {

using namespace jet::dao;

/// What the rows of one table and of its table of parts are about.
struct Kind {
  const char* title;
  const Table& table;
  const Table* parts;
  std::vector<Thing> (*read)(Database& model, const std::string& norvo);
};
const Kind fields = {"Il campo", CampiTabella, nullptr, fieldsOf};
const Kind indexes = {"L'indice", Indici, &CampiIndice, indexesOf};
const Kind relations = {"La relazione", Relazioni, &CampiRelazione, relationsOf};

/// The names of what `row` is about, as the engine compares them.
std::string keyOf(const Row& row, const Table& table) {
  std::string key;
  for (std::size_t i = 1; i <= table.key; ++i) key += jet::file::nameKey(row[i].toText()) + '\x01';
  return key;
}

std::string titleOf(const Row& row, const Kind& kind) {
  std::string title = kind.title;
  for (std::size_t i = kind.table.key; i >= 1; --i)
    title += (i == kind.table.key ? " " : " di ") + row[i].toText();
  return title;
}

Row readRow(Recordset& rows, const Table& table) {
  Row row;
  for (const auto& column : table.columns) {
    const bool absent = column.optional && !rows.Fields().contains(column.name);
    row.push_back(absent ? runtime::Variant(runtime::Null{}) : rows.value(column.name));
  }
  return row;
}

void writeRow(Recordset& rows, const Table& table, const Row& row) {
  rows.AddNew();
  for (std::size_t i = 0; i < row.size(); ++i)
    if (!table.columns[i].optional || !row[i].isNull()) rows.Fields(table.columns[i].name).setValue(row[i]);
  rows.Update();
}

bool sameValue(const runtime::Variant& a, const runtime::Variant& b) {
  if (a.isNull() || b.isNull()) return a.isNull() && b.isNull();
  return a.isText() ? jet::file::sameName(a.toText(), b.toText()) : a.toLong() == b.toLong();
}

bool sameRow(const Row& a, const Row& b, const Table& table) {
  for (std::size_t i = 0; i < table.columns.size(); ++i)
    if (table.columns[i].compared && !sameValue(a[i], b[i])) return false;
  return true;
}

bool sameThing(const Thing& a, const Thing& b, const Kind& kind) {
  if (!sameRow(a.row, b.row, kind.table) || a.parts.size() != b.parts.size()) return false;
  for (std::size_t i = 0; i < a.parts.size(); ++i)
    if (!sameRow(a.parts[i], b.parts[i], *kind.parts)) return false;
  return true;
}

/// The catalogue's rows about things of one kind, as they stand for other applications and for this one.
class Rows {
 public:
  Rows(Database& reference, const Kind& kind, const std::string& norvo)
      : reference_(reference), kind_(kind), norvo_(norvo) {}

  /// Returns the number of things written.
  std::size_t replaceBy(const std::vector<Thing>& things) {
    readOthers();
    const auto updating = fieldsToUpdate();
    deleteOwn(kind_.table);
    if (kind_.parts) deleteOwn(*kind_.parts);
    makeOptionalColumns(things);
    const auto rows = open(kind_.table);
    const auto parts = kind_.parts ? open(*kind_.parts) : nullptr;
    std::size_t written = 0;
    for (const auto& thing : things) {
      if (stated(thing)) continue;
      auto row = thing.row;
      if (updating.contains(keyOf(row, kind_.table))) row[UpdateDefaultValue] = true;
      writeRow(*rows, kind_.table, row);
      for (const auto& part : thing.parts) writeRow(*parts, *kind_.parts, part);
      ++written;
    }
    return written;
  }

 private:
  RecordsetPtr open(const Table& table) { return reference_.OpenRecordset(table.name, dbOpenTable); }

  bool isOwn(const Row& row) const { return jet::file::sameName(row[0].toText(), norvo_); }
  /// True if a row of another application and one of this are read in the same run.
  bool meets(const Row& row) const {
    const auto all = [](const std::string& name) { return jet::file::sameName(name, Tutti); };
    return !isOwn(row) && (all(norvo_) || all(row[0].toText()));
  }

  template <class Take>
  void walk(const Table& table, Take take) {
    for (const auto rows = open(table); !rows->atEnd(); rows->MoveNext()) take(readRow(*rows, table));
  }

  void readOthers() {
    walk(kind_.table, [this](const Row& row) {
      if (meets(row)) others_[keyOf(row, kind_.table)].row = row;
    });
    if (!kind_.parts) return;
    walk(*kind_.parts, [this](const Row& row) {
      const auto other = others_.find(keyOf(row, *kind_.parts));
      if (meets(row) && other != others_.end()) other->second.parts.push_back(row);
    });
  }

  /// The model doesn't tell which fields get their default in all rows, so what the catalogue says stays.
  std::set<std::string> fieldsToUpdate() {
    std::set<std::string> keys;
    if (&kind_.table != &CampiTabella) return keys;
    walk(CampiTabella, [&](const Row& row) {
      if (isOwn(row) && row[UpdateDefaultValue].toBoolean()) keys.insert(keyOf(row, CampiTabella));
    });
    return keys;
  }

  void makeOptionalColumns(const std::vector<Thing>& things) {
    for (std::size_t i = 0; i < kind_.table.columns.size(); ++i) {
      const Column& column = kind_.table.columns[i];
      const auto told = [&](const Thing& thing) { return !thing.row[i].isNull(); };
      if (column.optional && std::ranges::any_of(things, told)) makeColumn(reference_, kind_.table, column);
    }
  }

  void deleteOwn(const Table& table) {
    const auto query = reference_.CreateQueryDef(
        "", std::string("PARAMETERS parNorvo TEXT; DELETE * FROM ") + table.name + " WHERE Norvo = parNorvo");
    query->Parameters("parNorvo").setValue(norvo_);
    query->Execute(dbFailOnError);
  }

  /// True if "Tutti" says the same. A thing stated twice in different words would never come to rest.
  bool stated(const Thing& thing) const {
    const auto other = others_.find(keyOf(thing.row, kind_.table));
    if (other == others_.end()) return false;
    const std::string otherNorvo = other->second.row[0].toText();
    if (jet::file::sameName(otherNorvo, Tutti) && sameThing(thing, other->second, kind_)) return true;
    throw runtime::Error(jet::DuplicateKey, "catalogo",
                         titleOf(thing.row, kind_) + " è già nel catalogo per " + otherNorvo +
                             (jet::file::sameName(otherNorvo, Tutti) ? ", con altre caratteristiche" : ""));
  }

  Database& reference_;
  const Kind& kind_;
  const std::string& norvo_;
  std::map<std::string, Thing> others_;
};

/// What every run drops can't be what every run makes.
void refuseDropped(Database& reference, const std::vector<Thing>& things, const std::string& norvo) {
  std::set<std::string> dropped;
  for (const auto rows = reference.OpenRecordset(CampiDaEliminare.name, dbOpenTable); !rows->atEnd();
       rows->MoveNext()) {
    const Row row = readRow(*rows, CampiDaEliminare);
    const std::string other = row[0].toText();
    for (const auto& name : {norvo, std::string(Tutti)})
      if (jet::file::sameName(other, name)) dropped.insert(keyOf(row, CampiDaEliminare));
  }
  for (const auto& thing : things)
    if (dropped.contains(keyOf(thing.row, CampiTabella)))
      throw runtime::Error(jet::DuplicateKey, "catalogo",
                           titleOf(thing.row, fields) + " è anche in CampiDaEliminare");
}

void writeNorvo(Database& reference, const std::string& norvo) {
  if (jet::file::sameName(norvo, Tutti)) return;
  const auto rows = reference.OpenRecordset(Norvi.name, dbOpenTable);
  for (; !rows->atEnd(); rows->MoveNext())
    if (jet::file::sameName(rows->value("norvo").toText(), norvo)) return;
  writeRow(*rows, Norvi, {norvo});
}

}  // namespace

Counts writeCatalogue(Database& reference, Database& model, const std::string& norvo) {
  makeCatalogueTables(reference);
  writeNorvo(reference, norvo);
  refuseDropped(reference, fieldsOf(model, norvo), norvo);
  const auto write = [&](const Kind& kind) {
    return Rows(reference, kind, norvo).replaceBy(kind.read(model, norvo));
  };
  Counts counts;
  counts.fields = write(fields);
  counts.indexes = write(indexes);
  counts.relations = write(relations);
  return counts;
}

}  // namespace catalogo
