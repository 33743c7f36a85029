#include "steps.h"

#include <stdexcept>

#include "jet/dao/engine.h"
#include "office_file.h"
#include "platform/disk.h"

namespace bench {
namespace {

using namespace jet::dao;

void require(bool condition, const char* what) {
  if (!condition) throw std::runtime_error(what);
}

void readTable(const std::string& path, long rows) {
  const auto database = DBEngine::OpenDatabase(path, false, true);
  const auto table = database->OpenRecordset("storico_quote", dbOpenTable);
  const auto fields = table->Fields().Count();
  long count = 0;
  double sum = 0;
  for (; !table->atEnd(); table->MoveNext(), ++count) {
    for (std::size_t i = 0; i < fields; ++i) {
      const auto value = table->Fields(i).Value();
      if (i == 0) sum += value.toDouble();
    }
  }
  const double n = static_cast<double>(rows);
  require(count == rows && sum == n * (n + 1) / 2, "the table does not hold its rows");
}

void readParameter(const std::string& path, long) {
  const auto database = DBEngine::OpenDatabase(path, false, true);
  const auto rows = database->OpenRecordset("SELECT Valore FROM KepGenerali WHERE Nome = 'DBVersione'");
  require(!rows->atEnd() && rows->Fields(0).Value().toText() == "0009", "the parameter is not there");
}

void saveOneRow(const std::string& path, long) {
  const auto database = DBEngine::OpenDatabase(path, true);
  database->Execute("UPDATE KepGenerali SET Dati = Dati & '.' WHERE Nome = 'DataWeb'", dbFailOnError);
  require(database->RecordsAffected() == 1, "no row was changed");
  database->Close();
}

void compact(const std::string& path, long) {
  const std::string target = path + ".compact";
  DBEngine::CompactDatabase(path, target);
  platform::removeFile(target);
}

constexpr Step table[] = {
    {"make-office", makeOffice},
    {"make-reference", [](const std::string& path, long) { makeReference(path); }},
    {"read-table", readTable},
    {"read-parameter", readParameter},
    {"save-one-row", saveOneRow},
    {"compact", compact},
};

}  // namespace

std::span<const Step> steps() {
  return table;
}

}  // namespace bench
