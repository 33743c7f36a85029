// Reconciling a database with its reference: one that is equal already, and a field of a large table.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <functional>
#include <iostream>

#include "jet/dao/engine.h"
#include "office_file.h"
#include "platform/disk.h"
#include "platform/paths.h"
#include "platform/program.h"
#include "report.h"
#include "schema/fasi.h"
#include "schema_files.h"

namespace bench {
namespace {

using namespace jet::dao;

double secondsOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> times) {
  std::ranges::sort(times);
  return times[times.size() / 2];
}

/// Counts what is read of a file.
class Reading : public platform::DiskObserver {
 public:
  explicit Reading(std::string path) : path_(std::move(path)), before_(platform::observeDisk(this)) {}
  ~Reading() override { platform::observeDisk(before_); }
  void before(const platform::DiskCall& call) override {
    if (call.operation == platform::DiskOperation::Read && call.path == path_) ++calls;
  }

  long calls = 0;

 private:
  std::string path_;
  platform::DiskObserver* before_;
};

/// A target and its reference in a transaction that is taken back at the end.
class Desk {
 public:
  Desk(const std::string& target, const std::string& reference) {
    environment.applicazione = "ordcommec";
    environment.riferimento = workspace_.OpenDatabase(reference, false, true);
    environment.destinazione = workspace_.OpenDatabase(target, true);
    environment.percorsoRiferimento = reference;
    environment.scrivi = [this](const std::string&, schema::Voce) { ++lines; };
    environment.trattieni = [](const runtime::Error&) {};
    workspace_.BeginTrans();
  }
  ~Desk() { workspace_.Rollback(); }

  schema::Ambiente environment;
  long lines = 0;

 private:
  Workspace workspace_;
};

void requireLines(const Desk& desk, bool some) {
  if ((desk.lines > 0) != some) throw std::runtime_error("the phases did not do what is measured");
}

void equalDatabase(const std::string& folder, int tables, int fields) {
  const std::string target = folder + "\\equal.mdb", reference = folder + "\\equal-reference.mdb";
  makeEqualPair(target, reference, tables, fields);
  std::vector<double> times;
  long reads = 0;
  for (int round = 0; round < 5; ++round) {
    const Reading reading(target);
    times.push_back(secondsOf([&] {
      const Desk desk(target, reference);
      schema::CreaEModificaCampi(desk.environment);
      schema::EliminaCampi(desk.environment);
      schema::AggiornaIndici(desk.environment);
      schema::AggiornaRelazioni(desk.environment);
      requireLines(desk, false);
    }));
    reads = reading.calls;
  }
  const double megabytes =
      static_cast<double>(std::filesystem::file_size(platform::toSystemPath(target))) / 1e6;
  report("an equal database of 60 tables and 1,500 fields", median(times), "s", "<", 0.5);
  report("  its file", megabytes, "MB", "", 0);
  report("  reads of it, a megabyte at most each", static_cast<double>(reads), "", "", 0);
}

/// A column of the large table, and what a rebuild makes of it.
struct Rebuild {
  const char* column;
  int type, size;
};

/// The bound holds for a file just opened, as an update finds it; rows that are in memory already show what
/// the rest is made of.
void rebuiltField(const std::string& folder, const Rebuild& field, bool loaded) {
  const std::string office = folder + "\\office.mdb", reference = folder + "\\field-reference.mdb";
  makeFieldReference(reference, "storico_quote", field.column, field.type, field.size);
  const std::string update =
      std::string("UPDATE storico_quote SET [") + field.column + "]=[" + field.column + "]";
  const auto timed = [&](const std::function<void(Desk&)>& work) {
    double seconds = 0;
    const double whole = secondsOf([&] {
      Desk desk(office, reference);
      // Any change loads the rows and makes them ready.
      if (loaded)
        desk.environment.destinazione->Execute("UPDATE storico_quote SET cd_matr = 1 WHERE cd_quota = 0");
      seconds = secondsOf([&] { work(desk); });
    });
    return loaded ? seconds : whole;
  };
  std::vector<double> updating, rebuilding;
  for (int round = 0; round < 3; ++round) {
    updating.push_back(
        timed([&](Desk& desk) { desk.environment.destinazione->Execute(update, dbFailOnError); }));
    rebuilding.push_back(timed([](Desk& desk) {
      schema::CreaEModificaCampi(desk.environment);
      requireLines(desk, true);
    }));
  }
  const std::string name =
      std::string("field ") + field.column + (loaded ? ", rows loaded" : ", file just opened");
  report((name + ": UPDATE").c_str(), median(updating), "s", "", 0);
  report("  rebuilding it", median(rebuilding), "s", "", 0);
  report("  in times of the UPDATE", median(rebuilding) / median(updating), "x", "<=", loaded ? 0 : 2);
}

void run(const std::string& systemFolder, long rows) {
  std::filesystem::create_directories(systemFolder);
  const std::string folder = platform::fromSystemPath(std::filesystem::absolute(systemFolder).string());
  equalDatabase(folder, 60, 25);
  if (!std::filesystem::exists(systemFolder + "/office.mdb")) makeOffice(folder + "\\office.mdb", rows);
  for (const Rebuild& field : {Rebuild{"ds_nominativo", dbText, 120}, Rebuild{"cd_matr", dbDouble, 8}})
    for (const bool loaded : {false, true}) rebuiltField(folder, field, loaded);
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv) {
  platform::holdStandardStreams();
  std::string folder;
  long rows = 1'000'000;
  CLI::App app("Times of the reconciliation of a database with its reference.", "bench_schema");
  app.add_option("FOLDER", folder, "Where the files are made, or found from an earlier run")->required();
  app.add_option("--rows", rows, "Rows of the large table")->check(CLI::PositiveNumber);
  CLI11_PARSE(app, argc, argv);
  try {
    bench::run(folder, rows);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "bench_schema: " << error.what() << "\n";
    return 1;
  }
}
