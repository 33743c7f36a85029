// Tables, indexes and relations described as the statements that make them.
#include "apps/jetsql/design.h"

#include "jet/dao/constants.h"
#include "jet/dao/relation.h"
#include "jet/dao/table_def.h"
#include "runtime/join.h"

namespace jetsql {
namespace {

using namespace jet::dao;

/// How CREATE TABLE calls a type, and whether its size follows.
struct TypeName {
  int type;
  const char* name;
  bool sized;
};
constexpr TypeName typeNames[] = {
    {dbBoolean, "YESNO", false},
    {dbByte, "BYTE", false},
    {dbInteger, "SHORT", false},
    {dbLong, "LONG", false},
    {dbCurrency, "CURRENCY", false},
    {dbSingle, "SINGLE", false},
    {dbDouble, "DOUBLE", false},
    {dbDate, "DATETIME", false},
    {dbBinary, "BINARY", true},
    {dbText, "TEXT", true},
    {dbLongBinary, "LONGBINARY", false},
    {dbMemo, "MEMO", false},
    {dbGUID, "GUID", false},
};

std::string typeText(const Field& field) {
  if (field.Type() == dbLong && (field.Attributes() & dbAutoIncrField)) return "COUNTER";
  if (field.Type() == dbDecimal)
    return "DECIMAL(" + std::to_string(field.precision()) + ", " + std::to_string(field.scale()) + ")";
  for (const auto& candidate : typeNames) {
    if (candidate.type != field.Type()) continue;
    if (!candidate.sized) return candidate.name;
    return std::string(candidate.name) + "(" + std::to_string(field.Size()) + ")";
  }
  return "UNKNOWN";
}

std::string bracketed(const std::string& name) {
  return "[" + name + "]";
}

/// A default may be written with an equals sign in front, and may be an expression that needs parentheses.
std::string defaultText(std::string value) {
  if (value.starts_with('=')) value.erase(0, 1);
  if (value.empty()) return {};
  const bool plain = value.find_first_of(" =<>&+*/^") == std::string::npos;
  return " DEFAULT " + (plain ? value : "(" + value + ")");
}

std::string columnText(const Field& field) {
  return bracketed(field.Name()) + " " + typeText(field) + (field.Required() ? " NOT NULL" : "") +
         defaultText(field.DefaultValue());
}

/// Names in brackets with a comma between.
template <class Items, class Name>
std::string nameList(const Items& items, Name name) {
  return "(" + runtime::join(items, ", ", name) + ")";
}

std::string indexStatement(const std::string& table, Index& index) {
  const std::string text =
      std::string(index.Unique() && !index.Primary() ? "CREATE UNIQUE INDEX " : "CREATE INDEX ") +
      bracketed(index.Name()) + " ON " + bracketed(table) + " " +
      nameList(index.Fields(), [](const Field& field) {
        return bracketed(field.Name()) + (field.Attributes() & dbDescending ? " DESC" : "");
      });
  if (index.Primary()) return text + " WITH PRIMARY;\n";
  if (index.Required()) return text + " WITH DISALLOW NULL;\n";
  if (index.IgnoreNulls()) return text + " WITH IGNORE NULL;\n";
  return text + ";\n";
}

}  // namespace

std::string designStatements(TableDef& table) {
  if (const std::string source = table.Connect(); !source.empty())
    return "-- " + bracketed(table.Name()) + " è collegata a " + bracketed(table.SourceTableName()) + " in " +
           source + "\n";
  std::string text;
  for (const auto& field : table.Fields()) text += (text.empty() ? "\n  " : ",\n  ") + columnText(field);
  text = "CREATE TABLE " + bracketed(table.Name()) + " (" + text + ");\n";
  for (const auto& index : table.Indexes())
    if (!index->Foreign()) text += indexStatement(table.Name(), *index);
  return text;
}

std::string designStatement(Relation& relation) {
  const auto own = [](const Field& pair) { return bracketed(pair.ForeignName()); };
  const auto theirs = [](const Field& pair) { return bracketed(pair.Name()); };
  const int attributes = relation.Attributes();
  std::string text = "ALTER TABLE " + bracketed(relation.ForeignTable()) + " ADD CONSTRAINT " +
                     bracketed(relation.Name()) + " FOREIGN KEY " + nameList(relation.Fields(), own) +
                     " REFERENCES " + bracketed(relation.Table()) + " " + nameList(relation.Fields(), theirs);
  if (attributes & dbRelationUpdateCascade) text += " ON UPDATE CASCADE";
  if (attributes & dbRelationDeleteCascade) text += " ON DELETE CASCADE";
  // No statement makes a relation that only tells how tables belong together.
  return (attributes & dbRelationDontEnforce ? "-- non applicata: " : "") + text + ";\n";
}

}  // namespace jetsql
