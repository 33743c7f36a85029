#include "jet/dao/design/part_field.h"

#include "jet/dao/property.h"
#include "jet/file/errors.h"

namespace jet::dao {

namespace {

[[noreturn]] void notForParts() {
  throw runtime::Error(InvalidOperation, source::Field,
                       "Operazione non valida per un campo di indice o relazione");
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
      notForParts();
  }
}

void PartField::setFieldItem(std::size_t, FieldItem item, const runtime::Variant& value) {
  if (frozen_) notForParts();
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
      notForParts();
  }
}

runtime::Variant PartField::fieldValue(std::size_t) const {
  notForParts();
}

void PartField::setFieldValue(std::size_t, const runtime::Variant&) {
  notForParts();
}

PropertyCollection PartField::fieldProperties(std::size_t) {
  notForParts();
}

}  // namespace jet::dao
