#include <fstream>
#include <sstream>

#include "apps/jetsql/script.h"
#include "office.h"
#include "support/case_file.h"
#include "support/errors.h"

namespace jet::dao {
namespace {

/// The folder of the script that makes a register office in small, and of what the suite's statements do
/// there.
const std::string folder = SUITE;

std::vector<std::string> script() {
  std::ifstream file(folder + "/office.sql");
  jetsql::StreamLines lines(file);
  jetsql::Script script(lines);
  std::vector<std::string> statements;
  while (auto piece = script.next()) statements.push_back(piece->text);
  return statements;
}

/// Of the rows the columns whose names stand in `columns`, or all of them if it is empty.
std::string shown(Recordset& rows, const std::string& columns) {
  if (columns.empty()) return office::rows(rows);
  std::vector<std::string> names;
  std::istringstream list(columns);
  for (std::string name; list >> name;) names.push_back(name);
  std::string result;
  for (; !rows.atEnd(); rows.MoveNext()) {
    if (!result.empty()) result += " ";
    for (std::size_t i = 0; i < names.size(); ++i)
      result += (i ? "|" : "") + office::text(rows.Fields(names[i]).Value());
  }
  return result;
}

/// All cases run on one office; what a change leaves is rolled back.
class SuiteStatements : public testing::Test {
 protected:
  SuiteStatements() {
    office::make(path_, script());
    db_ = workspace_.OpenDatabase(path_, true, false);
  }

  QueryDefPtr query(const support::Case& each) const {
    auto query = db_->CreateQueryDef("", each.statement);
    for (const auto& [name, literal] : each.answers)
      query->Parameters(name).setValue(db_->OpenRecordset("SELECT " + literal)->Fields(0).Value());
    return query;
  }

  void expectRows(const std::string& file) {
    support::CaseFile(folder + "/" + file).expectResults([&](const support::Case& each) {
      return support::shown([&] { return shown(*query(each)->OpenRecordset(dbOpenDynaset), each.look); });
    });
  }

  std::string changed(const support::Case& each) {
    const auto change = query(each);
    change->Execute(dbFailOnError);
    const std::string left = office::rows(*db_->OpenRecordset(each.look));
    return std::to_string(change->RecordsAffected()) + (left.empty() ? ":" : ": ") + left;
  }

  support::TempFolder files_;
  std::string path_ = files_.path("office.mdb");
  Workspace workspace_;
  DatabasePtr db_;
};

TEST_F(SuiteStatements, QueriesFindTheRowsOfTheOffice) {
  expectRows("queries.cases");
}

TEST_F(SuiteStatements, QueriesOfStatesFindTheRowsOfTheOffice) {
  expectRows("status_queries.cases");
}

TEST_F(SuiteStatements, ChangesLeaveTheOfficeAsTheyShould) {
  support::CaseFile(folder + "/changes.cases").expectResults([&](const support::Case& each) {
    workspace_.BeginTrans();
    const std::string result = support::shown([&] { return changed(each); });
    workspace_.Rollback();
    return result;
  });
}

}  // namespace
}  // namespace jet::dao
