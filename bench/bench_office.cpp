// Times and memory on a large office's database, each as a ratio to something of the machine within one run.
#include <CLI/CLI.hpp>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "child.h"
#include "platform/paths.h"
#include "platform/program.h"
#include "report.h"
#include "runtime/error.h"
#include "steps.h"

namespace bench {
namespace {

struct Settings {
  std::string folder;
  long rows = 1'000'000;
  std::string step;  // set in a child
};

class Bench {
 public:
  explicit Bench(const Settings& settings)
      : settings_(settings),
        programs_(platform::toSystemPath(platform::executableFolder())),
        office_(settings.folder + "/office.mdb") {}

  void run() {
    prepare();
    reading();
    opening();
    writing();
    wholeRun();
  }

 private:
  std::vector<std::string> step(const char* name, const std::string& path) const {
    return {programs_ + "/bench_office", "--rows", std::to_string(settings_.rows), "--step", name, path};
  }

  void prepare() {
    std::filesystem::create_directories(settings_.folder);
    if (!std::filesystem::exists(office_)) runChild(step("make-office", office_));
    report("size of the file", static_cast<double>(std::filesystem::file_size(office_)) / 1e6, "MB", "", 0);
    runChild({"sh", "-c", "cat \"$0\"", office_});  // all readers find it in the system's memory
  }

  void reading() {
    const auto ours = medianOf(3, step("read-table", office_));
    const auto theirs = medianOf(3, {"mdb-export", office_, "storico_quote"});
    report("reading the whole table", ours.seconds, "s", "", 0);
    report("  mdb-export of it", theirs.seconds, "s", "", 0);
    report("  how many times as fast", theirs.seconds / ours.seconds, "x", ">=", 3);
    report("  memory", ours.megabytes, "MB", "", 0);
  }

  void opening() {
    const auto ours = medianOf(5, step("read-parameter", office_));
    report("opening and reading one parameter, process included", ours.seconds * 1000, "ms", "<", 50);
    report("  memory", ours.megabytes, "MB", "<", 40);
  }

  /// The three in turn, several times: what else the disk does meanwhile strikes them alike.
  void writing() {
    const std::string copy = settings_.folder + "/copy.mdb";
    std::vector<Measure> copying, saving, compacting;
    for (int round = 0; round < 3; ++round) {
      runChild({"sync"});
      copying.push_back(runChild({"sh", "-c", "cp \"$0\" \"$1\" && sync \"$1\"", office_, copy}));
      saving.push_back(runChild(step("save-one-row", copy)));
      compacting.push_back(runChild(step("compact", copy)));
    }
    const double unit = middle(copying).seconds;
    report("cp and sync of the file", unit, "s", "", 0);
    reportWriting("changing one row of a small table, and saving", middle(saving), unit);
    reportWriting("compacting", middle(compacting), unit);
    std::filesystem::remove(copy);
  }

  static void reportWriting(const char* what, const Measure& ours, double unit) {
    report(what, ours.seconds, "s", "", 0);
    report("  in times of cp and sync", ours.seconds / unit, "x", "", 0);
    report("  memory", ours.megabytes, "MB", "", 0);
  }

  /// The batch program on a copy of the office, with a reference database and settings of its own.
  void wholeRun() {
    const std::string folder = settings_.folder + "/run";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    std::filesystem::copy_file(office_, folder + "/ordcommec.mdb");
    runChild(step("make-reference", folder + "/AggNorvo.mdb"));
    std::ofstream(folder + "/settings.ini")
        << "[ordcommec\\DBSECTION]\ndbpath=" << platform::fromSystemPath(folder + "/ordcommec.mdb") << "\n";
    const auto ours = runChild({programs_ + "/aggnorvo", "--batch", "--app", "ordcommec", "--program-dir",
                                folder, "--settings", folder + "/settings.ini"});
    report("a whole batch run", ours.seconds, "s", "", 0);
    report("  memory", ours.megabytes, "MB", "<", 400);
    std::filesystem::remove_all(folder);
  }

  const Settings& settings_;
  std::string programs_;
  std::string office_;
};

int runStep(const Settings& settings) {
  for (const auto& step : steps()) {
    if (settings.step != step.name) continue;
    step.run(platform::fromSystemPath(settings.folder), settings.rows);
    return 0;
  }
  std::cerr << "bench_office: unknown step " << settings.step << "\n";
  return 64;
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv) {
  platform::holdStandardStreams();
  bench::Settings settings;
  CLI::App app("Times and memory on a large office's database, as ratios.", "bench_office");
  app.add_option("FOLDER", settings.folder, "Where the file is made, or found from an earlier run")
      ->required();
  app.add_option("--rows", settings.rows, "Rows of the large table")->check(CLI::PositiveNumber);
  app.add_option("--step", settings.step, "One step on the file FOLDER, as the program calls itself");
  CLI11_PARSE(app, argc, argv);
  try {
    if (!settings.step.empty()) return bench::runStep(settings);
    bench::Bench(settings).run();
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "bench_office: " << settings.step << " " << error.what() << "\n";
    return 1;
  }
}
