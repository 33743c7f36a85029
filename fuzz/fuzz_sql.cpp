// Any text as a statement: compiled against the tables of the tests, printed and parsed again, and what it
// was translated to carried out for a few rows.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

#include "jet/image/connection.h"
#include "jet/sql/function_support.h"
#include "jet/sql/parser/parser.h"
#include "jet/sql/stored_query.h"
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

/// The same, and takes back what it changed.
void carryOut(sqlite3* connection, const sql::RowStatement& rows) {
  sqlite3_exec(connection, "SAVEPOINT one", nullptr, nullptr, nullptr);
  try {
    step(connection, rows);
  } catch (const runtime::Error& error) {
    broken("a result is not of its type", rows.sql + ": " + error.description());
  }
  sqlite3_exec(connection, "ROLLBACK TO one; RELEASE one", nullptr, nullptr, nullptr);
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
  passes(text, [&] { sql::takeApart(text); });
  passes(text, [&] { printAndParse(text); });
  for (const bool withRowKeys : {false, true})
    passes(text, [&] {
      const sql::Statement statement = sql::compile(text, *image, {withRowKeys});
      if (const auto* rows = std::get_if<sql::RowStatement>(&statement)) carryOut(image->connection(), *rows);
    });
  return 0;
}
