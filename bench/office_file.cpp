#include "office_file.h"

#include "jet/dao/engine.h"
#include "runtime/variant.h"

namespace bench {
namespace {

using namespace jet::dao;

const char* const smallTables[] = {
    "CREATE TABLE KepGenerali (Nome TEXT(50) CONSTRAINT PrimaryKey PRIMARY KEY, Valore TEXT(255), [Note] "
    "MEMO, "
    "Dati MEMO)",
    "INSERT INTO KepGenerali VALUES ('AppName', 'ordcommec', NULL, NULL)",
    "INSERT INTO KepGenerali VALUES ('DBVersione', '0009', 'Versione dei dati', NULL)",
    "INSERT INTO KepGenerali VALUES ('DataWeb', '0', NULL, NULL)",
    "CREATE TABLE ragioniere (cd_matr LONG CONSTRAINT PrimaryKey PRIMARY KEY, ds_cognome TEXT(50), "
    "ds_regione_certificatore_energetico TEXT(30))",
    "INSERT INTO ragioniere VALUES (1, 'Rossi', 'Umbria')",
    "CREATE TABLE praticante (cd_matr LONG)",
    "CREATE TABLE associati (cd_gruppo LONG)",
    "CREATE TABLE simpatizzante (cd_simpatizzante LONG)",
    "CREATE TABLE enti (cd_ente LONG)",
    "CREATE TABLE gruppi (cd_gruppo LONG)",
    "CREATE TABLE italia_comuni (ISTAT TEXT(6), Comune TEXT(60), PROVINCIA TEXT(2), DataFine DATETIME)",
    "INSERT INTO italia_comuni VALUES ('040012', 'Forlì', 'FC', #12/31/1999#)",
    "INSERT INTO italia_comuni VALUES ('040012', 'Forlì', 'FC', #12/31/9999#)",
};

const char* const largeTable =
    "CREATE TABLE storico_quote (cd_quota LONG CONSTRAINT PrimaryKey PRIMARY KEY, cd_matr LONG, "
    "ds_nominativo TEXT(100), dt_pagamento DATETIME, ip_quota CURRENCY, nr_aliquota DOUBLE, fl_pagata YESNO, "
    "ds_causale TEXT(255), ds_note MEMO)";

const char* const referenceTables[] = {
    "CREATE TABLE Norvi (norvo TEXT(50))",
    "INSERT INTO Norvi VALUES ('ordcommec')",
    "CREATE TABLE CampiTabella (Norvo TEXT(50), Tabella TEXT(64), Campo TEXT(64), Tipo INTEGER, Dimensione "
    "LONG, "
    "Attributi LONG, Required YESNO, AllowZeroLength YESNO, DefaultValue TEXT(255), OrdinalPosition INTEGER, "
    "UpdateDefaultValue YESNO)",
    "CREATE TABLE CampiDaEliminare (Norvo TEXT(50), Tabella TEXT(64), Campo TEXT(64))",
    "CREATE TABLE Indici (Norvo TEXT(50), Tabella TEXT(64), Indice TEXT(64), [Primary] YESNO, [Unique] "
    "YESNO, "
    "IgnoreNulls YESNO)",
    "CREATE TABLE CampiIndice (Norvo TEXT(50), Tabella TEXT(64), Indice TEXT(64), Campo TEXT(64), Attributi "
    "LONG)",
    "CREATE TABLE Relazioni (Norvo TEXT(50), Relazione TEXT(64), [Table] TEXT(64), ForeignTable TEXT(64), "
    "Attributi LONG)",
    "CREATE TABLE CampiRelazione (Norvo TEXT(50), Relazione TEXT(64), Campo TEXT(64), ForeignName TEXT(64))",
};

/// A text of believable length that differs from row to row.
std::string causale(long row) {
  return "Quota d'iscrizione all'albo per l'anno " + std::to_string(1960 + row % 47) +
         ", seconda rata, versata con bollettino n. " + std::to_string(row * 7919 % 1000003) +
         " presso l'agenzia di Forlì, ricevuta " + std::to_string(row);
}

void addRow(Recordset& rows, long row) {
  const auto set = [&](std::size_t column, const runtime::Variant& value) {
    rows.Fields(column).setValue(value);
  };
  rows.AddNew();
  set(0, static_cast<std::int32_t>(row));
  set(1, static_cast<std::int32_t>(row * 31 % 5000));
  set(2, "Rossi Niccolò " + std::to_string(row * 31 % 5000));
  set(3, runtime::Date{22000.0 + static_cast<double>(row % 16000)});
  set(4, runtime::Currency{1549400 + row % 1000 * 100});
  set(5, 0.25 * static_cast<double>(row % 97));
  set(6, row % 3 != 0);
  set(7, causale(row));
  if (row % 10 == 0) set(8, "Rateizzata; vedi la delibera n. " + std::to_string(row % 400) + ".");
  rows.Update();
}

}  // namespace

void makeOffice(const std::string& path, long rows) {
  const auto database = DBEngine::Workspaces(0)->CreateDatabase(path);
  for (const char* statement : smallTables) database->Execute(statement, dbFailOnError);
  database->Execute(largeTable, dbFailOnError);
  database->Execute("CREATE INDEX Iscritto ON storico_quote (cd_matr)", dbFailOnError);
  const auto table = database->OpenRecordset("storico_quote", dbOpenTable);
  for (long row = 1; row <= rows; ++row) addRow(*table, row);
  table->Close();
  database->Close();
}

void makeReference(const std::string& path) {
  const auto database = DBEngine::Workspaces(0)->CreateDatabase(path);
  for (const char* statement : referenceTables) database->Execute(statement, dbFailOnError);
  database->Close();
}

}  // namespace bench
