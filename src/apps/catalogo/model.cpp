// Fields, indexes and relations of a model as rows of the catalogue.
#include "apps/catalogo/model.h"

#include "jet/dao/database.h"

namespace catalogo {

using namespace jet::dao;
using runtime::Variant;

namespace {

/// None is Null: it never counts as a difference.
Variant defaultOf(const Field& field) {
  const std::string value = field.DefaultValue();
  return value.empty() ? Variant(runtime::Null{}) : Variant(value);
}

/// Of a Decimal; Null for other types.
Variant digitsOf(const Field& field, int digits) {
  return field.Type() == dbDecimal ? Variant(digits) : Variant(runtime::Null{});
}

}  // namespace

bool isData(TableDef& table) {
  return (table.Attributes() & dbSystemObject) == 0 && table.Connect().empty();
}

std::vector<Thing> fieldsOf(Database& model, const std::string& norvo) {
  std::vector<Thing> fields;
  for (const auto& table : model.TableDefs()) {
    if (!isData(*table)) continue;
    for (const auto& field : table->Fields())
      fields.push_back({{norvo, table->Name(), field.Name(), field.Type(), field.Size(), field.Attributes(),
                         field.Required(), field.AllowZeroLength(), defaultOf(field), field.OrdinalPosition(),
                         false, digitsOf(field, field.precision()), digitsOf(field, field.scale())},
                        {}});
  }
  return fields;
}

std::vector<Thing> indexesOf(Database& model, const std::string& norvo) {
  std::vector<Thing> indexes;
  for (const auto& table : model.TableDefs()) {
    if (!isData(*table)) continue;
    for (const auto& index : table->Indexes()) {
      if (index->Foreign()) continue;
      Thing thing{
          {norvo, table->Name(), index->Name(), index->Primary(), index->Unique(), index->IgnoreNulls()}, {}};
      for (const auto& field : index->Fields())
        thing.parts.push_back({norvo, table->Name(), index->Name(), field.Name(), field.Attributes()});
      indexes.push_back(std::move(thing));
    }
  }
  return indexes;
}

std::vector<Thing> relationsOf(Database& model, const std::string& norvo) {
  std::vector<Thing> relations;
  for (const auto& relation : model.Relations()) {
    if (!isData(*model.TableDefs(relation->Table())) || !isData(*model.TableDefs(relation->ForeignTable())))
      continue;
    Thing thing{
        {norvo, relation->Name(), relation->Table(), relation->ForeignTable(), relation->Attributes()}, {}};
    for (const auto& pair : relation->Fields())
      thing.parts.push_back({norvo, relation->Name(), pair.Name(), pair.ForeignName()});
    relations.push_back(std::move(thing));
  }
  return relations;
}

}  // namespace catalogo
