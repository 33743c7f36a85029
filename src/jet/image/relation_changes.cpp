// Relations read, made and dropped: rows of MSysRelationships, the catalogue object, the indexes of both
// tables.
#include "jet/file/errors.h"
#include "jet/image/catalogue_rows.h"
#include "jet/image/image.h"
#include "jet/image/row_codec.h"

namespace jet::image {

std::vector<RelationDesign> Image::relations() {
  load(table(file::RelationshipsTable));
  return readRelations(connection_);
}

void Image::createRelation(const RelationDesign& wanted) {
  requireWritable();
  checkName(wanted.name);
  if (wanted.pairs.empty())
    throw runtime::Error(RelationWithoutFields, source::Relations,
                         "La relazione " + wanted.name + " non ha campi");
  for (const auto& other : relations())
    if (file::sameName(other.name, wanted.name))
      throw runtime::Error(ObjectExists, source::Relations, "Relazione già presente: " + wanted.name);
  auto& parent = tableNamed(wanted.table, UnknownTable);
  auto& child = tableNamed(wanted.foreignTable, UnknownTable);
  RelationDesign relation = wanted;
  relation.table = parent.name;
  relation.foreignTable = child.name;
  spellColumns(relation, definition(parent), definition(child));

  Transaction whole(*this);
  if (relation.enforced()) enforce(relation, parent.page, child.page);
  createObject(relation.name, file::ObjectType::Relation, 0);
  changeSystemTable(file::RelationshipsTable);
  insertRelation(connection_, relation);
  dropTriggers(parent);
  dropTriggers(child);
  whole.keep();
}

void Image::enforce(const RelationDesign& relation, std::uint32_t parentPage, std::uint32_t childPage) {
  auto& parent = changeable(parentPage);
  auto& child = changeable(childPage);
  auto parentDesign = definition(parent);
  if (&parent == &child) {
    addRelationEnds(parentDesign, parentDesign, relation);
    checkPartners(relation, parent, child);
    return setDefinition(parent, std::move(parentDesign));
  }
  auto childDesign = definition(child);
  addRelationEnds(parentDesign, childDesign, relation);
  checkPartners(relation, parent, child);
  setDefinition(parent, std::move(parentDesign));
  setDefinition(child, std::move(childDesign));
}

void Image::checkPartners(const RelationDesign& relation, Table& parent, Table& child) {
  const auto parents = parentColumns(definition(parent), relation);
  const auto foreigners = foreignColumns(definition(child), relation);
  load(child);
  prepareToRead(parent.page, {parents.front()});
  std::string present, equal;
  for (std::size_t i = 0; i < parents.size(); ++i) {
    present += "f." + columnName(foreigners[i]) + " IS NOT NULL AND ";
    equal += (i ? " AND p." : "p.") + columnName(parents[i]) + " = f." + columnName(foreigners[i]);
  }
  auto query = connection_.prepare("SELECT 1 FROM " + tableName(child.page) + " f WHERE " + present +
                                   "NOT EXISTS (SELECT 1 FROM " + tableName(parent.page) + " p WHERE " +
                                   equal + ") LIMIT 1");
  if (query.step())
    throw runtime::Error(RelatedRecordMissing, source::Relations,
                         "Relazione " + relation.name + ": la tabella " + child.name +
                             " ha righe senza una riga corrispondente in " + parent.name);
}

void Image::dropRelation(std::string_view name) {
  requireWritable();
  const auto object = findObject(name, file::RelationshipsContainer);
  for (const auto& relation : relations()) {
    if (!file::sameName(relation.name, name)) continue;
    Transaction whole(*this);
    changeSystemTable(file::RelationshipsTable);
    deleteRelation(connection_, relation.name);
    if (object) removeObject(object->id);
    release(relation);
    whole.keep();
    return;
  }
  throw runtime::Error(ItemNotFound, source::Relations, "Relazione inesistente: " + std::string(name));
}

void Image::release(const RelationDesign& relation) {
  // Tables of other files have nothing to take back, nor has a name that is a query's.
  if (!find(relation.table) || !find(relation.foreignTable)) return;
  auto& parent = tableNamed(relation.table, UnknownTable);
  auto& child = tableNamed(relation.foreignTable, UnknownTable);
  if (parent.link || child.link) return;
  auto parentDesign = definition(parent);
  auto childDesign = definition(child);
  const bool self = &parent == &child;
  if (!removeRelationEnds(parentDesign, self ? parentDesign : childDesign, relation.name)) return;
  dropRules(parent);
  setDefinition(parent, std::move(parentDesign));
  if (self) return;
  dropRules(child);
  setDefinition(child, std::move(childDesign));
}

}  // namespace jet::image
