#include "second_reader.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>

#include "corpus.h"

namespace second_reader {

namespace {

// Characters that no table of the corpus holds.
const std::string FieldEnd = "<field>", RowEnd = "<row>", NullMark = "<null>";

std::string quoted(const std::string& argument) {
  std::string text = "'";
  for (const char c : argument) text += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return text + "'";
}

std::string outputOf(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen((command + " 2>/dev/null").c_str(), "r"), &pclose);
  if (!pipe) throw std::runtime_error("cannot run " + command);
  std::string text;
  std::array<char, 65536> part;
  while (const std::size_t got = fread(part.data(), 1, part.size(), pipe.get()))
    text.append(part.data(), got);
  return text;
}

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
  return split(outputOf("mdb-tables -S -1 " + quoted(corpus::systemPath(productPath))), "\n");
}

Table read(const std::string& productPath, const std::string& table) {
  const std::string date = " -D '%Y-%m-%d %H:%M:%S' -T '%Y-%m-%d %H:%M:%S'";
  const std::string text =
      outputOf("MDB_JET3_CHARSET=CP1252 MDBICONV=UTF-8 mdb-export -Q -b hex" + date + " -d " +
               quoted(FieldEnd) + " -R " + quoted(RowEnd) + " -0 " + quoted(NullMark) + " " +
               quoted(corpus::systemPath(productPath)) + " " + quoted(table));
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
