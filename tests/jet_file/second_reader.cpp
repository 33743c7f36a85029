#include "second_reader.h"

#include <cstdlib>
#include <stdexcept>

#include "../support/command.h"
#include "corpus.h"

namespace second_reader {

namespace {

// Characters that no table of the corpus holds.
const std::string FieldEnd = "<field>", RowEnd = "<row>", NullMark = "<null>";

std::vector<std::string> split(const std::string& text, const std::string& end) {
  std::vector<std::string> parts;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t stop = text.find(end, at);
    if (stop == std::string::npos) throw std::runtime_error("cut output: " + text.substr(at, 80));
    parts.push_back(text.substr(at, stop - at));
    at = stop + end.size();
  }
  return parts;
}

}  // namespace

bool available() {
  return std::system("mdb-export --version >/dev/null 2>&1") == 0;
}

std::vector<std::string> tables(const std::string& productPath) {
  return split(
      support::runCommand("mdb-tables -S -1 " + support::shellWord(corpus::systemPath(productPath))).output,
      "\n");
}

Table read(const std::string& productPath, const std::string& table) {
  const std::string date = " -D '%Y-%m-%d %H:%M:%S' -T '%Y-%m-%d %H:%M:%S'";
  const std::string text =
      support::runCommand("MDB_JET3_CHARSET=CP1252 MDBICONV=UTF-8 mdb-export -Q -b hex" + date + " -d " +
                          support::shellWord(FieldEnd) + " -R " + support::shellWord(RowEnd) + " -0 " +
                          support::shellWord(NullMark) + " " +
                          support::shellWord(corpus::systemPath(productPath)) + " " +
                          support::shellWord(table))
          .output;
  Table result;
  // The header ends with a row end of its own.
  for (const std::string& row : split(text, RowEnd)) {
    std::vector<std::optional<std::string>> fields;
    for (const std::string& field : split(row + FieldEnd, FieldEnd))
      fields.push_back(field == NullMark ? std::nullopt : std::optional(field));
    if (result.columns.empty())
      for (const auto& field : fields) result.columns.push_back(field.value_or(""));
    else
      result.rows.push_back(std::move(fields));
  }
  return result;
}

}  // namespace second_reader
