// Rules that rows of the image must keep once a table is changed: required fields and keys, auto-numbers.
#include <algorithm>

#include "jet/image/image.h"
#include "jet/image/row_codec.h"

namespace jet::image {

namespace {

std::string quoted(std::string_view text) {
  std::string result = "'";
  for (const char c : text) result += c == '\'' ? std::string("''") : std::string(1, c);
  return result + "'";
}

/// Refuses a null in `column` with this error, in new rows (unless the engine fills them) and in changed
/// ones.
void refuseNull(const Connection& connection, const file::TableDefinition& table, const file::Column& column,
                int number, const std::string& description) {
  const std::string where = tableName(table.page), name = columnName(column.number);
  const std::string body = " WHEN NEW." + name + " IS NULL BEGIN SELECT RAISE(ABORT, " +
                           quoted(std::to_string(number) + "|" + description) + "); END";
  const std::string trigger = "g" + where + name + "_" + std::to_string(number);
  if (!column.autoNumber())
    connection.execute("CREATE TRIGGER IF NOT EXISTS " + trigger + "i BEFORE INSERT ON " + where + body);
  connection.execute("CREATE TRIGGER IF NOT EXISTS " + trigger + "u BEFORE UPDATE OF " + name + " ON " +
                     where + body);
}

/// Drops what belongs to t<page> of these types.
void dropMatching(const Connection& connection, std::uint32_t page, const std::string& types) {
  std::vector<std::string> commands;
  auto query = connection.prepare(
      "SELECT 'DROP ' || type || ' ' || name FROM sqlite_master WHERE tbl_name = ?1 AND type IN (" + types +
      ")");
  query.bind(1, std::string_view(tableName(page)));
  while (query.step()) commands.push_back(query.text(0));
  query.reset();
  for (const auto& command : commands) connection.execute(command);
}

}  // namespace

void Image::guard(Table& table) {
  const auto& design = definition(table);
  for (std::size_t i = 0; i < design.realIndexes.size(); ++i) {
    if (!(design.realIndexes[i].flags & file::RealIndex::Required)) continue;
    for (const auto& part : design.realIndexes[i].columns) {
      const auto& column = design.columns[*design.findNumber(part.column)];
      refuseNull(connection_, design, column, 3058,
                 "L'indice " + indexNameOf(design, i) + " non ammette un valore Null - campo " + column.name);
    }
  }
  const bool systemTable = table.flags != 0;
  if (!systemTable) {
    const auto block = properties(table.page);
    for (const auto& column : design.columns) {
      const auto* required = block.find(column.name, "Required");
      if (!required || required->data.empty() || required->data[0] == std::byte{0}) continue;
      refuseNull(connection_, design, column, 3314,
                 "Il campo " + design.name + "." + column.name + " è richiesto");
    }
  }
  for (const auto& column : design.columns) {
    if (!column.autoNumber()) continue;
    const std::string name = columnName(column.number), where = tableName(table.page);
    state_.autoNumbers.emplace(table.page, design.autoNumber);
    connection_.execute("CREATE TRIGGER IF NOT EXISTS a" + where + name + " AFTER INSERT ON " + where +
                        " BEGIN UPDATE " + where + " SET " + name + " = jet_auto_number(" +
                        std::to_string(table.page) + ", NEW." + name + ") WHERE rowid = NEW.rowid; END");
  }
  table.guarded = true;
}

void Image::dropTriggers(Table& table) {
  ++generation_;
  if (table.guarded) dropMatching(connection_, table.page, "'trigger'");
  table.guarded = false;
}

void Image::dropRules(Table& table) {
  ++generation_;
  if (table.made) dropMatching(connection_, table.page, "'index', 'trigger'");
  table.guarded = false;
}

void Image::dropTriggersAround(const Table& table) {
  for (const auto& relation : relations()) {
    if (!file::sameName(relation.table, table.name) && !file::sameName(relation.foreignTable, table.name))
      continue;
    for (const auto& name : {relation.table, relation.foreignTable})
      if (find(name)) dropTriggers(tableNamed(name, 3078));
  }
}

void Image::autoNumber(sqlite3_context* context, int, sqlite3_value** values) {
  auto& last = static_cast<Image*>(sqlite3_user_data(context))
                   ->state_.autoNumbers[static_cast<std::uint32_t>(sqlite3_value_int64(values[0]))];
  if (sqlite3_value_type(values[1]) != SQLITE_NULL) {
    const auto given = sqlite3_value_int64(values[1]);
    last = std::max(last, static_cast<std::int32_t>(given));
    return sqlite3_result_int64(context, given);
  }
  if (last == INT32_MAX) return sqlite3_result_error(context, "6|Contatore esaurito", -1);
  sqlite3_result_int64(context, ++last);
}

}  // namespace jet::image
