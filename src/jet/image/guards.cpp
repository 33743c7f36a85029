// Rules that rows of the image must keep once a table is changed: required fields and keys, empty texts,
// validation rules, auto-numbers.
#include <algorithm>

#include "jet/image/image.h"
#include "jet/image/property_values.h"
#include "jet/image/row_codec.h"
#include "jet/image/triggers.h"

namespace jet::image {

namespace {

/// What a column must not hold, or a row where there is no column. `broken` is a condition over NEW.
struct Rule {
  const file::Column* column;
  std::string broken;
  int number;
  std::string description;
};

std::string newValue(const file::Column& column) {
  return "NEW." + columnName(column.number);
}

void addIndexRules(const file::TableDefinition& design, std::vector<Rule>& rules) {
  for (std::size_t i = 0; i < design.realIndexes.size(); ++i) {
    if (!(design.realIndexes[i].flags & file::RealIndex::Required)) continue;
    for (const auto& part : design.realIndexes[i].columns) {
      const auto& column = design.columns[*design.findNumber(part.column)];
      rules.push_back(
          {&column, newValue(column) + " IS NULL", NullInIndex,
           "L'indice " + indexNameOf(design, i) + " non ammette un valore Null - campo " + column.name});
    }
  }
}

void addPropertyRules(const file::TableDefinition& design, const file::PropertyBlock& block,
                      std::vector<Rule>& rules) {
  for (const auto& column : design.columns) {
    const std::string name = design.name + "." + column.name;
    if (booleanProperty(block, column.name, "Required", false))
      rules.push_back(
          {&column, newValue(column) + " IS NULL", ValueRequired, "Il campo " + name + " è richiesto"});
    // Where nothing is said, empty texts are let in: rows that hold some must stay as they are.
    if (file::isText(column.type) && !booleanProperty(block, column.name, "AllowZeroLength", true))
      rules.push_back({&column, "length(" + newValue(column) + ") = 0", EmptyTextRefused,
                       "Il campo " + name + " non ammette un testo vuoto"});
  }
}

/// A column's rule, or the table's. One that says neither yes nor no is kept.
void addValidation(const file::TableDefinition& design, const file::PropertyBlock& block,
                   const RuleCompiler& compile, const file::Column* column, std::vector<Rule>& rules) {
  const std::string owner = column ? column->name : std::string();
  const std::string rule = textProperty(block, owner, "ValidationRule");
  if (rule.find_first_not_of(' ') == std::string::npos) return;
  std::string text = textProperty(block, owner, "ValidationText");
  if (text.empty())
    text = "Uno o più valori non rispettano la regola di convalida " + rule + " - " +
           (column ? "campo " + design.name + "." + owner : "tabella " + design.name);
  rules.push_back({column, "NOT (" + compile(design, column, rule) + ")",
                   column ? FieldRuleBroken : TableRuleBroken, std::move(text)});
}

/// One trigger for new rows, whose auto-numbers the engine fills in.
void guardInsert(const Connection& connection, std::uint32_t page, const std::vector<Rule>& rules) {
  std::string any, which;
  for (const Rule& rule : rules) {
    if (rule.column && rule.column->autoNumber()) continue;
    any += (any.empty() ? "" : " OR ") + rule.broken;
    which += " WHEN " + rule.broken + " THEN " + raiseCall(rule.number, rule.description);
  }
  if (any.empty()) return;
  connection.execute(
      beforeTrigger("g" + std::to_string(page) + "i", "INSERT", page, any, "SELECT CASE" + which + " END"));
}

/// One trigger for each rule, so that a change that doesn't touch the column costs nothing.
void guardUpdate(const Connection& connection, std::uint32_t page, const std::vector<Rule>& rules) {
  std::size_t number = 0;
  for (const Rule& rule : rules)
    connection.execute(afterTrigger("g" + std::to_string(page) + "u" + std::to_string(number++),
                                    rule.column ? "UPDATE OF " + columnName(rule.column->number) : "UPDATE",
                                    page, rule.broken, raise(rule.number, rule.description)));
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
  std::vector<Rule> rules;
  addIndexRules(design, rules);
  if (table.flags == 0) {
    const auto& block = properties(table.page);
    addPropertyRules(design, block, rules);
    if (compileRule_) {
      for (const auto& column : design.columns) addValidation(design, block, compileRule_, &column, rules);
      addValidation(design, block, compileRule_, nullptr, rules);
    }
  }
  guardInsert(connection_, table.page, rules);
  guardUpdate(connection_, table.page, rules);
  for (const auto& column : design.columns)
    if (column.autoNumber()) guardAutoNumber(table, column);
  guardRelations(table);
  table.guarded = true;
}

void Image::guardAutoNumber(Table& table, const file::Column& column) {
  const std::string page = std::to_string(table.page), name = columnName(column.number);
  const std::string number = "jet_auto_number(" + page + ", NEW." + name + ")";
  state_.autoNumbers.emplace(table.page, definition(table).autoNumber);
  connection_.execute(afterTrigger(
      "a" + page + name, "INSERT", table.page, "NEW." + name + " IS NULL",
      "UPDATE " + tableName(table.page) + " SET " + name + " = " + number + " WHERE rowid = NEW.rowid"));
  connection_.execute(afterTrigger("a" + page + name + "given", "INSERT", table.page,
                                   "NEW." + name + " IS NOT NULL", "SELECT " + number));
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
      if (find(name)) dropTriggers(tableNamed(name, UnknownTable));
  }
}

void Image::autoNumber(sqlite3_context* context, int, sqlite3_value** values) {
  auto& image = *static_cast<Image*>(sqlite3_user_data(context));
  auto& last = image.state_.autoNumbers[static_cast<std::uint32_t>(sqlite3_value_int64(values[0]))];
  if (sqlite3_value_type(values[1]) != SQLITE_NULL) {
    const auto given = sqlite3_value_int64(values[1]);
    last = std::max(last, static_cast<std::int32_t>(given));
    return sqlite3_result_int64(context, given);
  }
  if (last == INT32_MAX) return sqlite3_result_error(context, "6|Contatore esaurito", -1);
  image.identity_ = ++last;
  sqlite3_result_int64(context, last);
}

void Image::identity(sqlite3_context* context, int, sqlite3_value**) {
  sqlite3_result_int64(context, static_cast<Image*>(sqlite3_user_data(context))->identity_);
}

}  // namespace jet::image
