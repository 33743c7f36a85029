#include "jet/sql/stored_query.h"

#include <map>

#include "jet/file/definition.h"
#include "jet/sql/parser/parser.h"
#include "jet/sql/tree/print.h"
#include "runtime/error.h"
#include "runtime/overloaded.h"

namespace jet::sql {

namespace {

// Flag bits of the options row.
constexpr std::int16_t AllColumns = 1, Distinct = 2, DistinctRow = 8, HasTop = 0x10, TopPercent = 0x20;
// Flag of the kind row, by kind.
const std::map<QueryKind, std::int16_t> KindFlags = {{QueryKind::Select, 1},         {QueryKind::Append, 3},
                                                     {QueryKind::Update, 4},         {QueryKind::Delete, 5},
                                                     {QueryKind::DataDefinition, 7}, {QueryKind::Union, 9}};
// Flag of an output row that is one of VALUES.
constexpr std::int16_t ValueOutput = static_cast<std::int16_t>(0x8000);
constexpr const char* UnionHalves[] = {"X7YZ_____1", "X7YZ_____2"};

// Types of parameters by their name in the language.
const std::map<std::string, std::int16_t, std::less<>> ParameterTypes = {
    {"VALUE", 0},     {"BIT", 1},   {"YESNO", 1},      {"BOOLEAN", 1},  {"BYTE", 2},        {"SHORT", 3},
    {"INTEGER", 4},   {"LONG", 4},  {"CURRENCY", 5},   {"MONEY", 5},    {"SINGLE", 6},      {"IEEESINGLE", 6},
    {"DOUBLE", 7},    {"FLOAT", 7}, {"IEEEDOUBLE", 7}, {"DATETIME", 8}, {"DATE", 8},        {"TIME", 8},
    {"BINARY", 9},    {"TEXT", 10}, {"STRING", 10},    {"CHAR", 10},    {"LONGBINARY", 11}, {"MEMO", 12},
    {"LONGTEXT", 12}, {"GUID", 15}, {"DECIMAL", 16},   {"NUMERIC", 16}};

[[noreturn]] void cannotKeep(const char* what) {
  throw runtime::Error(3129, "DAO.QueryDef", std::string("Istruzione SQL non memorizzabile: ") + what);
}

/// Collects the rows of one query.
class Rows {
 public:
  QueryRow& add(QueryRow::Attribute attribute) {
    QueryRow row;
    row.attribute = attribute;
    row.order = ++count_[attribute];
    rows_.push_back(std::move(row));
    return rows_.back();
  }
  void expression(QueryRow::Attribute attribute, const tree::Expression& value) {
    add(attribute).expression = tree::print(value);
  }
  std::vector<QueryRow> take() { return std::move(rows_); }

