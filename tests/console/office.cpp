#include "office.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "common/globale.h"
#include "platform/files.h"

namespace office {
namespace {

/// Memory instead of a disk, where there is one: the tests make thousands of small files.
[[maybe_unused]] const bool inMemory = [] {
  return std::filesystem::is_directory("/dev/shm") && ::setenv("TEST_TMPDIR", "/dev/shm/", 0) == 0;
}();

std::vector<std::string> linesOf(const char* path) {
  std::vector<std::string> lines;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

}  // namespace

void makeDatabase(const std::string& path, const std::vector<std::string>& statements) {
  const auto db = jet::dao::DBEngine::Workspaces(0)->CreateDatabase(path);
  for (const std::string& statement : statements) db->Execute(statement, jet::dao::dbFailOnError);
  db->Close();
}

std::vector<std::string> reference() {
  return linesOf(CASES "/reference.sql");
}

std::vector<std::string> oldInstallation() {
  return linesOf(CASES "/old_installation.sql");
}

std::vector<std::string> with(std::vector<std::string> statements, const std::vector<std::string>& more) {
  statements.insert(statements.end(), more.begin(), more.end());
  return statements;
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
  makeReference(reference());
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

void Office::makeReference(const std::vector<std::string>& statements) {
  std::filesystem::remove(platform::toSystemPath(program + "\\AggNorvo.mdb"));
  makeDatabase(program + "\\AggNorvo.mdb", statements);
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

Printed batch(const console::BatchOptions& options) {
  std::ostringstream out, err;
  const int status = console::runBatch(options, out, err);
  return {status, out.str(), err.str()};
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
