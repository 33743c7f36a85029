#include "session.h"

#include <filesystem>
#include <functional>
#include <sstream>
#include <stdexcept>

#include "platform/disk.h"
#include "platform/files.h"

namespace office {

using namespace jet::dao;

namespace {

/// The text up to `mark` and what stands behind it.
std::pair<std::string, std::string> cut(const std::string& text, const std::string& mark) {
  const auto at = text.find(mark);
  if (at == std::string::npos) return {text, ""};
  return {text.substr(0, at), text.substr(at + mark.size())};
}

std::string place(const Recordset& rows) {
  return rows.BOF() ? "BOF" : rows.atEnd() ? "EOF" : "";
}

using Member = std::function<std::string(Recordset&, const std::string&)>;

/// Of a member without a value.
Member does(void (Recordset::*work)()) {
  return [work](Recordset& rows, const std::string&) {
    (rows.*work)();
    return std::string();
  };
}

Member takes(void (Recordset::*set)(const std::string&)) {
  return [set](Recordset& rows, const std::string& text) {
    (rows.*set)(text);
    return std::string();
  };
}

Member finds(void (Recordset::*find)(const std::string&)) {
  return [find](Recordset& rows, const std::string& criteria) {
    (rows.*find)(criteria);
    return rows.NoMatch() ? "no" : text(rows.Fields(0).Value());
  };
}

const std::map<std::string, Member> Members = {
    {"MoveFirst", does(&Recordset::MoveFirst)},
    {"MoveLast", does(&Recordset::MoveLast)},
    {"MoveNext", does(&Recordset::MoveNext)},
    {"MovePrevious", does(&Recordset::MovePrevious)},
    {"Move",
     [](Recordset& rows, const std::string& count) {
       rows.Move(std::stoi(count));
       return std::string();
     }},
    {"Edit", does(&Recordset::Edit)},
    {"AddNew", does(&Recordset::AddNew)},
    {"Update", does(&Recordset::Update)},
    {"CancelUpdate", does(&Recordset::CancelUpdate)},
    {"Delete", does(&Recordset::Delete)},
    {"Requery", does(&Recordset::Requery)},
    {"Close", does(&Recordset::Close)},
    {"FindFirst", finds(&Recordset::FindFirst)},
    {"FindLast", finds(&Recordset::FindLast)},
    {"FindNext", finds(&Recordset::FindNext)},
    {"FindPrevious", finds(&Recordset::FindPrevious)},
    {"Index", takes(&Recordset::setIndex)},
    {"Filter", takes(&Recordset::setFilter)},
    {"Sort", takes(&Recordset::setSort)},
    {"Type", [](Recordset& rows, const std::string&) { return std::to_string(rows.Type()); }},
    {"EditMode", [](Recordset& rows, const std::string&) { return std::to_string(rows.EditMode()); }},
    {"RecordCount", [](Recordset& rows, const std::string&) { return std::to_string(rows.RecordCount()); }},
    {"AbsolutePosition",
     [](Recordset& rows, const std::string& position) {
       if (position.empty()) return std::to_string(rows.AbsolutePosition());
       rows.setAbsolutePosition(std::stoi(position));
       return std::string();
     }},
    {"GetRows",
     [](Recordset& rows, const std::string& count) {
       const auto found = rows.GetRows(static_cast<std::size_t>(std::stoi(count)));
       return std::to_string(found.size()) + "x" + std::to_string(found.at(0).size());
     }},
    {"Rows", [](Recordset& rows, const std::string&) { return office::rows(rows); }},
    {"Names",
     [](Recordset& rows, const std::string&) {
       std::string names;
       for (const auto& field : rows.Fields()) names += (names.empty() ? "" : " ") + field.Name();
       return names;
     }},
    {"At",
     [](Recordset& rows, const std::string&) {
       const std::string beside = place(rows);
       return beside.empty() ? text(rows.Fields(0).Value()) : beside;
     }},
};

const std::map<std::string, RecordsetType> Kinds = {{"table", dbOpenTable},
                                                    {"dynaset", dbOpenDynaset},
                                                    {"snapshot", dbOpenSnapshot},
                                                    {"forward", dbOpenForwardOnly}};

/// The rule of a field, or of a table.
void setRule(Database& db, const std::string& owner, const std::string& rule) {
  const auto [name, field] = cut(owner, ".");
  const auto table = db.TableDefs(name);
  if (field.empty())
    table->Properties().Append(table->CreateProperty("ValidationRule", dbMemo, rule));
  else
    table->Fields(field).setValidationRule(rule);
}

}  // namespace

std::string Session::run(std::string line) {
  for (auto at = line.find("KIND"); at != std::string::npos; at = line.find("KIND"))
    line.replace(at, 4, kind_);
  std::string result;
  const auto add = [&](const std::string& part) {
    if (!part.empty()) result += (result.empty() ? "" : " ") + part;
  };
  try {
    for (std::string rest = line; !rest.empty();) {
      const auto [first, others] = cut(rest, " ; ");
      add(command(first));
      rest = others;
    }
  } catch (const runtime::Error& error) {
    add("error " + std::to_string(error.number()));
  }
  return result;
}

std::string Session::command(const std::string& text) {
  const auto [word, rest] = cut(text, " ");
  if (rest.starts_with("= ")) {
    if (const auto [kind, source] = cut(rest.substr(2), " "); word.find('.') == std::string::npos)
      return made(word, kind, source);
  }
  const auto [name, member] = cut(word, ".");
  if (const auto rows = recordsets_.find(name); rows != recordsets_.end())
    return onRecordset(*rows->second, member, rest);
  if (const auto query = queries_.find(name); query != queries_.end())
    return onQuery(*query->second, member, rest);
  if (word == "SELECT" && text.find(" INTO ") == std::string::npos) return rows(*db_->OpenRecordset(text));
  if (std::isupper(static_cast<unsigned char>(word.at(0)))) {
    db_->Execute(text, dbFailOnError);
    return {};
  }
  return database(word, rest);
}

std::string Session::database(const std::string& name, const std::string& rest) {
  if (name == "open") {
    open(rest);
  } else if (name == "close") {
    db_->Close();
  } else if (name == "begin") {
    workspace_->BeginTrans();
  } else if (name == "commit") {
    workspace_->CommitTrans();
  } else if (name == "rollback") {
    workspace_->Rollback();
  } else if (name == "end") {
    workspace_->Close();
  } else if (name == "try") {
    db_->Execute(rest);
    return std::to_string(db_->RecordsAffected());
  } else if (name == "relate") {
    relate(rest);
  } else if (name == "unrelate") {
    db_->Relations().Delete(rest);
  } else if (name == "rule") {
    setRule(*db_, cut(rest, " ").first, cut(rest, " ").second);
  } else if (name == "store") {
    db_->CreateQueryDef(cut(rest, " = ").first, cut(rest, " = ").second);
  } else if (name == "drop") {
    db_->QueryDefs().Delete(rest);
  } else if (name == "run") {
    db_->Execute(rest, dbFailOnError);
  } else if (name == "rename") {
    const auto [field, target] = cut(rest, " ");
    db_->TableDefs(cut(field, ".").first)->Fields(cut(field, ".").second).setName(target);
  } else if (name == "default") {
    const auto [field, value] = cut(rest, " ");
    db_->TableDefs(cut(field, ".").first)->Fields(cut(field, ".").second).setDefaultValue(value);
  } else {
    return file(name, rest);
  }
  return {};
}

/// "NAME TABLE FOREIGN ATTRIBUTES field=foreign,..."
void Session::relate(const std::string& text) {
  std::istringstream words(text);
  std::string name, table, foreign, pair;
  int attributes = 0;
  words >> name >> table >> foreign >> attributes >> std::ws;
  const auto relation = db_->CreateRelation(name, table, foreign, attributes);
  while (std::getline(words, pair, ','))
    relation->Fields().Append(relation->CreateField(cut(pair, "=").first, cut(pair, "=").second));
  db_->Relations().Append(relation);
}

std::string Session::file(const std::string& name, const std::string& rest) {
  if (name == "saved") return query(path_, rest);
  if (name == "exported") {
    const std::string table = exported(path_, rest);
    return table.substr(0, table.find_last_not_of('\n') + 1);
  }
  if (name == "schema") {
    const auto schema = support::runCommand("mdb-schema " + system(path_)).output;
    return schema.find(rest) == std::string::npos ? "no" : "yes";
  }
  if (name == "compare") return platform::readWholeFile(path_) == bytes_ ? "same" : "changed";
  if (name == "remember") {
    bytes_ = platform::readWholeFile(path_);
  } else if (name == "faults") {
    checked_.push_back(folder_.path(std::to_string(checked_.size()) + ".mdb"));
    platform::copyFile(path_, checked_.back());
  } else if (name == "new") {
    restart();
    std::filesystem::remove(platform::toSystemPath(path_));
    db_ = workspace_->CreateDatabase(path_);
  } else if (name == "keep") {
    db_->Close();
    platform::copyFile(path_, kept_);
  } else if (name == "again") {
    restart();
    platform::replaceFile(kept_, path_);
    platform::copyFile(path_, kept_);
    open(rest);
  } else {
    throw std::logic_error("no command " + name);
  }
  return {};
}

void Session::restart() {
  recordsets_.clear();
  queries_.clear();
  db_.reset();
  workspace_.emplace();
}

void Session::open(const std::string& how) {
  db_ = workspace_->OpenDatabase(path_, how == "exclusive" || how.empty(), how == "readonly");
}

std::string Session::made(const std::string& name, const std::string& kind, const std::string& source) {
  if (kind == "query")
    queries_[name] = db_->CreateQueryDef("", source);
  else if (kind == "stored")
    queries_[name] = db_->QueryDefs(source);
  else if (kind == "any")
    recordsets_[name] = db_->OpenRecordset(source);
  else if (kind == "clone")
    recordsets_[name] = recordsets_.at(source)->Clone();
  else if (kind == "narrowed")
    recordsets_[name] = recordsets_.at(source)->OpenRecordset();
  else
    recordsets_[name] = db_->OpenRecordset(source, Kinds.at(kind));
  return {};
}

std::string Session::onRecordset(Recordset& rows, const std::string& member, const std::string& rest) {
  if (const auto known = Members.find(member); known != Members.end()) return known->second(rows, rest);
  if (member == "Keep") {
    marks_[rest] = rows.Bookmark();
  } else if (member == "Bookmark") {
    rows.setBookmark(rest == "LastModified" ? rows.LastModified() : marks_[rest]);
  } else if (member == "MoveFrom") {
    rows.Move(std::stoi(cut(rest, " ").second), marks_[cut(rest, " ").first]);
  } else if (member == "Seek") {
    rows.Seek(cut(rest, " ").first, values(cut(rest, " ").second));
    return rows.NoMatch() ? "no" : text(rows.Fields(0).Value());
  } else if (rest.starts_with("= ")) {
    rows.Fields(member).setValue(values(rest.substr(2)).at(0));
  } else {
    return text(rows.value(member));
  }
  return {};
}

std::string Session::onQuery(QueryDef& query, const std::string& member, const std::string& rest) {
  if (member == "Execute") {
    query.Execute(dbFailOnError);
  } else if (member == "Try") {
    query.Execute();
    return std::to_string(query.RecordsAffected());
  } else if (member == "Rows") {
    return rows(*query.OpenRecordset());
  } else if (member == "Text") {
    return query.SQL();
  } else if (member == "Name") {
    query.setName(rest);
  } else if (member == "SQL") {
    query.setSQL(rest);
  } else if (member == "Parameters") {
    std::string names;
    for (std::size_t i = 0; i < query.Parameters().Count(); ++i)
      names +=
          (i ? ", " : "") + query.Parameters(i).Name() + " " + std::to_string(query.Parameters(i).Type());
    return names;
  } else if (rest.starts_with("= ")) {
    query.Parameters(member).setValue(values(rest.substr(2)).at(0));
  } else {
    return text(query.Parameters(member).Value());
  }
  return {};
}

std::vector<runtime::Variant> Session::values(const std::string& literals) {
  std::vector<runtime::Variant> found;
  const auto rows = db_->OpenRecordset("SELECT " + literals, dbOpenSnapshot);
  for (const auto& field : rows->Fields()) found.push_back(field.Value());
  return found;
}

}  // namespace office
