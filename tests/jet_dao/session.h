#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "office.h"

/// Work on one database, given line by line.
namespace office {

/// Runs lines of commands that stand between " ; ", and keeps what they made for the lines after them:
///   a statement               carried out, all or nothing; a SELECT gives its rows
///   try STATEMENT             carried out without its refused rows; the number of rows changed
///   NAME = KIND SOURCE        a recordset: any, table, dynaset, snapshot, forward; clone or narrowed NAME
///   NAME = query SQL          a query without a name; "stored QUERY": one of the database
///   NAME.Member VALUE         a member of the object, as the DAO calls it
///   NAME.field [= VALUE]      a field's or a parameter's value
///   NAME.Keep MARK            a bookmark, for NAME.Bookmark MARK and NAME.MoveFrom MARK COUNT
///   store QUERY = SQL, drop QUERY, run QUERY
///   relate NAME TABLE FOREIGN ATTRIBUTES field=foreign,..., unrelate NAME
///   rule TABLE[.FIELD] RULE, default FIELD VALUE, rename FIELD NAME
///   open HOW, close, end      the database, the workspace; exclusive, shared, readonly
///   begin, commit, rollback
///   new, keep, again HOW      a new file; keeps it; goes on with what was kept
///   remember, compare         the file's bytes, and whether they are still the same
///   saved QUERY               what the closed file holds
///   exported TABLE            the same as another reader sees it
///   schema PART               whether another reader's schema holds this
///   faults                    keeps the closed file for the checker
class Session {
 public:
  /// `kind` stands where the lines say KIND.
  explicit Session(std::string kind) : kind_(std::move(kind)) {}
  /// What the commands give, joined by blanks; at an error its number, and what follows is left out.
  std::string run(std::string line);
  /// What the checker has against the files that "faults" kept, which are numbered from 0.
  std::string faults() const { return complaints(checked_); }

 private:
  std::string command(const std::string& text);
  std::string file(const std::string& name, const std::string& rest);
  std::string database(const std::string& name, const std::string& rest);
  void relate(const std::string& text);
  std::string made(const std::string& name, const std::string& kind, const std::string& source);
  std::string onRecordset(jet::dao::Recordset& rows, const std::string& member, const std::string& rest);
  std::string onQuery(jet::dao::QueryDef& query, const std::string& member, const std::string& rest);
  /// Of the literals between commas.
  std::vector<runtime::Variant> values(const std::string& literals);
  void restart();
  void open(const std::string& how);

  const std::string kind_;
  support::TempFolder folder_;
  const std::string path_ = folder_.path("a.mdb"), kept_ = folder_.path("kept.mdb");
  std::string bytes_;
  std::vector<std::string> checked_;
  std::optional<jet::dao::Workspace> workspace_{std::in_place};
  jet::dao::DatabasePtr db_;
  std::map<std::string, jet::dao::RecordsetPtr> recordsets_;
  std::map<std::string, jet::dao::QueryDefPtr> queries_;
  std::map<std::string, runtime::Bytes> marks_;
};

}  // namespace office
