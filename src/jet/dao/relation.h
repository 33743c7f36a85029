#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "jet/dao/field.h"
#include "jet/image/relation_design.h"

namespace jet::dao {

class Session;

/// A relation: rows of ForeignTable point at rows of Table. A design of its own until it is appended; nothing
/// of it can be changed then (error 3219).
class Relation : public std::enable_shared_from_this<Relation> {
 public:
  /// One that is in no database yet.
  explicit Relation(image::RelationDesign design) : design_(std::move(design)) {}
  static std::shared_ptr<Relation> stored(image::RelationDesign design);

  const std::string& Name() const { return design_.name; }
  void setName(const std::string& name) { draft().name = name; }
  const std::string& Table() const { return design_.table; }
  void setTable(const std::string& table) { draft().table = table; }
  const std::string& ForeignTable() const { return design_.foreignTable; }
  void setForeignTable(const std::string& table) { draft().foreignTable = table; }
  /// RelationAttribute bits
  int Attributes() const { return static_cast<int>(design_.attributes); }
  void setAttributes(int attributes) { draft().attributes = static_cast<std::uint32_t>(attributes); }

  /// Its pairs: Name is the field of Table, ForeignName that of ForeignTable.
  FieldCollection Fields();
  Field Fields(std::size_t position) { return Fields().Item(position); }
  Field Fields(std::string_view name) { return Fields().Item(name); }
  /// A pair that isn't part of the relation until it is appended to Fields.
  Field CreateField(const std::string& name = "", const std::string& foreignName = "") const;

  /// What Append does. Errors of Image::createRelation.
  void appendTo(Session& session);

 private:
  friend class RelationFields;
  image::RelationDesign& draft();

  image::RelationDesign design_;
  bool stored_ = false;
};
using RelationPtr = std::shared_ptr<Relation>;
using RelationCollection = Collection<RelationPtr>;

}  // namespace jet::dao
