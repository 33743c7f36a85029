#include "jet/dao/relation.h"

#include "jet/dao/design/part_field.h"
#include "jet/dao/session/session.h"
#include "jet/file/errors.h"

namespace jet::dao {

/// Relation.Fields
class RelationFields : public CollectionSource<Field> {
 public:
  explicit RelationFields(std::shared_ptr<Relation> relation) : relation_(std::move(relation)) {}
  const char* title() const override { return source::Fields; }
  std::size_t count() const override { return relation_->design_.pairs.size(); }
  Field at(std::size_t position) const override {
    const auto& pair = relation_->design_.pairs[position];
    auto field = std::make_shared<PartField>(pair.column, pair.foreignColumn);
    field->freeze();
    return Field(field, 0);
  }
  std::optional<std::size_t> find(std::string_view name) const override {
    const auto& pairs = relation_->design_.pairs;
    for (std::size_t i = 0; i < pairs.size(); ++i)
      if (file::sameName(pairs[i].column, name)) return i;
    return std::nullopt;
  }
  void append(const Field& field) const override {
    relation_->draft().pairs.push_back({field.Name(), field.ForeignName()});
  }
  void remove(std::size_t position) const override {
    auto& pairs = relation_->draft().pairs;
    pairs.erase(pairs.begin() + static_cast<std::ptrdiff_t>(position));
  }

 private:
  std::shared_ptr<Relation> relation_;
};

std::shared_ptr<Relation> Relation::stored(image::RelationDesign design) {
  auto relation = std::make_shared<Relation>(std::move(design));
  relation->stored_ = true;
  return relation;
}

image::RelationDesign& Relation::draft() {
  if (stored_) throw errorOf(InvalidOperation, source::Relation, "la relazione fa già parte del database");
  return design_;
}

FieldCollection Relation::Fields() {
  return FieldCollection(std::make_shared<RelationFields>(shared_from_this()));
}

Field Relation::CreateField(const std::string& name, const std::string& foreignName) const {
  return Field(std::make_shared<PartField>(name, foreignName), 0);
}

void Relation::appendTo(Session& session) {
  session.image().createRelation(draft());
  stored_ = true;
}

}  // namespace jet::dao
