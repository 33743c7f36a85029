// What columns keep of values, on every road that stores them.
#include <limits>

#include "jet/sql/decimal.h"
#include "office.h"
#include "runtime/inspection.h"
#include "support/case_file.h"

namespace jet::dao {
namespace {

using runtime::Variant;

Variant bytes(const std::string& hex) {
  runtime::Bytes result;
  for (std::size_t at = 0; at < hex.size(); at += 2)
    result.push_back(static_cast<std::byte>(std::stoi(hex.substr(at, 2), nullptr, 16)));
  return result;
}

Variant real(const std::string& text) {
  const double infinite = std::numeric_limits<double>::infinity();
  if (text == "nan") return std::numeric_limits<double>::quiet_NaN();
  return text == "inf" ? infinite : text == "-inf" ? -infinite : Variant(text).toDouble();
}

/// Kinds of value: how their text is read, and the type of a parameter for them.
struct Kind {
  const char* name;
  Variant (*value)(const std::string& text);
  const char* parameter;
};
const Kind kinds[] = {
    {"null", [](const std::string&) { return Variant(runtime::Null{}); }, "LONGTEXT"},
    {"boolean", [](const std::string& text) { return Variant(Variant(text).toBoolean()); }, "BIT"},
    {"byte", [](const std::string& text) { return Variant(Variant(text).toByte()); }, "BYTE"},
    {"integer", [](const std::string& text) { return Variant(Variant(text).toInteger()); }, "SHORT"},
    {"long", [](const std::string& text) { return Variant(Variant(text).toLong()); }, "LONG"},
    {"single", [](const std::string& text) { return Variant(static_cast<float>(Variant(text).toDouble())); },
     "SINGLE"},
    {"double", real, "DOUBLE"},
    {"currency", [](const std::string& text) { return Variant(Variant(text).toCurrency()); }, "CURRENCY"},
    {"date", [](const std::string& text) { return Variant(Variant(text).toDate()); }, "DATETIME"},
    {"decimal", [](const std::string& text) { return Variant(sql::toDecimal(text)); }, "DECIMAL"},
    {"text", [](const std::string& text) { return Variant(text); }, "LONGTEXT"},
    {"bytes", bytes, "LONGBINARY"},
};

/// One case in a table of its own, whose rows are the roads that the value has taken.
class Column {
 public:
  Column(Workspace& workspace, const std::string& path, std::string table, const support::Case& each)
      : workspace_(workspace), path_(path), table_(std::move(table)) {
    const auto fields = support::fieldsOf(each.statement);
    type_ = fields.at(0);
    const auto blank = fields.at(1).find(' ');
    const std::string name = fields[1].substr(0, blank);
    for (const Kind& kind : kinds)
      if (name == kind.name) kind_ = &kind;
    if (!kind_) throw std::runtime_error("no kind " + name);
    value_ = kind_->value(blank == std::string::npos ? "" : fields[1].substr(blank + 1));
    literal_ = each.one("literal");
  }

  /// What the roads give, once if they agree.
  std::string run() {
    db_ = workspace_.OpenDatabase(path_, true, false);
    db_->Execute("CREATE TABLE " + table_ + " (n LONG, v " + type_ + ")", dbFailOnError);
    take("added to a table", [&] { addTo(dbOpenTable); });
    take("added to a dynaset", [&] { addTo(dbOpenDynaset); });
    take("edited", [&] { edit(); });
    take("parameter of its kind", [&] { insert(kind_->parameter); });
    take("parameter of the column's type", [&] { insert(type_.substr(0, type_.find('('))); });
    if (!literal_.empty())
      take("literal", [&] {
        db_->Execute("INSERT INTO " + table_ + " VALUES (" + row() + ", " + literal_ + ")", dbFailOnError);
      });
    db_->Close();
    db_ = workspace_.OpenDatabase(path_, false, true);
    look("in the file", *db_->OpenRecordset(table_, dbOpenTable));
    db_->Close();
    secondReader();
    return result_;
  }

 private:
  std::string row() const { return std::to_string(road_); }

  template <typename Store>
  void take(const char* road, Store store) {
    ++road_;
    if (const int number = support::errorOf(store)) return tell(road, "error " + std::to_string(number));
    look(road, *db_->OpenRecordset("SELECT n, v FROM " + table_ + " WHERE n = " + row(), dbOpenSnapshot));
  }

  void addTo(RecordsetType type) {
    const auto rows = db_->OpenRecordset(table_, type);
    rows->AddNew();
    rows->Fields("n").setValue(std::int32_t{road_});
    rows->Fields("v").setValue(value_);
    const std::string before = told(*rows);
    rows->Update();
    tell("before Update", before);
  }

  void edit() {
    db_->Execute("INSERT INTO " + table_ + " (n) VALUES (" + row() + ")", dbFailOnError);
    const auto rows = db_->OpenRecordset("SELECT * FROM " + table_ + " WHERE n = " + row(), dbOpenDynaset);
    rows->Edit();
    try {
      rows->Fields("v").setValue(value_);
    } catch (const runtime::Error&) {
      rows->CancelUpdate();
      rows->Delete();
      throw;
    }
    rows->Update();
  }

  void insert(const std::string& type) {
    const auto query = db_->CreateQueryDef(
        "", "PARAMETERS p " + type + "; INSERT INTO " + table_ + " VALUES (" + row() + ", [p])");
    query->Parameters("p").setValue(value_);
    query->Execute(dbFailOnError);
  }

  static std::string told(Recordset& rows) {
    const Variant value = rows.Fields("v").Value();
    return std::string(runtime::typeName(value)) + " " + office::text(value);
  }

  void look(const char* road, Recordset& rows) {
    for (; !rows.atEnd(); rows.MoveNext()) tell(road, told(rows));
  }

  void tell(const char* road, const std::string& given) {
    if (result_.empty())
      result_ = given;
    else if (result_ != given)
      result_ += "; " + std::string(road) + ": " + given;
  }

  /// Sees the same value in all rows.
  void secondReader() const {
    std::istringstream lines(office::exported(path_, table_));
    std::string line, first;
    std::getline(lines, line);
    while (std::getline(lines, line)) {
      const std::string value = line.substr(line.find(',') + 1);
      if (first.empty()) first = value;
      EXPECT_EQ(value, first) << "second reader, row " << line;
    }
  }

  Workspace& workspace_;
  const std::string path_, table_;
  std::string type_, literal_, result_;
  const Kind* kind_ = nullptr;
  Variant value_;
  DatabasePtr db_;
  std::int32_t road_ = 0;
};

TEST(Values, AreKeptAlikeOnEveryRoad) {
  support::TempFolder files;
  const std::string path = files.path("values.mdb");
  Workspace workspace;
  workspace.CreateDatabase(path)->Close();
  int table = 0;
  support::CaseFile(VALUES "/values.cases").expectResults([&](const support::Case& each) {
    return support::inBraces(Column(workspace, path, "t" + std::to_string(++table), each).run());
  });
  EXPECT_EQ(office::complaints(path), "");
}

}  // namespace
}  // namespace jet::dao
