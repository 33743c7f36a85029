// Random joins over values that are equal and unlike in bytes, with indexes and without, against a plain
// evaluator.
#include <sqlite3.h>

#include <algorithm>
#include <optional>
#include <random>
#include <variant>

#include "jet/file/text/text_key.h"
#include "office.h"

namespace jet::dao {
namespace {

constexpr unsigned Seed = 20061116;
// The one that all of these were right with.
constexpr const char* RightWith = "3.40.1";

constexpr int Tables = 5, RowsOfTable = 9, Statements = 700;

/// A number in ten-thousandths, a text, or Null.
using Value = std::variant<std::monostate, std::int64_t, std::string>;

struct JoinColumn {
  const char* name;
  const char* type;
  bool text;
  std::vector<const char*> literals;  // all of them values of the type
};

const std::vector<const char*> Texts = {"Null", "''",  "'  '",   "'alfa'",    "'alfa '", "'ALFA'",
                                        "'fi'", "'ﬁ'", "'fi  '", "'strasse'", "'straße'"};
const std::vector<const char*> Whole = {"Null", "0", "1", "2", "10", "-1"};
const std::vector<const char*> Broken = {"Null", "0", "1", "1.5", "2.25", "10", "-1"};

const JoinColumn Columns[] = {{"t", "TEXT(10)", true, Texts},
                              {"m", "MEMO", true, Texts},
                              {"b", "BYTE", false, {"Null", "0", "1", "2", "10"}},
                              {"s", "SHORT", false, Whole},
                              {"l", "LONG", false, Whole},
                              {"v", "YESNO", false, {"0", "-1"}},
                              {"c", "CURRENCY", false, Broken},
                              {"f", "SINGLE", false, Broken},
                              {"x", "DOUBLE", false, Broken},
                              {"d", "DATETIME", false, Broken},
                              {"p", "DECIMAL(10, 2)", false, Broken},
                              {"q", "DECIMAL(18, 6)", false, Broken}};
constexpr std::size_t ColumnCount = std::size(Columns);

Value valueOf(const std::string& literal, bool text) {
  if (literal == "Null") return {};
  if (text) return literal.substr(1, literal.size() - 2);
  return static_cast<std::int64_t>(std::stod(literal) * 10000);
}

/// Below zero, zero or above; nothing where one is Null.
std::optional<int> compare(const Value& a, const Value& b) {
  if (a.index() == 0 || b.index() == 0) return std::nullopt;
  if (const auto* text = std::get_if<std::string>(&a)) return file::compareText(*text, std::get<2>(b));
  return std::get<1>(a) < std::get<1>(b) ? -1 : std::get<1>(a) > std::get<1>(b);
}

/// One row number of each table, -1 where an outer join found none.
using Row = std::vector<int>;
using Rows = std::vector<Row>;

struct Operand {
  int table;
  std::size_t column;
};

struct Comparison {
  Operand left, right;
  std::string sign;
};

class Game {
 public:
  explicit Game(unsigned seed) : random_(seed) {
    for (int table = 0; table < Tables; ++table) {
      create_.push_back(createTable(table));
      for (int row = 0; row < RowsOfTable; ++row) create_.push_back(insertRow(table, row));
    }
  }

  const std::vector<std::string>& create() const { return create_; }
  /// Some indexes of one or two columns on each table, where Jet takes them.
  std::vector<std::string> indexes() {
    std::vector<std::string> all;
    for (int table = 0; table < Tables; ++table)
      for (int i = 0; i < 6; ++i) {
        const std::size_t first = any(ColumnCount), second = any(ColumnCount);
        if (isMemo(first) || isMemo(second)) continue;
        all.push_back("CREATE INDEX i" + std::to_string(i) + " ON " + name(table) + " (" +
                      Columns[first].name +
                      (first == second ? "" : std::string(", ") + Columns[second].name + " DESC") + ")");
      }
    return all;
  }

  /// Makes the next FROM and WHERE, and the rows that they select.
  void next() {
    std::vector<int> tables{0, 1, 2, 3, 4};
    std::ranges::shuffle(tables, random_);
    tables.resize(2 + any(3));
    tables_ = tables;
    auto [text, rows] = tree(tables);
    from = text, selected = std::move(rows);
    where = any(2) == 0 ? "" : condition();
  }

  std::string from, where;
  Rows selected;

  const std::vector<int>& tables() const { return tables_; }
  static std::string name(int table) { return "t" + std::to_string(table); }
  std::size_t any(std::size_t below) { return random_() % below; }

