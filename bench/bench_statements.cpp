// What statements cost, as ratios to what the shell of SQLite takes for their translation on the same image;
// and how fast a table is loaded and saved.
#include <CLI/CLI.hpp>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "child.h"
#include "jet/dao/engine.h"
#include "jet/dao/query/row_changes.h"
#include "jet/dao/session/session.h"
#include "jet/file/page/usage_map.h"
#include "office_file.h"
#include "platform/paths.h"
#include "platform/program.h"
#include "report.h"
#include "statements.h"

namespace bench {
namespace {

using namespace jet;
using Clock = std::chrono::steady_clock;

constexpr char LargeTable[] = "storico_quote";

template <typename Work>
double secondsOf(Work work) {
  const auto begin = Clock::now();
  work();
  return std::chrono::duration<double>(Clock::now() - begin).count();
}

std::unique_ptr<file::PageFile> openPages(const std::string& path) {
  return std::make_unique<file::PageFile>(path, file::Sharing::Exclusive, false);
}

void prepare(dao::Session& session) {
  for (const char* sql : preparations()) session.runner().execute(session.runner().compile(sql), {}, true);
}

/// Reads every field of every row, as a caller does.
void readAll(dao::Recordset& rows) {
  const std::size_t count = rows.Fields().Count();
  std::size_t fields = 0;
  for (; !rows.atEnd(); rows.MoveNext())
    for (std::size_t i = 0; i < count; ++i) fields += rows.Fields(i).Value().isNull();
}

bool isSelect(const TimedStatement& statement) {
  return std::string_view(statement.sql).find("SELECT") < std::string_view(statement.sql).find("UPDATE") &&
         std::string_view(statement.sql).find("INSERT") == std::string_view::npos &&
         std::string_view(statement.sql).find("DELETE") == std::string_view::npos;
}

/// Our time, through the data access objects, on tables that are loaded already.
double ours(const std::string& office, const TimedStatement& statement) {
  dao::Workspace workspace;
  const auto database = workspace.OpenDatabase(office, true);
  workspace.BeginTrans();
  for (const char* sql : preparations()) database->Execute(sql, dao::dbFailOnError);
  const auto query = database->CreateQueryDef("", statement.sql);
  const auto once = [&](long number) {
    if (statement.repetitions > 0) query->Parameters(0).setValue(static_cast<std::int32_t>(number));
    if (isSelect(statement))
      readAll(*query->OpenRecordset(dao::dbOpenForwardOnly));
    else
      query->Execute(dao::dbFailOnError);
  };
  // The large table is loaded now, and indexed; what comes first then is rolled back, and took the rest
  // along.
  readAll(*database->OpenRecordset("SELECT Count(*) FROM storico_quote WHERE cd_quota = 0 AND cd_matr = 0"));
  workspace.BeginTrans();
  once(0);
  workspace.Rollback();
  const double seconds = secondsOf([&] {
    for (long i = 1; i <= std::max(1L, statement.repetitions); ++i) once(i);
  });
  workspace.Rollback();
  return seconds;
}

/// The image with the indexes that the statement asks for, as a file, and the statement for it.
std::string exportImage(const std::string& office, const TimedStatement& statement,
                        const std::string& image) {
  dao::Session session(openPages(office));
  prepare(session);
  const auto compiled = session.runner().compile(statement.sql);
  const auto& plan = std::get<sql::RowStatement>(compiled);
  dao::makeReady(session.image(), plan);  // keys and rules too, where rows are to be changed
  std::filesystem::remove(image);
  session.image().connection().execute("VACUUM INTO '" + image + "'");
  return plan.sql;
}

std::string withNumber(std::string sql, long number) {
  for (auto at = sql.find("?1"); at != std::string::npos; at = sql.find("?1", at))
    sql.replace(at, 2, std::to_string(number));
  return sql;
}

/// The shell's time: what its run takes with the statement beyond what it takes without.
double theirs(const std::string& folder, const std::string& image, const std::string& sql, long repetitions) {
  const std::string extension =
      platform::toSystemPath(platform::executableFolder()) + "/jet_shell_extension.so";
  const std::string script = folder + "/script.sql";
  const auto run = [&](long times) {
    std::ofstream out(script);
    out << ".load " << extension << " sqlite3_jetshell_init\n"
        << "PRAGMA cache_size = -24576; PRAGMA synchronous = OFF; PRAGMA temp_store = FILE;\n.output "
           "/dev/null\n"
        << "BEGIN;\n";
    for (long i = 1; i <= times; ++i) out << withNumber(sql, i) << ";\n";
    out << "ROLLBACK;\n";
    out.close();
    return runChild({"sh", "-c", "sqlite3 -bail \"$0\" < \"$1\"", image, script}).seconds;
  };
  return run(std::max(1L, repetitions)) - run(0);
}

void statementTimes(const std::string& folder, const std::string& office, const std::string& only) {
  const std::string image = folder + "/image.db";
  for (const auto& statement : timedStatements()) {
    if (std::string_view(statement.name).find(only) == std::string_view::npos) continue;
    const std::string sql = exportImage(office, statement, image);
    const double shell = theirs(folder, image, sql, statement.repetitions);
    const double engine = ours(office, statement);
    report(statement.name, engine, "s", "", 0);
    report("  in times of what the shell takes", engine / shell, "x", "<=", 1.5);
  }
  std::filesystem::remove(image);
}

void loadingAndSaving(const std::string& office, const std::string& folder) {
  const std::string copy = folder + "/copy.mdb";
  std::filesystem::copy_file(office, copy, std::filesystem::copy_options::overwrite_existing);
  runChild({"sh", "-c", "cat \"$0\" && sync", copy});
  dao::Session session(openPages(copy));
  const auto& design = *session.image().definition(std::string_view(LargeTable));
  const auto pages = file::readUsageMap(session.image().source(), design.ownedMap).size();
  const double tableSize = static_cast<double>(pages * session.image().source().format().pageSize) / 1e6;
  const double loading = secondsOf([&] { session.image().prepareToRead(design.page, {}); });
  report("pages of the large table", tableSize, "MB", "", 0);
  report("  loading them, a second", tableSize / loading, "MB", ">=", 100);
  session.runner().execute(
      session.runner().compile(std::string("UPDATE ") + LargeTable + " SET cd_matr = 1 WHERE cd_quota = 1"),
      {}, true);
  const double saving = secondsOf([&] { session.save(); });
  const double fileSize = static_cast<double>(std::filesystem::file_size(copy)) / 1e6;
  report("  saving its file with one row changed, a second", fileSize / saving, "MB", ">=", 60);
  std::filesystem::remove(copy);
}

void run(const std::string& folder, long rows, const std::string& only) {
  std::filesystem::create_directories(folder);
  const std::string office = folder + "/office.mdb";
  if (!std::filesystem::exists(office)) makeOffice(platform::fromSystemPath(office), rows);
  runChild({"sh", "-c", "cat \"$0\"", office});  // all readers find it in the system's memory
  if (only.empty()) loadingAndSaving(office, folder);
  statementTimes(folder, office, only);
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv) {
  platform::holdStandardStreams();
  std::string folder;
  std::string only;
  long rows = 1'000'000;
  CLI::App app("What statements cost, as ratios to the shell of SQLite.", "bench_statements");
  app.add_option("FOLDER", folder, "Where the office's file is made, or found from an earlier run")
      ->required();
  app.add_option("--rows", rows, "Rows of the large table")->check(CLI::PositiveNumber);
  app.add_option("--only", only, "Only statements with this in their name");
  CLI11_PARSE(app, argc, argv);
  try {
    bench::run(folder, rows, only);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "bench_statements: " << error.what() << "\n";
    return 1;
  }
}
