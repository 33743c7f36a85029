// Relations made and dropped.
#include "jet/image/relation_changes.h"

#include "jet/file/errors.h"
#include "jet/image/catalogue_rows.h"
#include "jet/image/row_codec.h"
#include "jet/image/transaction.h"

namespace jet::image {

RelationChanges::RelationChanges(Tables& tables, Rows& rows, Catalogue& catalogue, TableChanges& tableChanges)
    : tables_(tables),
      rows_(rows),
      catalogue_(catalogue),
      tableChanges_(tableChanges),
      connection_(tables.connection()) {}

void RelationChanges::create(const RelationDesign& wanted) {
  tables_.requireWritable();
  checkName(wanted.name);
  if (wanted.pairs.empty())
    throw runtime::Error(RelationWithoutFields, source::Relations,
                         "La relazione " + wanted.name + " non ha campi");
  for (const auto& other : catalogue_.relations())
    if (file::sameName(other.name, wanted.name))
      throw runtime::Error(ObjectExists, source::Relations, "Relazione già presente: " + wanted.name);
  auto& parent = tables_.named(wanted.table, UnknownTable);
  auto& child = tables_.named(wanted.foreignTable, UnknownTable);
  RelationDesign relation = wanted;
  relation.table = parent.name;
  relation.foreignTable = child.name;
  spellColumns(relation, rows_.definition(parent), rows_.definition(child));

  Transaction whole(tables_);
  if (relation.enforced()) enforce(relation, parent.page, child.page);
  catalogue_.createObject(relation.name, file::ObjectType::Relation, 0);
  catalogue_.changeSystemTable(file::RelationshipsTable);
  insertRelation(connection_, relation);
  rows_.dropTriggers(parent);
  rows_.dropTriggers(child);
  whole.keep();
}

void RelationChanges::enforce(const RelationDesign& relation, std::uint32_t parentPage,
                              std::uint32_t childPage) {
  auto& parent = tables_.changeable(parentPage);
  auto& child = tables_.changeable(childPage);
  auto parentDesign = rows_.definition(parent);
  if (&parent == &child) {
    addRelationEnds(parentDesign, parentDesign, relation);
    checkPartners(relation, parent, child);
    return tableChanges_.setDefinition(parent, std::move(parentDesign));
  }
  auto childDesign = rows_.definition(child);
  addRelationEnds(parentDesign, childDesign, relation);
  checkPartners(relation, parent, child);
  tableChanges_.setDefinition(parent, std::move(parentDesign));
  tableChanges_.setDefinition(child, std::move(childDesign));
}

void RelationChanges::checkPartners(const RelationDesign& relation, Table& parent, Table& child) {
  const auto parents = parentColumns(rows_.definition(parent), relation);
  const auto foreigners = foreignColumns(rows_.definition(child), relation);
  rows_.load(child);
  rows_.load(parent);
  rows_.makeIndexes(rows_.definition(parent), {parents.front()}, false);
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

void RelationChanges::drop(std::string_view name) {
  tables_.requireWritable();
  const auto object = catalogue_.findObject(name, file::RelationshipsContainer);
  for (const auto& relation : catalogue_.relations()) {
    if (!file::sameName(relation.name, name)) continue;
    Transaction whole(tables_);
    catalogue_.changeSystemTable(file::RelationshipsTable);
    deleteRelation(connection_, relation.name);
    if (object) catalogue_.dropObject(object->id);
    release(relation);
    whole.keep();
    return;
  }
  throw runtime::Error(ItemNotFound, source::Relations, "Relazione inesistente: " + std::string(name));
}

void RelationChanges::release(const RelationDesign& relation) {
  // Tables of other files have nothing to take back, nor has a name that is a query's.
  if (!tables_.find(relation.table) || !tables_.find(relation.foreignTable)) return;
  auto& parent = tables_.named(relation.table, UnknownTable);
  auto& child = tables_.named(relation.foreignTable, UnknownTable);
  if (parent.link || child.link) return;
  auto parentDesign = rows_.definition(parent);
  auto childDesign = rows_.definition(child);
  const bool self = &parent == &child;
  if (!removeRelationEnds(parentDesign, self ? parentDesign : childDesign, relation.name)) return;
  rows_.dropIndexesAndTriggers(parent);
  tableChanges_.setDefinition(parent, std::move(parentDesign));
  if (self) return;
  rows_.dropIndexesAndTriggers(child);
  tableChanges_.setDefinition(child, std::move(childDesign));
}

}  // namespace jet::image
