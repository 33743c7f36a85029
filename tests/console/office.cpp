#include "office.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "common/globale.h"
#include "platform/files.h"

namespace office {
namespace {

/// Memory instead of a disk, where there is one: the tests make thousands of small files.
[[maybe_unused]] const bool inMemory = [] {
  return std::filesystem::is_directory("/dev/shm") && ::setenv("TEST_TMPDIR", "/dev/shm/", 0) == 0;
}();

}  // namespace

void makeDatabase(const std::string& path, const std::vector<std::string>& statements) {
  const auto db = jet::dao::DBEngine::Workspaces(0)->CreateDatabase(path);
  for (const std::string& statement : statements) db->Execute(statement, jet::dao::dbFailOnError);
  db->Close();
}

std::vector<std::string> reference() {
  return {
      "CREATE TABLE Norvi (norvo TEXT(30))",
      "INSERT INTO Norvi VALUES ('collgeometri')",
      "INSERT INTO Norvi VALUES ('ordmedici')",
      "INSERT INTO Norvi VALUES ('PROTOCOLLO')",
      "CREATE TABLE CampiTabella (Norvo TEXT(30), Tabella TEXT(64), Campo TEXT(64), Tipo INTEGER, Dimensione "
      "LONG, Attributi LONG, Required YESNO, AllowZeroLength YESNO, DefaultValue TEXT(255), OrdinalPosition "
      "INTEGER, UpdateDefaultValue YESNO)",
      "CREATE TABLE CampiDaEliminare (Norvo TEXT(30), Tabella TEXT(64), Campo TEXT(64))",
      "CREATE TABLE Indici (Norvo TEXT(30), Tabella TEXT(64), Indice TEXT(64), [Primary] YESNO, [Unique] "
      "YESNO, "
      "IgnoreNulls YESNO)",
      "CREATE TABLE CampiIndice (Norvo TEXT(30), Tabella TEXT(64), Indice TEXT(64), Campo TEXT(64), "
      "Attributi "
      "LONG)",
      "CREATE TABLE Relazioni (Norvo TEXT(30), Relazione TEXT(64), [Table] TEXT(64), ForeignTable TEXT(64), "
      "Attributi LONG)",
      "CREATE TABLE CampiRelazione (Norvo TEXT(30), Relazione TEXT(64), Campo TEXT(64), ForeignName "
      "TEXT(64))",
  };
}

std::vector<std::string> oldInstallation() {
  return {
      "CREATE TABLE KepGenerali (Nome TEXT(50), Valore TEXT(255), [Note] TEXT(255))",
      "INSERT INTO KepGenerali (Nome, Valore) VALUES ('AppName', 'collgeometri')",
      "CREATE TABLE ragioniere (id LONG, ds_cognome TEXT(50), ds_regione_certificatore_energetico TEXT(20))",
      "INSERT INTO ragioniere VALUES (1, 'Nicolò D''Agostino', 'Umbria')",
      "INSERT INTO ragioniere VALUES (2, 'Forlì', 'Forlì-Cesena')",
      "CREATE TABLE praticante (id LONG)",
      "CREATE TABLE associati (id LONG)",
      "CREATE TABLE simpatizzante (id LONG)",
      "CREATE TABLE enti (id LONG)",
      "INSERT INTO enti VALUES (7)",
      "CREATE TABLE gruppi (id LONG)",
      "INSERT INTO gruppi VALUES (1)",
      "INSERT INTO gruppi VALUES (2)",
      "CREATE TABLE italia_comuni (ISTAT TEXT(6), Comune TEXT(50), PROVINCIA TEXT(2), DataFine DATETIME)",
      "INSERT INTO italia_comuni VALUES ('066049', 'L''Aquila', 'AQ', #12/31/2001#)",
  };
}

std::string contentOf(const std::string& path) {
  const auto db = jet::dao::DBEngine::OpenDatabase(path, true, true);
  std::string content;
  for (const auto& definition : db->TableDefs()) {
    if (definition->Attributes() != 0) continue;
    const std::string table = definition->Name();
    content += "== " + table + "\n";
    const auto rows = db->OpenRecordset("SELECT * FROM [" + table + "]", jet::dao::dbOpenSnapshot);
    for (const auto& field : rows->Fields()) content += field.Name() + "|";
    for (; !rows->atEnd(); rows->MoveNext()) {
      content += "\n";
      for (const auto& field : rows->Fields()) {
        const runtime::Variant value = field.Value();
        content += (value.isNull() ? "Null" : value.toText()) + "|";
      }
    }
    rows->Close();
    content += "\n";
  }
  db->Close();
  return content;
}

std::string ask(const std::string& path, const std::string& sql) {
  const auto db = jet::dao::DBEngine::OpenDatabase(path, true, true);
  const auto rows = db->OpenRecordset(sql, jet::dao::dbOpenSnapshot);
  const std::string answer = rows->atEnd() ? "" : rows->Fields(std::size_t{0}).Value().toText();
  rows->Close();
  db->Close();
  return answer;
}

Office::Office(const std::string& dataFolder)
    : program(folder.path("programma")),
      data(folder.path(dataFolder)),
      target(file("studio.mdb")),
      backup(file("Backup20261116171600.mdb")),
      log(program + "\\AggNorvo261116171600 .log"),
      settings(folder.path("impostazioni.ini")) {
  std::filesystem::create_directories(platform::toSystemPath(program));
  std::filesystem::create_directories(platform::toSystemPath(data));
  makeDatabase(program + "\\AggNorvo.mdb", reference());
  makeTarget(oldInstallation());
  writeSettings(registered("collgeometri", target));
}

std::vector<std::string> Office::dataFiles() const {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(platform::toSystemPath(data)))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

void Office::makeTarget(const std::vector<std::string>& statements) {
  std::filesystem::remove(platform::toSystemPath(target));
  makeDatabase(target, statements);
}

void Office::writeSettings(const std::string& content) {
  platform::writeWholeFile(settings, content);
}

void Office::writePatchList(const std::string& content) {
  platform::writeWholeFile(program + "\\PatchList.txt", content);
}

std::string Office::registered(const std::string& application, const std::string& path) {
  return "[" + application + "\\DBSECTION]\ndbpath = " + path + "\n";
}

console::BatchOptions Office::batch(const std::string& app) const {
  console::BatchOptions options;
  options.programDir = platform::toSystemPath(program);
  options.settings = platform::toSystemPath(settings);
  options.app = app;
  options.database = platform::toSystemPath(target);
  options.answer = controls::BatchDesktop::Answer::No;
  return options;
}

Window::Window(const Office& where)
    : office(where),
      settings(where.settings),
      form({settings, where.program, "AggNorvo", [this](const std::string& folder) {
              patches.push_back(folder);
              duringPatch();
            }}) {
  common::NomeApplicazione.clear();
  desktop.answerRestByDefault();
  form.load();
}

void Window::update(const std::string& application) {
  form.txtAltroDB.setText(office.target);
  common::NomeApplicazione = application;
  form.EseguiAggiornamento();
}

}  // namespace office
