// The catalogue's tables, made where the reference lacks them.
#include "apps/catalogo/tables.h"

#include "jet/dao/database.h"

namespace catalogo {
namespace {

using namespace jet::dao;

constexpr int NameSize = 64;  // longest name of an object
constexpr Column norvo = {"Norvo", dbText, 50, false};

constexpr Column norviColumns[] = {{"norvo", dbText, 50}};
constexpr Column campiTabellaColumns[] = {
    norvo,
    {"Tabella", dbText, NameSize},
    {"Campo", dbText, NameSize},
    {"Tipo", dbInteger},
    {"Dimensione", dbLong},
    {"Attributi", dbLong},
    {"Required", dbBoolean},
    {"AllowZeroLength", dbBoolean},
    {"DefaultValue", dbText, 255},
    {"OrdinalPosition", dbInteger, 0, false},
    {"UpdateDefaultValue", dbBoolean, 0, false},
    {"Precisione", dbInteger, 0, true, true},  // of a Decimal
    {"Scala", dbInteger, 0, true, true},
};
constexpr Column campiDaEliminareColumns[] = {
    norvo, {"Tabella", dbText, NameSize}, {"Campo", dbText, NameSize}};
constexpr Column indiciColumns[] = {
    norvo,
    {"Tabella", dbText, NameSize},
    {"Indice", dbText, NameSize},
    {"Primary", dbBoolean},
    {"Unique", dbBoolean},
    {"IgnoreNulls", dbBoolean},
};
constexpr Column campiIndiceColumns[] = {
    norvo,
    {"Tabella", dbText, NameSize},
    {"Indice", dbText, NameSize},
    {"Campo", dbText, NameSize},
    {"Attributi", dbLong},
};
constexpr Column relazioniColumns[] = {
    norvo,
    {"Relazione", dbText, NameSize},
    {"Table", dbText, NameSize},
    {"ForeignTable", dbText, NameSize},
    {"Attributi", dbLong},
};
constexpr Column campiRelazioneColumns[] = {
    norvo,
    {"Relazione", dbText, NameSize},
    {"Campo", dbText, NameSize},
    {"ForeignName", dbText, NameSize},
};

void make(Database& reference, const Table& table) {
  if (reference.TableDefs().contains(table.name)) return;
  const auto definition = reference.CreateTableDef(table.name);
  for (const auto& column : table.columns)
    if (!column.optional)
      definition->Fields().Append(definition->CreateField(column.name, column.type, column.size));
  reference.TableDefs().Append(definition);
}

}  // namespace

const Table Norvi = {"Norvi", norviColumns};
const Table CampiTabella = {"CampiTabella", campiTabellaColumns, 2};
const Table CampiDaEliminare = {"CampiDaEliminare", campiDaEliminareColumns, 2};
const Table Indici = {"Indici", indiciColumns, 2};
const Table CampiIndice = {"CampiIndice", campiIndiceColumns, 2};
const Table Relazioni = {"Relazioni", relazioniColumns, 1};
const Table CampiRelazione = {"CampiRelazione", campiRelazioneColumns, 1};

void makeColumn(Database& reference, const Table& table, const Column& column) {
  const auto definition = reference.TableDefs(table.name);
  if (!definition->Fields().contains(column.name))
    definition->Fields().Append(definition->CreateField(column.name, column.type, column.size));
}

void makeCatalogueTables(Database& reference) {
  for (const Table* table :
       {&Norvi, &CampiTabella, &CampiDaEliminare, &Indici, &CampiIndice, &Relazioni, &CampiRelazione})
    make(reference, *table);
}

}  // namespace catalogo