 private:
  std::map<QueryRow::Attribute, std::uint32_t> count_;
  std::vector<QueryRow> rows_;
};

void addSources(Rows& rows, const tree::Source& source) {
  std::visit(runtime::Overloaded{[&](const tree::TableSource& table) {
                                   auto& row = rows.add(QueryRow::Source);
                                   row.name1 = table.name;
                                   if (!table.alias.empty()) row.name2 = table.alias;
                                 },
                                 [&](const tree::QuerySource& query) {
                                   auto& row = rows.add(QueryRow::Source);
                                   row.expression = tree::print(*query.query);
                                   row.name2 = query.alias;
                                 },
                                 [&](const tree::Join& join) {
                                   addSources(rows, *join.left);
                                   addSources(rows, *join.right);
                                 }},
             source.node);
}

/// The table of a join's side that is named in the row: the last one of the left side, the first of the
/// right.
std::string sideName(const tree::Source& source, bool left) {
  return std::visit(
      runtime::Overloaded{
          [](const tree::TableSource& table) { return table.alias.empty() ? table.name : table.alias; },
          [](const tree::QuerySource& query) { return query.alias; },
          [&](const tree::Join& join) { return sideName(left ? *join.right : *join.left, left); }},
      source.node);
}

/// The two tables that a condition compares, where it names them.
void namedTables(const tree::Expression& condition, std::vector<std::string>& names) {
  if (const auto* logic = std::get_if<tree::Logic>(&condition.node)) {
    namedTables(*logic->left, names);
  } else if (const auto* comparison = std::get_if<tree::Comparison>(&condition.node)) {
    for (const auto* side : {&*comparison->left, &*comparison->right})
      if (const auto* name = std::get_if<tree::Name>(&side->node))
        if (!name->table.empty()) names.push_back(name->table);
  }
}

bool contains(const tree::Source& source, const std::string& name) {
  if (const auto* join = std::get_if<tree::Join>(&source.node))
    return contains(*join->left, name) || contains(*join->right, name);
  return file::sameName(sideName(source, true), name);
}

void addJoins(Rows& rows, const tree::Source& source) {
  const auto* join = std::get_if<tree::Join>(&source.node);
  if (!join) return;
  addJoins(rows, *join->left);
  addJoins(rows, *join->right);
  std::vector<std::string> names;
  namedTables(join->condition, names);
  std::string left = sideName(*join->left, true), right = sideName(*join->right, false);
  for (const auto& name : names) {
    if (contains(*join->left, name)) left = name;
    if (contains(*join->right, name)) right = name;
  }
  constexpr std::int16_t Inner = 1, Left = 2, Right = 3;
  auto& row = rows.add(QueryRow::Join);
  row.name1 = left;
  row.name2 = right;
  row.flag = join->kind == tree::JoinKind::Inner ? Inner : join->kind == tree::JoinKind::Left ? Left : Right;
  row.expression = tree::print(join->condition);
}

void addFrom(Rows& rows, const std::vector<tree::Source>& from) {
  for (const auto& source : from) addSources(rows, source);
  for (const auto& source : from) addJoins(rows, source);
}

std::string starText(const tree::Star& star) {
  return star.table.empty() ? "*" : tree::quotedName(star.table) + ".*";
}

void addSelect(Rows& rows, const tree::Select& select) {
  std::int16_t options = 0;
  for (const auto& item : select.items) {
    const auto* star = std::get_if<tree::Star>(&item.value);
    if (star && star->table.empty()) options |= AllColumns;
  }
  if (select.distinct) options |= Distinct;
  if (select.distinctRow) options |= DistinctRow;
  if (select.top)
    options = static_cast<std::int16_t>(options | HasTop | (select.top->percent ? TopPercent : 0));
  auto& row = rows.add(QueryRow::Options);
  row.flag = options;
  if (select.top) row.name1 = std::to_string(select.top->count);

  addFrom(rows, select.from);
  for (const auto& item : select.items) {
    const auto* star = std::get_if<tree::Star>(&item.value);
    if (star && star->table.empty()) continue;
    auto& output = rows.add(QueryRow::Output);
    output.expression = star ? starText(*star) : tree::print(std::get<tree::Expression>(item.value));
    output.flag = std::int16_t{0};
    if (!item.alias.empty()) output.name1 = item.alias;
  }
  if (select.where) rows.expression(QueryRow::Where, *select.where);
  for (const auto& item : select.groupBy) {
    rows.expression(QueryRow::GroupBy, item);
  }
  if (select.having) rows.expression(QueryRow::Having, *select.having);
}

void addOrder(Rows& rows, const std::vector<tree::OrderItem>& order) {
  for (const auto& item : order) {
    auto& row = rows.add(QueryRow::OrderBy);
    row.expression = tree::print(item.value);
    if (item.descending) row.name1 = "D";
  }
}

/// The halves of a union are taken out of the tree to be printed.
QueryKind addQuery(Rows& rows, tree::Query& query) {
  if (query.parts.size() > 2) cannotKeep("più di due SELECT unite");
  if (query.parts.size() == 1) {
    addSelect(rows, query.parts[0]);
    addOrder(rows, query.orderBy);
    return QueryKind::Select;
  }
  auto& options = rows.add(QueryRow::Options);
  options.flag = static_cast<std::int16_t>(query.all[0] ? AllColumns : AllColumns | Distinct);
  for (std::size_t i = 0; i < 2; ++i) {
    tree::Query half;
    half.parts.push_back(std::move(query.parts[i]));
    auto& row = rows.add(QueryRow::Source);
    row.name2 = UnionHalves[i];
    row.expression = tree::print(half);
  }
  addOrder(rows, query.orderBy);
  return QueryKind::Union;
}

QueryKind addUpdate(Rows& rows, const tree::Update& update) {
  addFrom(rows, update.from);
  for (const auto& assignment : update.assignments) {
    auto& row = rows.add(QueryRow::Output);
    row.expression = tree::print(assignment.value);
    row.flag = std::int16_t{0};
    const auto& column = assignment.column;
    row.name2 = column.table.empty() ? column.column
                                     : tree::quotedName(column.table) + "." + tree::quotedName(column.column);
  }
  if (update.where) rows.expression(QueryRow::Where, *update.where);
  return QueryKind::Update;
}

QueryKind addDelete(Rows& rows, const tree::Delete& deletion) {
  const bool all = !deletion.target || deletion.target->table.empty();
  if (all) rows.add(QueryRow::Options).flag = AllColumns;
  addFrom(rows, deletion.from);
  if (!all) {
    auto& row = rows.add(QueryRow::Output);
    row.expression = starText(*deletion.target);
    row.flag = std::int16_t{0};
  }
  if (deletion.where) rows.expression(QueryRow::Where, *deletion.where);
  return QueryKind::Delete;
}

/// Output rows of an append name their target columns.
QueryKind addInsert(Rows& rows, tree::Insert& insert) {
  if (auto* query = std::get_if<tree::Query>(&insert.rows)) {
    if (query->parts.size() != 1) cannotKeep("INSERT di una UNION");
    Rows selected;
    addQuery(selected, *query);
    std::size_t output = 0;
    for (auto& row : selected.take()) {
      auto& added = rows.add(row.attribute);
      const auto order = added.order;
      added = std::move(row);
      added.order = order;
      if (added.attribute == QueryRow::Output && output < insert.columns.size())
        added.name2 = insert.columns[output++].text;
    }
    return QueryKind::Append;
  }
  const auto& values = std::get<std::vector<tree::Expression>>(insert.rows);
  for (std::size_t i = 0; i < values.size(); ++i) {
    auto& row = rows.add(QueryRow::Output);
    row.expression = tree::print(values[i]);
    row.flag = ValueOutput;
    if (i < insert.columns.size()) row.name2 = insert.columns[i].text;
  }
  return QueryKind::Append;
}

void addParameters(Rows& rows, const std::vector<tree::ParameterDeclaration>& parameters) {
  for (const auto& parameter : parameters) {
    std::string type = parameter.type.name;
    for (char& c : type)
      if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    const auto known = ParameterTypes.find(type);
    auto& row = rows.add(QueryRow::Parameter);
    row.name1 = parameter.name;
    row.flag = known == ParameterTypes.end() ? std::int16_t{0} : known->second;
  }
}

}  // namespace

StoredQuery takeApart(std::string_view sql) {
  auto statement = parse(sql);
  Rows rows;
  rows.add(QueryRow::Start).flag = std::int16_t{0};
  addParameters(rows, statement.parameters);
  Rows clauses;
  std::optional<std::string> target, definition;
  const QueryKind kind = std::visit(
      runtime::Overloaded{[&](tree::Query& query) { return addQuery(clauses, query); },
                          [&](const tree::Update& update) { return addUpdate(clauses, update); },
                          [&](const tree::Delete& deletion) { return addDelete(clauses, deletion); },
                          [&](tree::Insert& insert) {
                            target = insert.table.text;
                            return addInsert(clauses, insert);
                          },
                          [&](const auto&) {
                            definition = std::string(sql) + '\0';
                            return QueryKind::DataDefinition;
                          }},
      statement.body);
  auto& row = rows.add(QueryRow::Kind);
  row.flag = KindFlags.at(kind);
  row.name1 = target;
  row.expression = definition;
  StoredQuery result{kind, rows.take()};
  for (auto& clause : clauses.take()) result.rows.push_back(std::move(clause));
  QueryRow end;
  end.attribute = QueryRow::End;
  result.rows.push_back(std::move(end));
  return result;
}

}  // namespace jet::sql
