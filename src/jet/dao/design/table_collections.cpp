#include "jet/dao/design/table_collections.h"

#include <algorithm>

#include "jet/dao/design/table_field.h"
#include "jet/dao/session/session.h"
#include "jet/file/errors.h"

namespace jet::dao {

std::size_t TableFields::count() const {
  return table_->page_ ? table_->design().columns.size() : table_->draft_.fields.size();
}

Field TableFields::at(std::size_t position) const {
  if (!table_->page_) return Field(table_->draft_.fields[position], 0);
  const auto& design = table_->design();
  const auto number = design.columns[design.displayOrder()[position]].number;
  return Field(std::make_shared<TableField>(table_->session_, *table_->page_, number), 0);
}

std::optional<std::size_t> TableFields::find(std::string_view name) const {
  if (!table_->page_) {
    const auto& fields = table_->draft_.fields;
    for (std::size_t i = 0; i < fields.size(); ++i)
      if (file::sameName(fields[i]->name(), name)) return i;
    return std::nullopt;
  }
  const auto& design = table_->design();
  const auto column = design.find(name);
  if (!column) return std::nullopt;
  const auto order = design.displayOrder();
  return static_cast<std::size_t>(std::find(order.begin(), order.end(), *column) - order.begin());
}

void TableFields::append(const Field& field) const {
  const auto added = std::dynamic_pointer_cast<TableField>(field.owner());
  if (!added)
    throw runtime::Error(InvalidOperation, title(), "Operazione non valida: non è un campo di tabella");
  if (find(added->name()))
    throw runtime::Error(DuplicateField, title(), "Campo definito più di una volta: " + added->name());
  image::checkName(added->name());
  if (table_->page_)
    addColumn(*added);
  else
    table_->draft_.fields.push_back(added);
}

void TableFields::addColumn(TableField& field) const {
  auto& image = table_->session_->image();
  const auto page = *table_->page_;
  image::Transaction whole(image);
  const auto number = image.addColumn(page, field.column());
  file::PropertyBlock properties;
  field.writeProperties(properties);
  for (const auto& group : properties.groups())
    for (const auto& item : group.items) image.setProperty(page, group.owner, item);
  if (const auto position = field.ordinalPosition()) image.moveColumn(page, field.name(), *position);
  whole.keep();
  field.attach(page, number);
}

void TableFields::remove(std::size_t position) const {
  if (table_->page_) {
    const std::string name = at(position).Name();
    table_->session_->image().dropColumn(*table_->page_, name);
  } else {
    auto& fields = table_->draft_.fields;
    fields.erase(fields.begin() + static_cast<std::ptrdiff_t>(position));
  }
}

/// What a relation keeps on the side of its parent is no index of the collection.
std::vector<std::uint32_t> TableIndexes::numbers() const {
  std::vector<std::uint32_t> numbers;
  for (const auto& index : table_->design().logicalIndexes)
    if (index.side != file::LogicalIndex::Side::Primary) numbers.push_back(index.number);
  return numbers;
}

std::size_t TableIndexes::count() const {
  return table_->page_ ? numbers().size() : table_->draft_.indexes.size();
}

IndexPtr TableIndexes::at(std::size_t position) const {
  if (!table_->page_) return table_->draft_.indexes[position];
  return std::make_shared<Index>(table_->session_, *table_->page_, numbers()[position]);
}

std::optional<std::size_t> TableIndexes::find(std::string_view name) const {
  for (std::size_t i = 0; i < count(); ++i)
    if (file::sameName(at(i)->Name(), name)) return i;
  return std::nullopt;
}

void TableIndexes::append(const IndexPtr& index) const {
  if (table_->page_)
    index->appendTo(*table_->page_);
  else
    table_->draft_.indexes.push_back(index);
}

void TableIndexes::remove(std::size_t position) const {
  if (table_->page_) {
    const std::string name = at(position)->Name();
    table_->session_->image().dropIndex(table_->Name(), name);
  } else {
    auto& indexes = table_->draft_.indexes;
    indexes.erase(indexes.begin() + static_cast<std::ptrdiff_t>(position));
  }
}

}  // namespace jet::dao
