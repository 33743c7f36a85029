#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "play.h"
#include "support/command.h"
#include "support/temp_folder.h"

namespace model {
namespace {

unsigned setting(const char* name, unsigned otherwise) {
  const char* text = std::getenv(name);
  return text ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : otherwise;
}

/// Files are handed to the checker by the hundred: starting it costs more than its work.
class Checker {
 public:
  explicit Checker(const support::TempFolder& folder) : folder_(folder) {
    if (const char* data = std::getenv("AGGNORVO_JET_DATA"))
      program_ = std::string(data) + "/jet/jetcheck.py";
  }
  bool available() const { return !program_.empty(); }

  /// Keeps a copy; complaints, if it was the time to look.
  std::string add(const std::string& file, const std::string& title) {
    if (!available()) return "";
    copies_.push_back(folder_.systemPath(title + ".mdb"));
    std::filesystem::copy_file(file, copies_.back());
    constexpr std::size_t batch = 100;
    return copies_.size() < batch ? "" : run();
  }
  std::string run() {
    if (copies_.empty()) return "";
    // The number of a dropped relation stays free, as the original engine leaves it.
    std::string line = "python3 " + support::shellWord(program_) + " --strict --allow id-gap";
    for (const auto& copy : copies_) line += " " + support::shellWord(copy);
    const auto result = support::runCommand(line);
    for (const auto& copy : copies_) std::filesystem::remove(copy);
    copies_.clear();
    return result.status == 0 ? "" : result.output.substr(0, 4000) + result.errors.substr(0, 1000);
  }

 private:
  const support::TempFolder& folder_;
  std::string program_;
  std::vector<std::string> copies_;
};

/// AGGNORVO_MODEL_SEQUENCES and AGGNORVO_MODEL_SEED choose how many and which.
TEST(RandomSequences, LeaveTheFileEqualToAPlainModelAndClean) {
  const unsigned files = setting("AGGNORVO_MODEL_SEQUENCES", 2000) / 20;
  const unsigned first = setting("AGGNORVO_MODEL_SEED", 1);
  const support::TempFolder folder;
  Checker checker(folder);
  for (unsigned seed = first; seed < first + files; ++seed) {
    Play play(folder.path("play.mdb"), seed);
    for (int session = 0; session < 20; ++session) {
      const std::string difference = play.session();
      ASSERT_EQ(difference, "") << "seed " << seed << ", after\n" << play.log();
      ASSERT_EQ(
          checker.add(folder.systemPath("play.mdb"), std::to_string(seed) + "-" + std::to_string(session)),
          "");
    }
    std::filesystem::remove(folder.systemPath("play.mdb"));
  }
  EXPECT_EQ(checker.run(), "");
  if (!checker.available()) std::puts("AGGNORVO_JET_DATA is not set: the files were not checked");
}

}  // namespace
}  // namespace model
