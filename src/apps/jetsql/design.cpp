#include "apps/jetsql/design.h"

#include "jet/dao/constants.h"
#include "jet/dao/table_def.h"

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
    {dbDecimal, "DECIMAL", false},
};

std::string typeText(const Field& field) {
  if (field.Type() == dbLong && (field.Attributes() & dbAutoIncrField)) return "COUNTER";
  for (const auto& candidate : typeNames) {
    if (candidate.type != field.Type()) continue;
    if (field.Type() == dbDecimal)
      return "DECIMAL(" + std::to_string(field.precision()) + ", " + std::to_string(field.scale()) + ")";
    if (!candidate.sized) return candidate.name;
    return std::string(candidate.name) + "(" + std::to_string(field.Size()) + ")";
  }
  return "UNKNOWN";
}

std::string bracketed(const std::string& name) {
  return "[" + name + "]";
}

std::string indexStatement(const std::string& table, Index& index) {
  std::string text = std::string(index.Unique() && !index.Primary() ? "CREATE UNIQUE INDEX " : "CREATE INDEX ") +
                     bracketed(index.Name()) + " ON " + bracketed(table) + " (";
  const char* separator = "";
  for (const auto& part : index.Fields()) {
    text += separator + bracketed(part.Name()) + (part.Attributes() & dbDescending ? " DESC" : "");
    separator = ", ";
  }
  text += ")";
  if (index.Primary()) return text + " WITH PRIMARY;\n";
  if (index.Required()) return text + " WITH DISALLOW NULL;\n";
  if (index.IgnoreNulls()) return text + " WITH IGNORE NULL;\n";
  return text + ";\n";
}

}  // namespace

std::string designStatements(TableDef& table) {
  std::string text = "CREATE TABLE " + bracketed(table.Name()) + " (";
  const char* separator = "\n  ";
  for (const auto& field : table.Fields()) {
    text += separator + bracketed(field.Name()) + " " + typeText(field) +
            (field.Required() ? " NOT NULL" : "") +
            (field.DefaultValue().empty() ? "" : " DEFAULT " + field.DefaultValue());
    separator = ",\n  ";
  }
  text += ");\n";
  for (const auto& index : table.Indexes()) {
    if (!index->Foreign()) text += indexStatement(table.Name(), *index);
  }
  return text;
}

}  // namespace jetsql
