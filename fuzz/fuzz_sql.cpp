// Any text as a statement: compiled against the tables of the tests, printed and parsed again, taken apart as
// a stored query and put together, and what it was translated to carried out for a few rows, changes in their
// two steps too.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

#include "jet/image/connection.h"
#include "jet/sql/function_support.h"
#include "jet/sql/parser/parser.h"
#include "jet/sql/stored/stored_query.h"
#include "jet/sql/tree/print.h"
#include "jet_sql/small_image.h"

namespace {

using namespace jet;

constexpr int MostRows = 50, InstructionsToTick = 1000, MostTicks = 200;

[[noreturn]] void broken(const char* what, const std::string& detail) {
  std::fprintf(stderr, "%s: %s\n", what, detail.c_str());
  std::abort();
}

/// The number that stands for errors of SQLite which no translated statement may bring.
constexpr int NotForeseen = 3000;

void printAndParse(const std::string& text) {
  const sql::tree::Statement statement = sql::parse(text);
  const std::string printed = sql::tree::print(statement);
  try {
    if (!(sql::parse(printed) == statement)) broken("parses to another tree", printed);
  } catch (const runtime::Error& error) {
    if (error.number() != 3360) broken("can't be parsed again", printed + ": " + error.description());
  }
}

/// The text that a stored query shows is the text of the same query. Names that are words of clauses are
/// asked about only as the printer writes them, in brackets.
void storeAndShow(const std::string& text) {
  sql::queryText(sql::decodeQuery(text));
  const std::string shown = sql::queryText(sql::decodeQuery(sql::tree::print(sql::parse(text))));
  try {
    const std::string again = sql::queryText(sql::decodeQuery(shown));
    if (again != shown) broken("is shown in another way once stored again", shown + "\n" + again);
    sql::parse(shown);
  } catch (const runtime::Error& error) {
    if (error.number() != 3360) broken("can't be stored as it is shown", shown + ": " + error.description());
  }
}

int ticks = 0;

/// Carries a translated statement out for a few rows.
void step(sqlite3* connection, const sql::RowStatement& rows) {
  sqlite3_stmt* prepared = nullptr;
  int code = sqlite3_prepare_v2(connection, rows.sql.c_str(), -1, &prepared, nullptr);
  if (code == SQLITE_OK) {
    ticks = 0;
    for (int row = 0; row < MostRows && (code = sqlite3_step(prepared)) == SQLITE_ROW; ++row)
      for (std::size_t i = 0; i < rows.columns.size(); ++i) {
        const auto column = static_cast<int>(i);
        if (sqlite3_column_type(prepared, column) != SQLITE_NULL)
          sql::readValue(sqlite3_column_value(prepared, column), rows.columns[i].type).toText();
      }
  }
  const runtime::Error error = image::errorFromSqlite(connection);
  sqlite3_finalize(prepared);
  if (code == SQLITE_ERROR && error.number() == NotForeseen)
    broken("SQLite refuses", rows.sql + ": " + error.description());
}

/// Prepares what a change does row by row, over the table of gathered rows.
void prepareSteps(sqlite3* connection, const sql::RowStatement::Steps& steps) {
  const auto prepare = [&](const std::string& text, bool run) {
    ticks = 0;
    sqlite3_stmt* prepared = nullptr;
    const int code = sqlite3_prepare_v2(connection, text.c_str(), -1, &prepared, nullptr);
    const runtime::Error error = image::errorFromSqlite(connection);
    if (code == SQLITE_OK && run) sqlite3_step(prepared);
    sqlite3_finalize(prepared);
    if (code == SQLITE_ERROR && error.number() == NotForeseen)
      broken("SQLite refuses a step", text + ": " + error.description());
  };
  prepare(steps.gather, false);
  prepare("CREATE TEMP TABLE jet_rows AS SELECT * FROM (" + steps.gather + ") LIMIT 1", true);
  for (const std::string& text : steps.apply) prepare(text, true);
}

/// Carries a statement out and takes back what it changed.
void carryOut(sqlite3* connection, const sql::RowStatement& rows) {
  const auto execute = [&](const char* sql) { sqlite3_exec(connection, sql, nullptr, nullptr, nullptr); };
  execute("SAVEPOINT one");
  try {
    if (!rows.sql.empty()) step(connection, rows);
  } catch (const runtime::Error& error) {
    broken("a result is not of its type", rows.sql + ": " + error.description());
  }
  execute("ROLLBACK TO one");
  if (rows.steps) prepareSteps(connection, *rows.steps);
  execute("ROLLBACK TO one; RELEASE one");
}

/// Runs `work`, which may end in a numbered error.
template <typename Work>
void passes(const std::string& text, const Work& work) {
  try {
    work();
  } catch (const runtime::Error& error) {
    if (error.number() == 0 || error.description().empty()) broken("error without number or text", text);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static sql::test::SmallImage* image = [] {
    auto* made = new sql::test::SmallImage;
    sqlite3_progress_handler(
        made->connection(), InstructionsToTick, [](void*) { return ++ticks > MostTicks ? 1 : 0; }, nullptr);
    sqlite3_limit(made->connection(), SQLITE_LIMIT_LENGTH, 1 << 24);
    return made;
  }();
  const std::string text(reinterpret_cast<const char*>(data), size);
  passes(text, [&] { storeAndShow(text); });
  passes(text, [&] { printAndParse(text); });
  for (const bool withRowKeys : {false, true})
    passes(text, [&] {
      const sql::Statement statement = sql::compile(text, *image, {withRowKeys});
      if (const auto* rows = std::get_if<sql::RowStatement>(&statement)) carryOut(image->connection(), *rows);
      if (const auto* into = std::get_if<sql::SelectInto>(&statement))
        carryOut(image->connection(), into->rows);
    });
  return 0;
}
