// One statement or command carried out on the open database.
#include "apps/jetsql/shell.h"

#include "apps/jetsql/commands.h"
#include "apps/jetsql/output.h"
#include "jet/file/errors.h"
#include "runtime/error.h"

namespace jetsql {
namespace {

constexpr int noSuchItem = jet::ItemNotFound;
constexpr int returnsRows = jet::SelectNotExecutable;

}  // namespace

bool Shell::run(const std::string& text) {
  if (text.starts_with('.')) return runCommand(*database_, text, output_);
  runStatement(text);
  return true;
}

void Shell::runStatement(const std::string& text) {
  const auto query = database_->CreateQueryDef("", text);
  answerParameters(*query);
  try {
    query->Execute(jet::dao::dbFailOnError);
  } catch (const runtime::Error& error) {
    // The engine alone knows which statements return rows.
    if (error.number() != returnsRows) throw;
    printRows(*query->OpenRecordset(jet::dao::dbOpenForwardOnly));
  }
}

void Shell::answerParameters(jet::dao::QueryDef& query) {
  for (auto& answer : answers_) {
    try {
      query.Parameters(answer.parameter.name).setValue(answer.parameter.value);
      answer.used = true;
    } catch (const runtime::Error& error) {
      if (error.number() != noSuchItem) throw;
    }
  }
}

void Shell::printRows(jet::dao::Recordset& rows) {
  std::vector<std::string> names;
  for (std::size_t i = 0; i < rows.Fields().Count(); ++i) names.push_back(rows.Fields(i).Name());
  output_.columns(names);
  std::vector<runtime::Variant> values(names.size());
  for (; !rows.atEnd(); rows.MoveNext()) {
    for (std::size_t i = 0; i < values.size(); ++i) values[i] = rows.Fields(i).Value();
    output_.row(values);
  }
}

void Shell::checkAnswersUsed() const {
  for (const auto& answer : answers_) {
    if (answer.used) continue;
    throw runtime::Error(5, "jetsql", "Nessuna istruzione ha il parametro " + answer.parameter.name);
  }
}

}  // namespace jetsql
