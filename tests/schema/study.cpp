#include "study.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "platform/files.h"
#include "support/command.h"

namespace study {
namespace {

/// The target without anything to be reconciled.
const Statements Base = {
    "CREATE TABLE KepGenerali (Nome TEXT(50), Valore TEXT(255))",
    "CREATE TABLE ragioniere (id LONG)",
    "CREATE TABLE praticante (id LONG)",
    "CREATE TABLE associati (id LONG)",
    "CREATE TABLE simpatizzante (id LONG)",
    "CREATE TABLE enti (id LONG)",
    "CREATE TABLE gruppi (id LONG)",
    "CREATE TABLE italia_comuni (ISTAT LONG, Comune LONG, PROVINCIA LONG, DataFine LONG)"};

bool isBase(const std::string& table) {
  return std::ranges::any_of(Base, [&](const std::string& statement) {
    return statement.starts_with("CREATE TABLE " + table + " ");
  });
}

std::string flag(bool value) {
  return value ? "True" : "False";
}

std::string shown(const jet::dao::Field& field) {
  std::string text = field.Name() + " " + std::to_string(field.Type());
  if (field.Type() == jet::dao::dbText) text += "(" + std::to_string(field.Size()) + ")";
  if (field.Type() == jet::dao::dbText && field.Attributes() & jet::dao::dbFixedField) text += " fixed";
  if (field.Type() == jet::dao::dbDecimal)
    text += "(" + std::to_string(field.precision()) + "." + std::to_string(field.scale()) + ")";
  if (field.Attributes() & jet::dao::dbAutoIncrField) text += " counter";
  if (field.Required()) text += " required";
  if (!field.DefaultValue().empty()) text += " default " + field.DefaultValue();
  return text;
}

std::string shown(jet::dao::Index& index) {
  std::string text = " " + index.Name() + "[" + (index.Primary() ? "P" : "") + (index.Unique() ? "U" : "") +
                     (index.IgnoreNulls() ? "I" : "");
  for (const auto& part : index.Fields())
    text += std::string(" ") + (part.Attributes() & jet::dao::dbDescending ? "-" : "") + part.Name();
  return text + "]";
}

std::string shown(jet::dao::Relation& relation) {
  std::string text = relation.Name() + ": " + relation.Table() + " < " + relation.ForeignTable();
  for (const auto& pair : relation.Fields()) text += " " + pair.Name() + "=" + pair.ForeignName();
  return text + (relation.Attributes() ? " " + std::to_string(relation.Attributes()) : "") + "\n";
}

std::string rowsOf(jet::dao::Database& db, const std::string& table) {
  std::string text;
  const auto rows = db.OpenRecordset("SELECT * FROM [" + table + "]", jet::dao::dbOpenSnapshot);
  for (; !rows->atEnd(); rows->MoveNext()) {
    text += text.empty() ? " : " : " / ";
    std::string separator;
    for (const auto& field : rows->Fields()) {
      const auto value = field.Value();
      text += separator + (value.isNull() ? "Null" : value.toText());
      separator = ",";
    }
  }
  return text;
}

std::string between(const std::string& text, const std::string& from, const std::string& to) {
  const std::size_t start = text.find(from);
  if (start == std::string::npos) return {};
  const std::size_t begin = start + from.size();
  return text.substr(begin, std::min(text.find(to, begin), text.size()) - begin);
}

}  // namespace

std::string field(const std::string& table, const std::string& name, const Field& row) {
  return "INSERT INTO CampiTabella VALUES ('" + row.norvo + "', '" + table + "', '" + name + "', " +
         row.type + ", " + std::to_string(row.size) + ", " + std::to_string(row.attributes) + ", " +
         flag(row.required) + ", " + flag(row.zeroLength) + ", " +
         (row.defaultValue.empty() ? "NULL" : row.defaultValue) + ", " + std::to_string(row.position) + ", " +
         flag(row.update) + ")";
}

Statements digitColumns() {
  return {"ALTER TABLE CampiTabella ADD COLUMN Precisione SHORT",
          "ALTER TABLE CampiTabella ADD COLUMN Scala SHORT"};
}

std::string digits(const std::string& table, const std::string& name, int precision, int scale) {
  return "UPDATE CampiTabella SET Precisione = " + std::to_string(precision) +
         ", Scala = " + std::to_string(scale) + " WHERE Tabella = '" + table + "' AND Campo = '" + name + "'";
}

std::string droppedField(const std::string& table, const std::string& name) {
  return "INSERT INTO CampiDaEliminare VALUES ('Tutti', '" + table + "', '" + name + "')";
}

Statements index(const std::string& table, const std::string& name, const std::string& flags,
                 const Statements& fields) {
  const std::string key = "('Tutti', '" + table + "', '" + name + "', ";
  const auto has = [&](char letter) { return flag(flags.find(letter) != std::string::npos); };
  Statements rows = {"INSERT INTO Indici VALUES " + key + has('P') + ", " + has('U') + ", " + has('I') + ")"};
  for (const std::string& part : fields) {
    const bool descending = part.starts_with('-');
    rows.push_back("INSERT INTO CampiIndice VALUES " + key + "'" + part.substr(descending) + "', " +
                   (descending ? "1)" : "0)"));
  }
  return rows;
}

Statements relation(const std::string& name, const std::string& table, const std::string& foreign,
                    const Statements& pairs, int attributes) {
  Statements rows = {"INSERT INTO Relazioni VALUES ('Tutti', '" + name + "', '" + table + "', '" + foreign +
                     "', " + std::to_string(attributes) + ")"};
  for (const std::string& pair : pairs) {
    const std::size_t at = pair.find('=');
    rows.push_back("INSERT INTO CampiRelazione VALUES ('Tutti', '" + name + "', '" + pair.substr(0, at) +
                   "', '" + pair.substr(at + 1) + "')");
  }
  return rows;
}

Statements operator+(Statements a, const Statements& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

Statements operator+(Statements a, const std::string& b) {
  a.push_back(b);
  return a;
}

std::string described(const std::string& path) {
  const auto db = jet::dao::DBEngine::OpenDatabase(path, true, true);
  std::string text;
  for (const auto& table : db->TableDefs()) {
    if (table->Attributes() & (jet::dao::dbSystemObject | jet::dao::dbHiddenObject) || isBase(table->Name()))
      continue;
    text += table->Name() + "(";
    std::string separator;
    for (const auto& column : table->Fields()) {
      text += separator + shown(column);
      separator = ", ";
    }
    text += ")";
    for (const auto& index : table->Indexes())
      if (!index->Foreign()) text += shown(*index);
    text += rowsOf(*db, table->Name()) + "\n";
  }
  for (const auto& each : db->Relations()) text += shown(*each);
  for (const auto& query : db->QueryDefs()) text += query->Name() + " = " + query->SQL() + "\n";
  db->Close();
  return text;
}

Study::Study(const Statements& reference, const Statements& target) {
  const std::string path = office.program + "\\AggNorvo.mdb";
  std::filesystem::remove(platform::toSystemPath(path));
  office::makeDatabase(path, office::reference() + reference);
  office.makeTarget(Base + target);
}

Update Study::update(const std::string& application) {
  std::ostringstream out, err;
  Update result;
  result.status = console::runBatch(office.batch(application), out, err);
  const std::string summary = out.str();
  result.structure = between(summary, "in corso...fatto.\n", "\nAggiungo le query");
  if (const auto end = result.structure.find("Errore: "); end != std::string::npos)
    result.structure.resize(end);
  result.contents = between(summary, "\nAggiungo le query...", "\nAggiornamento tabelle terminato!");
  result.error = between(summary, "\nErrore: ", "\n");
  result.errors = err.str();
  return result;
}

std::string Study::plan(const std::string& application) {
  auto options = office.batch(application);
  options.plan = true;
  std::ostringstream out, err;
  const int status = console::runBatch(options, out, err);
  return std::to_string(status) + "\n" + out.str() + err.str();
}

std::string Study::bytes() const {
  return platform::readWholeFile(office.target);
}

std::string Study::faults() const {
  const char* const data = std::getenv("AGGNORVO_JET_DATA");
  if (!data) return {};
  const auto check =
      support::runCommand("python3 " + support::shellWord(std::string(data) + "/jet/jetcheck.py") +
                          " --strict " + support::shellWord(platform::toSystemPath(office.target)));
  return check.status == 0 ? "" : check.output + check.errors;
}

}  // namespace study
