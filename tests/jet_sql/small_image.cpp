#include "small_image.h"

#include <gtest/gtest.h>

#include "jet/image/connection.h"
#include "jet/image/row_codec.h"
#include "jet/sql/domain.h"
#include "jet/sql/function_support.h"
#include "jet/sql/parser/parser.h"
#include "jet/sql/syntax_error.h"
#include "jet/sql/tree/print.h"

namespace jet::sql::test {

namespace {

using file::ColumnType;

/// The table that a CREATE TABLE asks for, as a file would hold it.
file::TableDefinition makeTable(std::uint32_t page, const CreateTable& create) {
  file::TableDefinition table;
  table.page = page;
  table.name = create.table;
  for (const NewColumn& wanted : create.columns) {
    file::Column column;
    column.name = wanted.name;
    column.type = wanted.type;
    column.number = column.position = static_cast<std::uint16_t>(table.columns.size());
    column.length = wanted.size;
    if (wanted.type == ColumnType::Text) column.length *= 2;
    column.precision = wanted.precision;
    column.scale = wanted.scale;
    table.columns.push_back(column);
  }
  return table;
}

std::string shown(sqlite3_stmt* statement, int column, Type type) {
  if (sqlite3_column_type(statement, column) == SQLITE_NULL) return "Null";
  return decodeValue(image::RowColumn{statement, column}, type).toText();
}

/// On the pages from 10 on.
constexpr const char* tables[] = {
    "CREATE TABLE soci (id LONG, nome TEXT(10), cognome TEXT(30), quota CURRENCY, attivo BIT, iscritto "
    "DATETIME, Set TEXT(1), [legge494/96] BIT, Note MEMO, altezza DOUBLE, livello SHORT)",
    "CREATE TABLE pagamenti (id LONG, socio LONG, importo CURRENCY, data DATETIME, peso DECIMAL(10, 2))",
    "CREATE TABLE tipi (uno BYTE, mezzo SINGLE, chiave GUID, dati BINARY(4), nome TEXT(10))",
    "CREATE TABLE rate (id LONG, stato TEXT(1), data DATETIME, importo CURRENCY)",
    "CREATE TABLE guasti (a LONG, b LONG, c LONG)"};

/// Expressions that new rows get in columns without a value.
constexpr std::pair<std::string_view, const char*> defaults[] = {{"rate.stato", "\"N\""},
                                                                 {"rate.data", "=DateSerial(2006, 1, 2)"},
                                                                 {"rate.importo", "1 + 1.5"},
                                                                 {"guasti.b", "1 +"},
                                                                 {"guasti.c", "[a] + 1"}};

/// Two members and their payments: 1 Anna pays twice, 2 bruno once, 3 Ezio never; one payment has no member.
constexpr const char* content = R"(
  INSERT INTO t10 VALUES (1, 'Anna', 'Rossi', 1250000, -1, 38353.0, 'A', 0, 'prima', 1.5, 3),
                         (2, 'bruno', 'ROSSI', 500000, 0, 38718.75, 'B', -1, NULL, 2.5, 7),
                         (3, 'Ezio', 'Bianchi', NULL, -1, NULL, NULL, 0, '', NULL, NULL);
  INSERT INTO t11 VALUES (1, 1, 100000, 39000.0, '10.50'), (2, 1, 255000, 39001.0, '9.25'),
                         (3, 2, 50000, 39002.0, '100.00'), (4, 9, NULL, NULL, NULL);
)";

/// `sql` with literals in the places of parameters.
std::string answered(std::string sql, const std::vector<std::string>& answers) {
  for (std::size_t i = answers.size(); i > 0; --i) {
    const std::string mark = "?" + std::to_string(i);
    for (auto at = sql.find(mark); at != std::string::npos; at = sql.find(mark)) {
      sql.replace(at, mark.size(), answers[i - 1]);
    }
  }
  return sql;
}

}  // namespace

SmallImage::SmallImage() {
  sqlite3_open(":memory:", &connection_);
  image::registerOrders(connection_);
  registerFunctions(connection_);
  registerDomainFunction(connection_, [this](const std::string& text) { return compileRows(text); });
  std::uint32_t page = 10;
  for (const char* table : tables) add(makeTable(page++, std::get<CreateTable>(compile(table, *this))));
  execute(content);
}

