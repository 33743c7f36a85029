#include "jet/dao/part_field.h"

#include "jet/dao/property.h"

namespace jet::dao {

namespace {

[[noreturn]] void invalidOperation() {
  throw runtime::Error(3219, "DAO.Field", "Operazione non valida per un campo di indice o relazione");
}

}  // namespace

runtime::Variant PartField::fieldItem(std::size_t, FieldItem item) const {
  switch (item) {
    case FieldItem::Name:
      return name_;
    case FieldItem::ForeignName:
      return foreignName_;
    case FieldItem::Attributes:
      return attributes_;
    default:
      invalidOperation();
  }
}

void PartField::setFieldItem(std::size_t, FieldItem item, const runtime::Variant& value) {
  if (frozen_) invalidOperation();
  switch (item) {
    case FieldItem::Name:
      name_ = value.toText();
      return;
    case FieldItem::ForeignName:
      foreignName_ = value.toText();
      return;
    case FieldItem::Attributes:
      attributes_ = value.toLong();
      return;
    default:
      invalidOperation();
  }
}

runtime::Variant PartField::fieldValue(std::size_t) const {
  invalidOperation();
}

void PartField::setFieldValue(std::size_t, const runtime::Variant&) {
  invalidOperation();
}

PropertyCollection PartField::fieldProperties(std::size_t) {
  invalidOperation();
}

}  // namespace jet::dao
