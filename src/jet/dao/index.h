#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "jet/dao/field.h"
#include "jet/image/design.h"

namespace jet::dao {

class Session;

/// An index of a table: a design of its own until it is appended, then the table's; only its name can be
/// changed then (error 3219 otherwise).
class Index : public std::enable_shared_from_this<Index> {
 public:
  Index(std::shared_ptr<Session> session, std::string name);
  /// The logical index of this number of the table at `page`.
  Index(std::shared_ptr<Session> session, std::uint32_t page, std::uint32_t number);

  std::string Name() const;
  /// Error 3284 if the table has the name.
  void setName(const std::string& name);
  /// The primary key: unique, and no field of it may be Null.
  bool Primary() const { return design().primary; }
  void setPrimary(bool primary);
  bool Unique() const { return design().unique; }
  void setUnique(bool unique);
  /// No field of it may be Null.
  bool Required() const { return design().required; }
  void setRequired(bool required);
  bool IgnoreNulls() const { return design().ignoreNulls; }
  void setIgnoreNulls(bool ignore);
  /// Kept for the suite's calls: the engine has no clustered indexes.
  bool Clustered() const { return clustered_; }
  void setClustered(bool clustered) { clustered_ = clustered; }
  /// True if a relation made it, on the side of the rows that point.
  bool Foreign() const;
  /// Different keys among the rows.
  std::int64_t DistinctCount() const;

  /// Its fields in order; each has a Name and, with dbDescending, Attributes.
  FieldCollection Fields();
  Field Fields(std::size_t position) { return Fields().Item(position); }
  Field Fields(std::string_view name) { return Fields().Item(name); }
  /// A field that isn't part of the index until it is appended to Fields.
  Field CreateField(const std::string& name = "") const;

  /// What Append does: adds the index to the table. Error 3264 without fields, 3265 for a field that the
  /// table doesn't have; errors of Image::createIndex.
  void appendTo(std::uint32_t page);
  /// The design over the columns of a table that is being made.
  image::IndexDesign designFor(const file::TableDefinition& table) const;
  void attach(std::uint32_t page, std::uint32_t number);

 private:
  friend class IndexFields;
  struct Part {
    std::string name;
    bool descending = false;
  };
  struct Design {
    std::string name;
    bool primary = false, unique = false, required = false, ignoreNulls = false;
    std::vector<Part> parts;
  };
  struct Stored {
    std::uint32_t page, number;
  };
  Design design() const;
  Design& draft();
  const file::LogicalIndex& logical() const;

  std::shared_ptr<Session> session_;
  Design draft_;
  std::optional<Stored> stored_;
  bool clustered_ = false;
};
using IndexPtr = std::shared_ptr<Index>;
using IndexCollection = Collection<IndexPtr>;

}  // namespace jet::dao
