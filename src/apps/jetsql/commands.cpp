// The dot commands, as a table.
#include "apps/jetsql/commands.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "apps/jetsql/design.h"
#include "apps/jetsql/output.h"
#include "apps/jetsql/script.h"
#include "jet/dao/database.h"
#include "jet/file/definition.h"
#include "runtime/error.h"
#include "runtime/join.h"
#include "runtime/text.h"

namespace jetsql {
namespace {

using jet::dao::Database;

/// Takes a name, in brackets where it holds blanks, off the front of `text`.
std::string takeName(std::string& text) {
  const bool bracketed = text.starts_with('[') && text.find(']') != std::string::npos;
  const auto end = bracketed ? text.find(']') : text.find_first_of(runtime::Blanks);
  std::string name = bracketed ? text.substr(1, end - 1) : text.substr(0, end);
  text = end == std::string::npos
             ? ""
             : std::string(runtime::trimmed(std::string_view(text).substr(end + (bracketed ? 1 : 0)),
                                            runtime::Blanks));
  return name;
}

/// Without carriage returns, and with a line feed at the end.
std::string withLineFeeds(std::string text) {
  std::erase(text, '\r');
  if (!text.ends_with('\n')) text += '\n';
  return text;
}

bool isSystem(const jet::dao::TableDef& table) {
  return (table.Attributes() & jet::dao::dbSystemObject) != 0;
}

std::string queryTypeName(int type) {
  static constexpr std::pair<int, const char*> names[] = {
      {jet::dao::dbQSelect, "SELECT"},
      {jet::dao::dbQCrosstab, "TRANSFORM"},
      {jet::dao::dbQDelete, "DELETE"},
      {jet::dao::dbQUpdate, "UPDATE"},
      {jet::dao::dbQAppend, "INSERT"},
      {jet::dao::dbQMakeTable, "SELECT INTO"},
      {jet::dao::dbQDDL, "DDL"},
      {jet::dao::dbQSQLPassThrough, "PASS-THROUGH"},
      {jet::dao::dbQSetOperation, "UNION"},
  };
  for (const auto& [known, name] : names)
    if (known == type) return name;
  return std::to_string(type);
}

void refuseArguments(const std::string& arguments) {
  if (!arguments.empty()) throw runtime::Error(5, "jetsql", "Argomento non previsto: " + arguments);
}

void listTables(Database& database, const std::string& arguments, Output& output) {
  refuseArguments(arguments);
  output.columns({"Name", "System"});
  for (const auto& table : database.TableDefs()) output.row({table->Name(), isSystem(*table)});
}

/// One table with the relations that lead out of it, or all: the tables first, so that relations find theirs.
void showDesign(Database& database, const std::string& arguments, Output& output) {
  std::string rest = arguments;
  const std::string chosen = takeName(rest);
  refuseArguments(rest);
  std::string text;
  if (!chosen.empty()) {
    text = designStatements(*database.TableDefs(chosen));
  } else {
    for (const auto& table : database.TableDefs())
      if (!isSystem(*table)) text += designStatements(*table);
  }
  // Those between system tables come with the file: no statement makes them.
  const auto isOfSystem = [&](const std::string& name) {
    return database.TableDefs().contains(name) && isSystem(*database.TableDefs(name));
  };
  for (const auto& relation : database.Relations()) {
    if (isOfSystem(relation->Table()) || isOfSystem(relation->ForeignTable())) continue;
    if (chosen.empty() || jet::file::sameName(relation->ForeignTable(), chosen))
      text += designStatement(*relation);
  }
  output.text(text);
}

void listQueries(Database& database, const std::string& arguments, Output& output) {
  refuseArguments(arguments);
  output.columns({"Name", "Type"});
  for (const auto& query : database.QueryDefs()) output.row({query->Name(), queryTypeName(query->Type())});
}

void listRelations(Database& database, const std::string& arguments, Output& output) {
  refuseArguments(arguments);
  output.columns({"Name", "Table", "ForeignTable", "Attributes", "Fields"});
  for (const auto& relation : database.Relations()) {
    const auto names = [](const auto& pair) { return pair.Name() + " = " + pair.ForeignName(); };
    output.row({relation->Name(), relation->Table(), relation->ForeignTable(), relation->Attributes(),
                runtime::join(relation->Fields(), ", ", names)});
  }
}

/// Shows the text of a stored query, or stores one.
void keepQuery(Database& database, const std::string& arguments, Output& output) {
  std::string sql = arguments;
  const std::string name = takeName(sql);
  if (name.empty()) throw runtime::Error(5, "jetsql", ".query vuole il nome di una query");
  if (sql.empty()) return output.text(withLineFeeds(database.QueryDefs(name)->SQL()));
  if (database.QueryDefs().contains(name))
    database.QueryDefs(name)->setSQL(sql);
  else
    database.CreateQueryDef(name, sql);
}

void showHelp(Database&, const std::string& arguments, Output& output) {
  refuseArguments(arguments);
  output.text(commandsHelp());
}

void endSession(Database&, const std::string& arguments, Output&) {
  refuseArguments(arguments);
}

constexpr Command table[] = {
    {".tables", "", "elenca le tabelle, anche quelle di sistema", listTables},
    {".schema", "[TABELLA]", "mostra le istruzioni che creano la tabella e le sue relazioni, o tutte",
     showDesign},
    {".queries", "", "elenca le query memorizzate con il loro tipo", listQueries},
    {".relations", "", "elenca le relazioni", listRelations},
    {".query", "NOME [SQL]",
     "mostra una query, o la memorizza al posto della vecchia; un nome con spazi va tra parentesi quadre",
     keepQuery},
    {".help", "", "mostra questi comandi", showHelp},
    {".quit", "", "termina", endSession, true},
};

}  // namespace

std::span<const Command> commands() {
  return table;
}

const Command& commandOf(const std::string& line) {
  const std::string_view name = std::string_view(line).substr(0, line.find_first_of(runtime::Blanks));
  for (const auto& command : commands()) {
    if (command.name == name) return command;
  }
  throw runtime::Error(5, "jetsql", "Comando sconosciuto: " + std::string(name));
}

bool runCommand(Database& database, const std::string& line, Output& output) {
  const Command& command = commandOf(line);
  command.run(database,
              std::string(runtime::trimmed(
                  std::string_view(line).substr(std::string_view(command.name).size()), runtime::Blanks)),
              output);
  return !command.ends;
}

std::string commandsHelp() {
  std::string text = "Comandi:\n";
  for (const auto& command : commands()) {
    std::string usage = std::string("  ") + command.name + " " + command.arguments;
    usage.resize(std::max<std::size_t>(usage.size() + 1, 30), ' ');
    text += usage + command.help + "\n";
  }
  return text;
}

}  // namespace jetsql
