// Rules that rows of the image must keep once a table is changed: required fields and keys, empty texts,
// validation rules.
#include "jet/image/constraints.h"

#include <algorithm>

#include "jet/file/errors.h"
#include "jet/image/design.h"
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
void watchInserts(const Connection& connection, std::uint32_t page, const std::vector<Rule>& rules) {
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
void watchUpdates(const Connection& connection, std::uint32_t page, const std::vector<Rule>& rules) {
  std::size_t number = 0;
  for (const Rule& rule : rules)
    connection.execute(afterTrigger("g" + std::to_string(page) + "u" + std::to_string(number++),
                                    rule.column ? "UPDATE OF " + columnName(rule.column->number) : "UPDATE",
                                    page, rule.broken, raise(rule.number, rule.description)));
}

}  // namespace

Constraints::Constraints(Tables& tables, Rows& rows, Catalogue& catalogue, AutoNumbers& autoNumbers)
    : tables_(tables),
      rows_(rows),
      catalogue_(catalogue),
      autoNumbers_(autoNumbers),
      foreignKeys_(tables, rows) {}

void Constraints::prepareToChange(std::uint32_t page, const std::vector<std::uint16_t>& compared,
                                  const RowChange& change) {
  tables_.requireWritable();
  auto& wanted = tables_.at(page);
  if (wanted.link)
    throw runtime::Error(ReadOnly, source::Database,
                         "Impossibile aggiornare una tabella collegata: " + wanted.name);
  if (wanted.system()) throw errorOf(SystemTable, source::Database, wanted.name);
  foreignKeys_.forgetCascades();
  std::vector<Readied> done;
  prepare(wanted, compared, change, done);
}

void Constraints::prepare(Table& wanted, const std::vector<std::uint16_t>& compared, const RowChange& change,
                          std::vector<Readied>& done) {
  rows_.load(wanted);
  rows_.makeIndexes(*wanted.definition, compared, true);
  if (wanted.rows != RowState::Constrained) addTriggers(wanted);
  // Relations may lead back to where they started.
  const Readied self{wanted.page, change};
  if (std::ranges::find(done, self) != done.end()) return;
  done.push_back(self);
  for (const auto& partner : foreignKeys_.partners(wanted, change)) {
    rows_.load(partner.table);
    rows_.makeIndexes(rows_.definition(partner.table), {partner.compared}, false);
    for (const auto& cascade : partner.cascades) prepare(partner.table, {}, cascade, done);
  }
}

void Constraints::addTriggers(Table& table) {
  const auto& design = rows_.definition(table);
  std::vector<Rule> rules;
  addIndexRules(design, rules);
  if (table.flags == 0) {
    const auto& block = catalogue_.properties(table.page);
    addPropertyRules(design, block, rules);
    if (compileRule_) {
      for (const auto& column : design.columns) addValidation(design, block, compileRule_, &column, rules);
      addValidation(design, block, compileRule_, nullptr, rules);
    }
  }
  watchInserts(tables_.connection(), table.page, rules);
  watchUpdates(tables_.connection(), table.page, rules);
  autoNumbers_.addTriggers(design);
  foreignKeys_.addTriggers(table);
  Rows::markConstrained(table);
}

void Constraints::markChanged(std::uint32_t page) {
  // What a statement does to these rows changes designs as well.
  if (page == file::CatalogueTable || page == file::QueriesTable) tables_.endGeneration();
  tables_.at(page).note(Unsaved::Rows);
  for (const auto other : foreignKeys_.cascaded()) tables_.at(other).note(Unsaved::Rows);
  foreignKeys_.forgetCascades();
}

}  // namespace jet::image
