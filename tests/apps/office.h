#pragma once

#include <cstdlib>
#include <fstream>
#include <string>

#include "support/command.h"
#include "support/temp_folder.h"

/// The programs at work on an office's files, and second readers of what they leave. Paths as the system has
/// them.
namespace office {

using support::shellWord;

/// Updates a database in batch against the reference in `programFolder`.
inline support::CommandResult update(const std::string& norvo, const std::string& database,
                                     const std::string& programFolder) {
  const std::string settings = programFolder + "/impostazioni.ini";
  std::ofstream(settings, std::ios::app);  // empty is enough
  return support::runCommand(AGGNORVO " --batch --answer yes --app " + norvo + " --database " +
                             shellWord(database) + " --program-dir " + shellWord(programFolder) +
                             " --settings " + shellWord(settings));
}

/// Status 0 if the database is made as the model is.
inline support::CommandResult compare(const std::string& model, const std::string& database) {
  return support::runCommand(REPOSITORY "/tools/compare-schema " + shellWord(model) + " " +
                             shellWord(database));
}

inline std::string exported(const std::string& database, const std::string& table) {
  return support::runCommand("mdb-export -H " + shellWord(database) + " " + shellWord(table)).output;
}

/// Folder of the format's checker and of databases that real engines wrote, or empty.
inline std::string jetData() {
  const char* folder = std::getenv("AGGNORVO_JET_DATA");
  return folder ? folder : "";
}

/// What the checker says of a file; empty where it is clean, or where the checker is not at hand.
inline std::string complaints(const std::string& database) {
  if (jetData().empty()) return {};
  const auto result = support::runCommand("python3 " + shellWord(jetData() + "/jet/jetcheck.py") +
                                          " --strict " + shellWord(database));
  return result.output + result.errors;
}

}  // namespace office
