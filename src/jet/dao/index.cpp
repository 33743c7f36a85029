#include "jet/dao/index.h"

#include "jet/dao/constants.h"
#include "jet/dao/design/part_field.h"
#include "jet/dao/session/session.h"
#include "jet/file/errors.h"
#include "jet/image/row_codec.h"

namespace jet::dao {

/// Index.Fields
class IndexFields : public CollectionSource<Field> {
 public:
  explicit IndexFields(std::shared_ptr<Index> index) : index_(std::move(index)) {}
  const char* title() const override { return source::Fields; }
  std::size_t count() const override { return index_->design().parts.size(); }
  Field at(std::size_t position) const override {
    const auto part = index_->design().parts[position];
    auto field = std::make_shared<PartField>(part.name, "", part.descending ? dbDescending : 0);
    field->freeze();
    return Field(field, 0);
  }
  std::optional<std::size_t> find(std::string_view name) const override {
    const auto parts = index_->design().parts;
    for (std::size_t i = 0; i < parts.size(); ++i)
      if (file::sameName(parts[i].name, name)) return i;
    return std::nullopt;
  }
  void append(const Field& field) const override {
    auto& parts = index_->draft().parts;
    if (find(field.Name()))
      throw runtime::Error(DuplicateField, source::Index, "Campo già presente nell'indice: " + field.Name());
    parts.push_back({field.Name(), (field.Attributes() & dbDescending) != 0});
  }
  void remove(std::size_t position) const override {
    auto& parts = index_->draft().parts;
    parts.erase(parts.begin() + static_cast<std::ptrdiff_t>(position));
  }

 private:
  std::shared_ptr<Index> index_;
};

Index::Index(std::shared_ptr<Session> session, std::string name) : session_(std::move(session)) {
  draft_.name = std::move(name);
}

Index::Index(std::shared_ptr<Session> session, std::uint32_t page, std::uint32_t number)
    : session_(std::move(session)), stored_(Stored{page, number}) {}

const file::LogicalIndex& Index::logical() const {
  for (const auto& index : session_->image().definition(stored_->page).logicalIndexes)
    if (index.number == stored_->number) return index;
  throw errorOf(ObjectInvalid, source::Index, "l'indice non esiste più");
}

Index::Design Index::design() const {
  if (!stored_) return draft_;
  const auto& table = session_->image().definition(stored_->page);
  const auto& index = logical();
  const auto& real = table.realIndexes.at(index.real);
  Design result;
  result.name = index.name;
  result.primary = index.kind == file::LogicalIndex::Kind::Primary;
  result.unique = real.flags & file::RealIndex::Unique;
  result.required = real.flags & file::RealIndex::Required;
  result.ignoreNulls = real.flags & file::RealIndex::IgnoreNulls;
  for (const auto& part : real.columns)
    if (const auto position = table.findNumber(part.column))
      result.parts.push_back({table.columns[*position].name, !part.ascending});
  return result;
}

Index::Design& Index::draft() {
  if (stored_) throw errorOf(InvalidOperation, source::Index, "l'indice fa già parte della tabella");
  return draft_;
}

std::string Index::Name() const {
  return stored_ ? logical().name : draft_.name;
}

void Index::setName(const std::string& name) {
  if (stored_)
    session_->image().renameIndex(session_->image().definition(stored_->page).name, logical().name, name);
  else
    draft_.name = name;
}

void Index::setPrimary(bool primary) {
  draft().primary = primary;
}

void Index::setUnique(bool unique) {
  draft().unique = unique;
}

void Index::setRequired(bool required) {
  draft().required = required;
}

void Index::setIgnoreNulls(bool ignore) {
  draft().ignoreNulls = ignore;
}

bool Index::Foreign() const {
  return stored_ && logical().kind == file::LogicalIndex::Kind::Relation &&
         logical().side == file::LogicalIndex::Side::Foreign;
}

std::int64_t Index::DistinctCount() const {
  if (!stored_) return 0;
  auto& image = session_->image();
  const auto& table = image.definition(stored_->page);
  std::string columns;
  for (const auto& part : table.realIndexes.at(logical().real).columns)
    columns += (columns.empty() ? "" : ", ") + image::columnName(part.column);
  image.prepareToRead(stored_->page, {});
  auto query = image.connection().prepare("SELECT count(*) FROM (SELECT DISTINCT " + columns + " FROM " +
                                          image::tableName(stored_->page) + ")");
  query.step();
  return query.integer(0);
}

FieldCollection Index::Fields() {
  return FieldCollection(std::make_shared<IndexFields>(shared_from_this()));
}

Field Index::CreateField(const std::string& name) const {
  return Field(std::make_shared<PartField>(name), 0);
}

image::IndexDesign Index::designFor(const file::TableDefinition& table) const {
  if (draft_.parts.empty())
    throw runtime::Error(NoFieldDefined, source::Index, "Indice senza campi: " + draft_.name);
  image::IndexDesign result;
  result.name = draft_.name;
  result.primary = draft_.primary;
  result.unique = draft_.unique;
  result.required = draft_.required;
  result.ignoreNulls = draft_.ignoreNulls;
  for (const auto& part : draft_.parts) {
    const auto position = table.find(part.name);
    if (!position)
      throw runtime::Error(ItemNotFound, source::Index, "Campo inesistente nella tabella: " + part.name);
    result.columns.push_back({table.columns[*position].number, !part.descending});
  }
  return result;
}

void Index::appendTo(std::uint32_t page) {
  draft();
  auto& image = session_->image();
  const std::string table = image.definition(page).name;
  image.createIndex(table, designFor(image.definition(page)));
  for (const auto& index : image.definition(page).logicalIndexes)
    if (file::sameName(index.name, draft_.name)) attach(page, index.number);
}

void Index::attach(std::uint32_t page, std::uint32_t number) {
  stored_ = Stored{page, number};
}

}  // namespace jet::dao