 private:
  static bool isMemo(std::size_t column) { return Columns[column].type == std::string("MEMO"); }

  std::string createTable(int table) {
    std::string text = "CREATE TABLE " + name(table) + " (id LONG, mark LONG";
    for (const JoinColumn& column : Columns) text += std::string(", ") + column.name + " " + column.type;
    return text + ")";
  }

  std::string insertRow(int table, int row) {
    std::string text = "INSERT INTO " + name(table) + " VALUES (" + std::to_string(row) + ", 0";
    auto& values = values_[table].emplace_back();
    for (const JoinColumn& column : Columns) {
      const std::string literal = column.literals[any(column.literals.size())];
      text += ", " + literal;
      values.push_back(valueOf(literal, column.text));
    }
    return text + ")";
  }

  const Value& at(const Row& row, const Operand& operand) const {
    static const Value null;
    const int number = row[static_cast<std::size_t>(operand.table)];
    return number < 0 ? null : values_[operand.table][static_cast<std::size_t>(number)][operand.column];
  }

  bool holds(const Comparison& comparison, const Row& row) const {
    const auto order = compare(at(row, comparison.left), at(row, comparison.right));
    if (!order) return false;
    return comparison.sign == "=" ? *order == 0 : comparison.sign == "<=" ? *order <= 0 : *order > 0;
  }

  static std::string text(const Operand& operand) {
    return name(operand.table) + "." + Columns[operand.column].name;
  }

  Comparison comparison(const std::vector<int>& left, const std::vector<int>& right) {
    Comparison result{{left[any(left.size())], any(ColumnCount)}, {right[any(right.size())], 0}, "="};
    do result.right.column = any(ColumnCount);
    while (Columns[result.right.column].text != Columns[result.left.column].text);
    return result;
  }

  /// A join of these tables: its text and its rows.
  std::pair<std::string, Rows> tree(const std::vector<int>& tables) {
    if (tables.size() == 1) {
      Rows rows;
      for (int row = 0; row < RowsOfTable; ++row)
        rows.emplace_back(Tables, -1)[static_cast<std::size_t>(tables[0])] = row;
      return {name(tables[0]), std::move(rows)};
    }
    const auto cut = tables.begin() + 1 + static_cast<std::ptrdiff_t>(any(tables.size() - 1));
    const std::vector<int> first(tables.begin(), cut), second(cut, tables.end());
    auto [leftText, left] = tree(first);
    auto [rightText, right] = tree(second);
    std::vector<Comparison> on;
    for (std::size_t i = any(4) == 0 ? 2 : 1; i > 0; --i) on.push_back(comparison(first, second));
    if (on.size() == 2 && any(2) == 0) on.back().sign = any(2) == 0 ? "<=" : ">";
    static const char* const kinds[] = {" INNER JOIN ", " LEFT JOIN ", " RIGHT JOIN "};
    const std::size_t kind = any(3);
    const auto side = [](const std::string& text, bool alone) { return alone ? text : "(" + text + ")"; };
    std::string text = side(leftText, first.size() == 1) + kinds[kind] + side(rightText, second.size() == 1);
    for (const Comparison& each : on)
      text += (&each == &on.front() ? " ON (" : " AND (") + Game::text(each.left) + " " + each.sign + " " +
              Game::text(each.right) + ")";
    return {std::move(text), kind == 2 ? join(right, left, on, true) : join(left, right, on, kind == 1)};
  }

  Rows join(const Rows& outer, const Rows& inner, const std::vector<Comparison>& on, bool keep) const {
    Rows rows;
    for (const Row& one : outer) {
      const std::size_t before = rows.size();
      for (const Row& other : inner) {
        Row both = one;
        for (std::size_t i = 0; i < both.size(); ++i) both[i] = std::max(both[i], other[i]);
        if (std::ranges::all_of(on, [&](const Comparison& each) { return holds(each, both); }))
          rows.push_back(std::move(both));
      }
      if (keep && rows.size() == before) rows.push_back(one);
    }
    return rows;
  }

  /// One condition on a column, whose rows stay.
  std::string condition() {
    const Operand column{tables_[any(tables_.size())], any(ColumnCount)};
    const JoinColumn& kind = Columns[column.column];
    if (any(3) == 0) {
      std::erase_if(selected, [&](const Row& row) { return at(row, column).index() != 0; });
      return text(column) + " Is Null";
    }
    std::vector<Value> wanted;
    std::string list;
    for (std::size_t i = 1 + any(3); i > 0; --i) {
      const std::string literal = kind.literals[any(kind.literals.size())];
      wanted.push_back(valueOf(literal, kind.text));
      list += (list.empty() ? "" : ", ") + literal;
    }
    std::erase_if(selected, [&](const Row& row) {
      return std::ranges::none_of(wanted,
                                  [&](const Value& value) { return compare(at(row, column), value) == 0; });
    });
    return wanted.size() == 1 ? text(column) + " = " + list : text(column) + " IN (" + list + ")";
  }