void SmallImage::add(file::TableDefinition table) {
  std::string columns;
  for (const file::Column& column : table.columns) {
    columns += (columns.empty() ? "c" : ", c") + std::to_string(column.number) + " " +
               image::columnDeclaration(column.type);
  }
  execute("CREATE TABLE t" + std::to_string(table.page) + " (" + columns + ")");
  tables_.push_back(std::move(table));
}

void SmallImage::execute(const std::string& sql) {
  if (sqlite3_exec(connection_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
    throw image::errorFromSqlite(connection_);
  }
}

const file::TableDefinition* SmallImage::findTable(std::string_view name) const {
  for (const file::TableDefinition& table : tables_) {
    if (file::sameName(table.name, name)) return &table;
  }
  return nullptr;
}

std::optional<std::string> SmallImage::findQuery(std::string_view name) const {
  if (name == "attivi")
    return "PARAMETERS minimo Currency; SELECT id, nome AS chi FROM soci WHERE quota >= minimo;";
  if (name == "infinita") return "SELECT * FROM infinita;";
  return std::nullopt;
}

std::string SmallImage::defaultOf(const file::TableDefinition& table, const file::Column& column) const {
  for (const auto& [name, value] : defaults) {
    if (table.name + "." + column.name == name) return value;
  }
  return {};
}

std::string SmallImage::stepByRow(const RowStatement& statement, const std::vector<std::string>& answers) {
  execute("CREATE TEMP TABLE gathered AS " + answered(statement.steps->spool, answers));
  execute("CREATE TEMP TABLE jet_rows AS SELECT * FROM gathered WHERE 0");
  sqlite3_stmt* count = nullptr;
  sqlite3_prepare_v2(connection_, "SELECT count(*) FROM gathered", -1, &count, nullptr);
  sqlite3_step(count);
  const int rows = sqlite3_column_int(count, 0);
  sqlite3_finalize(count);
  int applied = 0;
  std::string failures;
  for (int row = 1; row <= rows; ++row) {
    execute("DELETE FROM jet_rows");
    execute("INSERT INTO jet_rows SELECT * FROM gathered WHERE rowid = " + std::to_string(row));
    try {
      for (const std::string& sql : statement.steps->apply) execute(answered(sql, answers));
      ++applied;
    } catch (const runtime::Error& error) {
      failures += ", error " + std::to_string(error.number());
    }
  }
  execute("DROP TABLE gathered; DROP TABLE jet_rows;");
  return std::to_string(applied) + " applied" + failures;
}

void expectPrintsBack(const std::string& text) {
  const tree::Statement statement = parse(text);
  const std::string printed = tree::print(statement);
  EXPECT_TRUE(statement == parse(printed)) << text << "\nprinted as: " << printed;
}

std::string SmallImage::run(const std::string& text, const std::vector<std::string>& answers) {
  try {
    const RowStatement statement = compileRows(text);
    expectPrintsBack(text);
    return step(statement, answers);
  } catch (const SyntaxError& error) {
    return "error " + std::to_string(error.number()) + " at " + std::to_string(error.position());
  } catch (const runtime::Error& error) {
    return "error " + std::to_string(error.number());
  }
}

std::string SmallImage::step(const RowStatement& statement, const std::vector<std::string>& answers) {
  if (statement.sql.empty()) {
    const std::string result = stepByRow(statement, answers);
    return result.substr(0, result.find(' '));
  }
  const std::string sql = answered(statement.sql, answers);
  sqlite3_stmt* prepared = nullptr;
  if (sqlite3_prepare_v2(connection_, sql.c_str(), -1, &prepared, nullptr) != SQLITE_OK) {
    throw image::errorFromSqlite(connection_);
  }
  std::string result;
  int code = 0;
  while ((code = sqlite3_step(prepared)) == SQLITE_ROW) {
    if (!result.empty()) result += "; ";
    for (std::size_t i = 0; i < statement.columns.size(); ++i) {
      result += (i ? "|" : "") + shown(prepared, static_cast<int>(i), statement.columns[i].type);
    }
  }
  if (code == SQLITE_DONE && statement.kind != RowStatement::Kind::Select) {
    result = std::to_string(sqlite3_changes(connection_));
  }
  const auto error = image::errorFromSqlite(connection_);
  sqlite3_finalize(prepared);
  if (code != SQLITE_DONE) throw error;
  return result;
}

}  // namespace jet::sql::test
