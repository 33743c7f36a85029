#include "corpus.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <optional>
#include <set>

#include "jet/file/read/catalogue.h"
#include "jet/file/read/definition_reader.h"
#include "jet/file/read/table_reader.h"
#include "jet/file/values.h"
#include "runtime/error.h"
#include "second_reader.h"

namespace jet::file {
namespace {

std::string formatted(const char* format, auto value) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, format, value);
  return buffer;
}

std::string hex(const runtime::Bytes& bytes) {
  std::string text;
  for (const std::byte byte : bytes) text += formatted("%02X", std::to_integer<unsigned>(byte));
  return text;
}

std::string dateText(runtime::Date date) {
  using namespace std::chrono;
  const double day = std::trunc(date.days);
  const auto second = static_cast<long>(std::floor(std::abs(date.days - day) * 86400 + 0.5));
  const year_month_day ymd(sys_days(1899y / December / 30) + days(static_cast<int>(day)));
  std::string text = formatted("%04d-", static_cast<int>(ymd.year()));
  text += formatted("%02u-", static_cast<unsigned>(ymd.month())) +
          formatted("%02u", static_cast<unsigned>(ymd.day()));
  return text + formatted(" %02ld", second / 3600) + formatted(":%02ld", second / 60 % 60) +
         formatted(":%02ld", second % 60);
}

std::string decimalText(const runtime::Decimal& value) {
  std::string digits;
  for (auto rest = value.magnitude; rest != 0; rest /= 10)
    digits.insert(digits.begin(), static_cast<char>('0' + static_cast<int>(rest % 10)));
  while (digits.size() <= value.scale) digits.insert(digits.begin(), '0');
  if (value.scale != 0) digits.insert(digits.size() - value.scale, ".");
  return (value.negative ? "-" : "") + digits;
}

/// A value as the second reader writes it.
struct Written {
  std::string operator()(runtime::Empty) const { return "?"; }
  std::string operator()(runtime::Null) const { return "?"; }
  std::string operator()(bool v) const { return v ? "1" : "0"; }
  std::string operator()(std::uint8_t v) const { return std::to_string(v); }
  std::string operator()(std::int16_t v) const { return std::to_string(v); }
  std::string operator()(std::int32_t v) const { return std::to_string(v); }
  std::string operator()(float v) const { return formatted("%.8g", static_cast<double>(v)); }
  std::string operator()(double v) const { return formatted("%.16g", v); }
  std::string operator()(runtime::Currency v) const {
    return decimalText(
        {v.tenThousandths < 0, 4, static_cast<unsigned long long>(std::llabs(v.tenThousandths))});
  }
  std::string operator()(runtime::Date v) const { return dateText(v); }
  std::string operator()(const runtime::Decimal& v) const { return decimalText(v); }
  std::string operator()(const std::string& v) const { return v; }
  std::string operator()(const runtime::Bytes& v) const { return hex(v); }
};

using Text = std::optional<std::string>;  // nothing: null

/// Where the second reader is at fault: what it makes of a value that we read.
struct Fault {
  const char* reason;
  bool (*concerns)(ColumnType type, int version);
  std::string (*makes)(std::string ours);
};

constexpr Fault Faults[] = {
    {"bytes stop in front of the first zero byte",
     [](ColumnType t, int) { return t == ColumnType::Binary || t == ColumnType::Raw; },
     [](std::string ours) {
       std::size_t end = 0;
       while (end < ours.size() && ours.compare(end, 2, "00") != 0) end += 2;
       return ours.substr(0, end);
     }},
    {"the engine's own blocks of bytes are null in Jet 4",
     [](ColumnType t, int version) { return t == ColumnType::Raw && version == 4; },
     [](std::string) { return std::string(); }},
    {"text stops in front of the first NUL", [](ColumnType t, int) { return isText(t); },
     [](std::string ours) { return ours.substr(0, ours.find('\0')); }},
    {"bytes that code page 1252 leaves undefined become question marks",
     [](ColumnType t, int) { return isText(t); },
     [](std::string ours) {
       for (const char* undefined : {"\u0081", "\u008D", "\u008F", "\u0090", "\u009D"})
         for (std::size_t at; (at = ours.find(undefined)) != std::string::npos;) ours.replace(at, 2, "?");
       return ours;
     }},
    {"a Guid is the hexadecimal of its text, without the last hyphen",
     [](ColumnType t, int) { return t == ColumnType::Guid; },
     [](std::string ours) {
       ours.erase(ours.rfind('-'), 1);
       const auto* bytes = reinterpret_cast<const std::byte*>(ours.data());
       return hex({bytes, bytes + ours.size()});
     }},
    {"a date before 1899-12-30 is no date", [](ColumnType t, int) { return t == ColumnType::Date; },
     [](std::string ours) { return ours < "1899-12-30" ? "1900-01-00 00:00:00" : ours; }},
};
std::set<std::string> faultsMet;

