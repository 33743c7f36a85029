#pragma once

#include <string>

#include "jet/dao/field.h"

namespace jet::dao {

/// A field of an index or of a relation: names, and nothing else.
class PartField : public FieldOwner {
 public:
  explicit PartField(std::string name, std::string foreignName = {}, int attributes = 0)
      : name_(std::move(name)), foreignName_(std::move(foreignName)), attributes_(attributes) {}

  runtime::Variant fieldItem(std::size_t, FieldItem item) const override;
  void setFieldItem(std::size_t, FieldItem item, const runtime::Variant& value) override;
  runtime::Variant fieldValue(std::size_t) const override;
  void setFieldValue(std::size_t, const runtime::Variant&) override;
  PropertyCollection fieldProperties(std::size_t) override;

  /// It belongs to an index or relation now and keeps what it says.
  void freeze() { frozen_ = true; }

 private:
  std::string name_, foreignName_;
  int attributes_ = 0;
  bool frozen_ = false;
};

}  // namespace jet::dao
