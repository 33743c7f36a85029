#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "jet/dao/engine.h"
#include "runtime/error.h"
#include "support/command.h"
#include "support/errors.h"
#include "support/temp_folder.h"

/// Small databases for the tests of the data access objects, and second readers that look at what was
/// written.
namespace office {

/// A new database at `path` in which `statements` have been carried out.
inline void make(const std::string& path, const std::vector<std::string>& statements) {
  jet::dao::Workspace workspace;
  const auto db = workspace.CreateDatabase(path);
  for (const auto& sql : statements) db->Execute(sql, jet::dao::dbFailOnError);
  db->Close();
}

inline std::string text(const runtime::Variant& value) {
  if (value.isNull()) return "Null";
  const auto* bytes = std::get_if<runtime::Bytes>(&value.value());
  if (!bytes) return value.toText();
  std::string hex;
  for (const std::byte byte : *bytes)
    for (const int shift : {4, 0}) hex += "0123456789ABCDEF"[std::to_integer<unsigned>(byte) >> shift & 15];
  return hex;
}

/// The rows of a recordset from where it stands, fields joined by '|', rows by blanks.
inline std::string rows(jet::dao::Recordset& recordset) {
  std::string result;
  for (; !recordset.atEnd(); recordset.MoveNext()) {
    if (!result.empty()) result += " ";
    for (std::size_t i = 0; i < recordset.Fields().Count(); ++i)
      result += (i ? "|" : "") + text(recordset.Fields(i).Value());
  }
  return result;
}

/// The same for a query on a file that is opened for it alone.
inline std::string query(const std::string& path, const std::string& sql) {
  jet::dao::Workspace workspace;
  const auto db = workspace.OpenDatabase(path, false, true);
  return rows(*db->OpenRecordset(sql, jet::dao::dbOpenSnapshot));
}

inline std::string system(const std::string& path) {
  return support::shellWord(platform::toSystemPath(path));
}

/// A table as mdb-export writes it.
inline std::string exported(const std::string& path, const std::string& table) {
  return support::runCommand("mdb-export -b hex " + system(path) + " " + support::shellWord(table)).output;
}

/// Folder of the format's checker and of the corpus, or empty.
inline std::string jetData() {
  const char* folder = std::getenv("AGGNORVO_JET_DATA");
  return folder ? folder : "";
}

/// Complaints of the checker about files, in one run of it; empty where they are clean, or where the checker
/// is not at hand.
inline std::string complaints(const std::vector<std::string>& paths,
                              const std::string& options = "--strict") {
  if (jetData().empty() || paths.empty()) return {};
  std::string command = "python3 " + support::shellWord(jetData() + "/jet/jetcheck.py") + " " + options;
  for (const auto& path : paths) command += " " + system(path);
  const auto result = support::runCommand(command);
  return result.status == 0 ? std::string() : result.output + result.errors;
}
inline std::string complaints(const std::string& path, const std::string& options = "--strict") {
  return complaints(std::vector{path}, options);
}

using support::errorOf;

}  // namespace office
