#include <gtest/gtest.h>

#include "runtime/join.h"
#include "runtime/overloaded.h"
#include "small_image.h"
#include "support/case_file.h"

namespace jet::sql::test {
namespace {

std::string shown(const CreateIndex& index) {
  std::string text = std::string(index.primary  ? "primary "
                                 : index.unique ? "unique "
                                                : "index ") +
                     index.name + (index.ignoreNull ? " without Null" : "");
  for (const auto& part : index.columns) text += " " + part.column + (part.ascending ? "" : " desc");
  return text;
}

std::string shown(const CreateRelation& relation) {
  return relation.name + ": " + relation.table + "(" + runtime::join(relation.columns, ",") + ") -> " +
         relation.parent + "(" + runtime::join(relation.parentColumns, ",") + ")" +
         (relation.cascadeUpdate ? " update" : "") + (relation.cascadeDelete ? " delete" : "");
}

std::string shown(const NewColumn& column) {
  return column.name + " " + typeName(typeOf(column.type)) + " " + std::to_string(column.size) +
         (column.type == file::ColumnType::Numeric
              ? " of " + std::to_string(column.precision) + "," + std::to_string(column.scale)
              : "") +
         (column.autoNumber ? " from " + std::to_string(column.seed) : "") +
         (column.notNull ? " required" : "") +
         (column.defaultValue.empty() ? "" : " = " + column.defaultValue);
}

/// What a definition asks for, in a few words.
std::string asked(const std::string& text) {
  const SmallImage image;
  expectPrintsBack(text);
  const auto parts = [](const auto& definition) {
    std::string list;
    for (const CreateIndex& index : definition.indexes) list += "; " + shown(index);
    for (const CreateRelation& relation : definition.relations) list += "; " + shown(relation);
    return list;
  };
  return std::visit(
      runtime::Overloaded{
          [&](const CreateTable& create) {
            std::string list = create.table;
            for (const NewColumn& column : create.columns) list += "; " + shown(column);
            return list + parts(create);
          },
          [&](const AddColumn& add) { return "add " + add.table + "; " + shown(add.column) + parts(add); },
          [](const AlterColumn& alter) { return "alter " + alter.table + "; " + shown(alter.column); },
          [](const SetDefault& set) {
            return set.table + "." + set.column + " =" + (set.defaultValue.empty() ? "" : " ") +
                   set.defaultValue;
          },
          [](const DropColumn& drop) { return "drop " + drop.table + "." + drop.column; },
          [](const DropConstraint& drop) { return "drop " + drop.name + " of " + drop.table; },
          [](const DropTable& drop) { return "drop " + drop.table; },
          [](const DropIndex& drop) { return "drop " + drop.name + " on " + drop.table; },
          [](const CreateRelation& relation) { return shown(relation); },
          [](const CreateIndex& index) { return index.table + ": " + shown(index); },
          [](const SelectInto& into) { return "into " + into.table + ": " + into.rows.columns.at(0).name; },
          [](const auto&) { return std::string("another statement"); }},
      compile(text, image));
}

TEST(Definitions, SayWhatIsToBeMade) {
  support::CaseFile(CASES "/definitions.cases").expectResults([](const support::Case& each) {
    return asked(each.statement);
  });
}

TEST(Definitions, KnowEveryNameOfATypeForColumnsAndParameters) {
  struct Case {
    Type type;
    std::vector<const char*> names;
  };
  const Case cases[] = {
      {Type::Boolean, {"Bit", "Boolean", "Logical", "Logical1", "YesNo"}},
      {Type::Byte, {"Byte", "TinyInt", "Integer1"}},
      {Type::Integer, {"Short", "SmallInt", "Integer2"}},
      {Type::Long, {"Long", "Int", "Integer", "Integer4", "Counter", "AutoIncrement", "Identity"}},
      {Type::Currency, {"Currency", "Money"}},
      {Type::Single, {"Single", "Real", "Float4", "IEEESingle"}},
      {Type::Double, {"Double", "Float", "Float8", "Number", "IEEEDouble", "Double Precision"}},
      {Type::Date, {"DateTime", "Date", "Time", "Timestamp"}},
      {Type::Text,
       {"Text", "Text(20)", "Char(3)", "Character", "VarChar(9)", "String", "NChar", "NVarChar",
        "AlphaNumeric", "National Character Varying(4)"}},
      {Type::Memo, {"Memo", "LongText", "LongChar", "Note", "NText"}},
      {Type::Ole, {"LongBinary", "OLEObject", "General", "Image"}},
      {Type::Binary, {"Binary", "Binary(8)", "VarBinary(8)", "Bit Varying"}},
      {Type::Guid, {"Guid", "UniqueIdentifier"}},
      {Type::Decimal, {"Decimal", "Decimal(10,2)", "Numeric(5)", "Dec"}},
  };
  const SmallImage image;
  for (const Case& row : cases) {
    for (const std::string name : row.names) {
      const auto create = std::get<CreateTable>(compile("CREATE TABLE t (c " + name + ")", image));
      EXPECT_EQ(typeOf(create.columns[0].type), row.type) << name;
      const auto query = image.compileRows("PARAMETERS p " + name + "; SELECT id FROM soci WHERE p Is Null");
      EXPECT_EQ(query.parameters[0].type, row.type) << name;
    }
  }
  EXPECT_EQ(image.compileRows("PARAMETERS p Value; SELECT 1").parameters[0].type, Type::Variant);
}

}  // namespace
}  // namespace jet::sql::test
