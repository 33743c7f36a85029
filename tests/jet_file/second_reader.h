#pragma once

#include <optional>
#include <string>
#include <vector>

/// mdbtools: a reader of the same files that knows nothing of ours.
namespace second_reader {

struct Table {
  std::vector<std::string> columns;
  std::vector<std::vector<std::optional<std::string>>> rows;  // nothing: null
};

bool available();
/// Names of all tables, system ones included.
std::vector<std::string> tables(const std::string& productPath);
/// Content of a table: dates as "1994-12-31 23:59:59", bytes as upper-case hexadecimal, Booleans 0 or 1.
Table read(const std::string& productPath, const std::string& table);

}  // namespace second_reader
