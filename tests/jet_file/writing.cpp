#include "writing.h"

#include <algorithm>
#include <cstdlib>

#include "../support/command.h"
#include "corpus.h"
#include "jet/file/read/catalogue.h"
#include "jet/file/read/page_use.h"
#include "jet/file/read/table_reader.h"
#include "jet/file/text/text.h"
#include "jet/file/write/compaction.h"
#include "jet/file/write/empty_database.h"
#include "platform/disk.h"

namespace writing {

using namespace jet::file;

namespace {

std::uint16_t sizeOf(ColumnType type) {
  constexpr std::uint16_t Sizes[] = {0, 1, 1, 2, 4, 8, 4, 8, 8, 0, 0, 0, 0, 0, 0, 16, 17};
  return static_cast<std::size_t>(type) < std::size(Sizes) ? Sizes[static_cast<std::size_t>(type)] : 0;
}

/// The rows of a table and some more behind them.
class RowsAndMore : public RowSource {
 public:
  RowsAndMore(const PageFile& file, const TableDefinition& definition, std::vector<Values> more)
      : definition_(definition), rows_(file, definition_), more_(made(std::move(more))) {}
  bool next(Row& row) override { return rows_.next(row) || more_->next(row); }

 private:
  TableDefinition definition_;
  TableReader rows_;
  std::unique_ptr<RowSource> more_;
};

TableChange appendRows(const PageFile& file, const std::string& table,
                       const std::vector<std::vector<std::pair<const char*, Value>>>& rows) {
  TableChange change;
  change.definition = definitionOf(file, table);
  std::vector<Values> more;
  for (const auto& row : rows) {
    more.emplace_back(change.definition.columns.size());
    for (const auto& [column, value] : row) more.back()[*change.definition.find(column)] = value;
  }
  change.rows = std::make_unique<RowsAndMore>(file, change.definition, std::move(more));
  return change;
}

}  // namespace

Bytes bytes(std::initializer_list<int> values) {
  Bytes result;
  for (const int value : values) result.push_back(static_cast<std::byte>(value));
  return result;
}

Bytes hex(std::string_view digits) {
  Bytes result;
  for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
    result.push_back(static_cast<std::byte>(std::stoi(std::string(digits.substr(i, 2)), nullptr, 16)));
  return result;
}

std::string toHex(std::span<const std::byte> bytes) {
  std::string result;
  for (const std::byte byte : bytes) {
    result += "0123456789ABCDEF"[std::to_integer<int>(byte) >> 4];
    result += "0123456789ABCDEF"[std::to_integer<int>(byte) & 15];
  }
  return result;
}

Bytes text(std::string_view utf8, bool compress) {
  Bytes result;
  encodeText(utf8, compress, result);
  return result;
}

bool MadeRows::next(Row& row) {
  if (next_ == count_) return false;
  current_ = make_(next_++);
  row.clear();
  for (const Value& value : current_) row.push_back(value ? FieldBytes{false, *value} : FieldBytes{});
  return true;
}

std::unique_ptr<RowSource> made(std::size_t count, std::function<Values(std::size_t)> make) {
  return std::make_unique<MadeRows>(count, std::move(make));
}

std::unique_ptr<RowSource> made(std::vector<Values> rows) {
  const std::size_t count = rows.size();
  return made(count, [rows = std::move(rows)](std::size_t i) { return rows[i]; });
}

TableDefinition table(const std::string& name, const std::vector<ColumnPlan>& columns,
                      const std::vector<IndexPlan>& indexes) {
  TableDefinition made;
  made.name = name;
  for (const ColumnPlan& plan : columns) {
    Column column;
    column.name = plan.name;
    column.type = plan.type;
    column.number = column.position = made.maxColumns++;
    column.length = plan.length != 0 ? plan.length : sizeOf(plan.type);
    if ((sizeOf(plan.type) != 0) != plan.variable) {
      column.flags |= Column::Fixed;
      column.slot = made.variableColumns;
      column.fixedOffset = plan.type == ColumnType::Boolean ? std::uint16_t{0} : made.fixedLength();
    } else {
      column.slot = made.variableColumns++;
    }
    if (plan.type == ColumnType::Numeric) column.precision = 28, column.scale = 4, column.sortOrder = 0;
    if (plan.type == ColumnType::Text && !column.fixed()) column.extraFlags = Column::Compressed;
    made.columns.push_back(column);
  }
  for (const IndexPlan& index : indexes) addIndex(made, index);
  return made;
}

void addIndex(TableDefinition& table, const IndexPlan& plan) {
  RealIndex real;
  real.columns = plan.columns;
  real.flags = static_cast<std::uint8_t>(RealIndex::Jet4Mark | plan.flags |
                                         (plan.primary ? RealIndex::Unique | RealIndex::Required : 0));
  LogicalIndex logical;
  logical.name = plan.name;
  logical.number = logical.real = static_cast<std::uint32_t>(table.realIndexes.size());
  if (plan.primary) logical.kind = LogicalIndex::Kind::Primary;
  table.realIndexes.push_back(real);
  table.logicalIndexes.push_back(logical);
}

std::string emptyDatabase(const std::string& name) {
  const std::string path = corpus::scratch(name);
  platform::File file = platform::openFile(path, platform::OpenMode::Create);
  writeEmptyDatabase(file);
  return path;
}

std::string changed(const std::string& source, Changes changes, const std::string& name) {
  const std::string path = corpus::scratch(name);
  const PageFile old(source, Sharing::Shared, true);
  platform::File file = platform::openFile(path, platform::OpenMode::Create);
  writeChanged(old, std::move(changes), file);
  return path;
}

std::string compacted(const std::string& source, const std::string& name) {
  const std::string path = corpus::scratch(name);
  const PageFile old(source, Sharing::Shared, true);
  platform::File file = platform::openFile(path, platform::OpenMode::Create);
  writeCompacted(old, file);
  return path;
}

std::string withTable(const std::string& source, TableDefinition table, std::unique_ptr<RowSource> rows,
                      const std::string& name) {
  const PageFile old(source, Sharing::Shared, true);
  table.page = FreePages(old).take();
  const Bytes date = raw(42339.5), admin = bytes({0x64, 0x8B}), users = bytes({0x65, 0x8B});
  Changes changes;
  changes.tables.push_back(appendRows(old, "MSysObjects",
                                      {{{"Id", raw(table.page)},
                                        {"ParentId", raw(TablesContainer)},
                                        {"Name", text(table.name, false)},
                                        {"Type", raw(std::int16_t{1})},
                                        {"DateCreate", date},
                                        {"DateUpdate", date},
                                        {"Owner", admin},
                                        {"Flags", raw(std::int32_t{0})}}}));
  const auto permission = [&](const Bytes& who, std::uint32_t rights) {
    return std::vector<std::pair<const char*, Value>>{
        {"ObjectId", raw(table.page)}, {"SID", who}, {"ACM", raw(rights)}, {"FInheritable", bytes({0})}};
  };
  changes.tables.push_back(
      appendRows(old, "MSysACEs", {permission(admin, 0xF00FE), permission(users, 0xFFEFF)}));
  changes.tables.push_back({std::move(table), std::move(rows)});
  return changed(source, std::move(changes), name);
}

TableDefinition definitionOf(const PageFile& file, const std::string& table) {
  for (TableDefinition& definition : readTables(file))
    if (definition.name == table) return definition;
  throw std::runtime_error("no table " + table);
}

std::vector<std::string> contentOf(const std::string& path) {
  const PageFile file(path, Sharing::Shared, true);
  std::vector<std::string> lines;
  for (const TableDefinition& definition : readTables(file)) {
    TableReader reader(file, definition);
    const std::size_t start = lines.size();
    for (Row row; reader.next(row);) {
      std::string line = definition.name;
      for (const FieldBytes& field : row) line += field.null ? " -" : " " + toHex(field.bytes);
      lines.push_back(std::move(line));
    }
    // Rows that had moved have another place afterwards.
    std::sort(lines.begin() + static_cast<std::ptrdiff_t>(start), lines.end());
  }
  return lines;
}

std::string objections(const std::vector<std::string>& paths, Check check) {
  if (!corpus::available()) return {};
  const std::string script = std::string(std::getenv("AGGNORVO_JET_DATA")) + "/jet/jetcheck.py";
  std::string line = "python3 " + support::shellWord(script) + (check == Check::Strict ? " --strict" : "");
  for (const std::string& path : paths) line += " " + support::shellWord(corpus::systemPath(path));
  const auto result = support::runCommand(line);
  return result.status == 0
             ? result.output
             : "status " + std::to_string(result.status) + ": " + result.output + result.errors;
}

}  // namespace writing