Text asTheirs(const Column& column, int version, Text ours) {
  if (!ours) return ours;
  for (const Fault& fault : Faults) {
    if (!fault.concerns(column.type, version)) continue;
    const std::string made = fault.makes(*ours);
    if (made != *ours) faultsMet.insert(fault.reason);
    ours = made;
  }
  // It has no bytes that are not null.
  return ours->empty() && (column.type == ColumnType::Binary || column.type == ColumnType::Raw) ? Text()
                                                                                                : ours;
}

std::string line(const std::vector<Text>& row) {
  std::string text;
  for (const Text& field : row) text += (field ? "<" + *field + ">" : "NULL") + " ";
  return text;
}

/// The rows of a table, sorted: the second reader gives a row that has moved where its record lies.
std::vector<std::string> ours(const PageFile& file, const TableDefinition& definition,
                              const std::vector<std::string>& columns) {
  std::vector<std::string> lines;
  TableReader reader(file, definition);
  for (Row row; reader.next(row);) {
    std::vector<Text> fields;
    for (const std::string& name : columns) {
      const std::size_t at = definition.find(name).value();
      const Column& column = definition.columns[at];
      const auto value = toVariant(file.format(), file.header().codePage, column, row[at]);
      fields.push_back(value.isNull()
                           ? Text()
                           : asTheirs(column, file.format().version, std::visit(Written{}, value.value())));
    }
    lines.push_back(line(fields));
  }
  std::ranges::sort(lines);
  return lines;
}

void compareTable(const PageFile& file, const CatalogueObject& object) {
  const auto expected = second_reader::read(file.path(), object.name);
  const TableDefinition definition = readDefinition(file, object.id, object.name);
  ASSERT_EQ(expected.columns.size(), definition.columns.size());
  const auto lines = ours(file, definition, expected.columns);
  std::vector<std::string> theirs;
  for (const auto& row : expected.rows) theirs.push_back(line(row));
  std::ranges::sort(theirs);
  ASSERT_EQ(lines.size(), theirs.size());
  for (std::size_t i = 0; i < lines.size(); ++i) EXPECT_EQ(lines[i], theirs[i]);
  // The engine itself counts its own tables carelessly.
  EXPECT_TRUE(lines.size() == definition.rows || object.name.starts_with("MSys")) << definition.rows;
}

TEST(Corpus, ReadsEveryTableAsAnIndependentReaderDoes) {
  REQUIRE_CORPUS();
  if (!second_reader::available()) GTEST_SKIP() << "mdbtools is not installed";
  for (const std::string& name : corpus::names()) {
    SCOPED_TRACE(name);
    const PageFile file(corpus::file(name), Sharing::Shared, true);
    std::set<std::string> ours;
    for (const CatalogueObject& object : readCatalogue(file)) {
      if (object.type != ObjectType::Table) continue;
      SCOPED_TRACE(object.name);
      ours.insert(object.name);
      compareTable(file, object);
    }
    const auto theirs = second_reader::tables(file.path());
    EXPECT_EQ(ours, std::set<std::string>(theirs.begin(), theirs.end()));
  }
  for (const Fault& fault : Faults)
    EXPECT_TRUE(faultsMet.contains(fault.reason)) << "never met: " << fault.reason;
}

}  // namespace
}  // namespace jet::file