  std::mt19937 random_;
  std::vector<std::string> create_;
  std::vector<std::vector<Value>> values_[Tables];
  std::vector<int> tables_;
};

std::string joined(std::vector<std::string> lines) {
  std::ranges::sort(lines);
  std::string text;
  for (const auto& line : lines) text += (text.empty() ? "" : " ") + line;
  return text;
}

/// The ids of the rows of `selected`, those of `tables`.
std::string shown(const Rows& selected, const std::vector<int>& tables) {
  std::vector<std::string> lines;
  for (const Row& row : selected) {
    std::string line;
    for (const int table : tables) {
      const int id = row[static_cast<std::size_t>(table)];
      line += (line.empty() ? "" : "|") + (id < 0 ? "Null" : std::to_string(id));
    }
    lines.push_back(std::move(line));
  }
  return joined(std::move(lines));
}

std::string read(Database& db, const std::string& sql) {
  const auto recordset = db.OpenRecordset(sql, dbOpenSnapshot);
  std::vector<std::string> lines;
  for (; !recordset->atEnd(); recordset->MoveNext()) {
    std::string line;
    for (const auto& field : recordset->Fields())
      line += (line.empty() ? "" : "|") + office::text(field.Value());
    lines.push_back(std::move(line));
  }
  return joined(std::move(lines));
}

class RandomJoins : public testing::Test {
 protected:
  void SetUp() override {
    office::make(folder_.path("0.mdb"), game_.create());
    auto indexed = game_.create();
    for (const auto& index : game_.indexes()) indexed.push_back(index);
    office::make(folder_.path("1.mdb"), indexed);
    for (const char* name : {"0.mdb", "1.mdb"})
      db_.push_back(workspace_.OpenDatabase(folder_.path(name), true));
  }

  /// What both databases must show: after `change`, which is taken back, or as they are.
  void expect(const std::string& change, const std::string& look, const std::string& rows) {
    for (const auto& db : db_) {
      workspace_.BeginTrans();
      if (!change.empty()) db->Execute(change, dbFailOnError);
      EXPECT_EQ(read(*db, look), rows)
          << change << "\n"
          << look << "\n"
          << (db == db_[0] ? "without" : "with") << " indexes, seed " << Seed << ", SQLite "
          << sqlite3_libversion() << "; right with SQLite " << RightWith;
      workspace_.Rollback();
    }
  }

  support::TempFolder folder_;
  Game game_{Seed};
  Workspace workspace_;
  std::vector<DatabasePtr> db_;
};

TEST_F(RandomJoins, GiveDeleteAndUpdateTheRowsOfAPlainEvaluator) {
  for (int i = 0; i < Statements && !HasFailure(); ++i) {
    game_.next();
    const auto& tables = game_.tables();
    const std::string rest = game_.from + (game_.where.empty() ? "" : " WHERE " + game_.where);
    std::string ids;
    for (const int table : tables) ids += (ids.empty() ? "" : ", ") + Game::name(table) + ".id";
    expect("", "SELECT " + ids + " FROM " + rest, shown(game_.selected, tables));
    if (i % 4 != 0) continue;

    const int target = tables[game_.any(tables.size())];
    std::vector<bool> reached(RowsOfTable);
    bool missing = false;
    for (const Row& row : game_.selected) {
      const int id = row[static_cast<std::size_t>(target)];
      missing |= id < 0;
      if (id >= 0) reached[static_cast<std::size_t>(id)] = true;
    }
    Rows changed, kept;
    for (int id = 0; id < RowsOfTable; ++id)
      (reached[static_cast<std::size_t>(id)] ? changed : kept).emplace_back(Tables, id);
    const std::string name = Game::name(target);
    expect("DELETE " + name + ".* FROM " + rest, "SELECT id FROM " + name, shown(kept, {target}));
    // An outer join without a row of the table would add one.
    if (missing) continue;
    expect("UPDATE " + game_.from + " SET " + name + ".mark = 7" +
               (game_.where.empty() ? "" : " WHERE " + game_.where),
           "SELECT id FROM " + name + " WHERE mark = 7", shown(changed, {target}));
  }
}

}  // namespace
}  // namespace jet::dao
