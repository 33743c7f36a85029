#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "jet/dao/collection.h"
#include "runtime/variant.h"

namespace jet::dao {

/// Where the properties of one object are kept.
class PropertyStore {
 public:
  virtual ~PropertyStore() = default;
  virtual int propertyType(std::string_view name) const = 0;  // DataType
  virtual runtime::Variant propertyValue(std::string_view name) const = 0;
  virtual void setPropertyValue(std::string_view name, const runtime::Variant& value) = 0;
};

/// A property of a TableDef, Field or other object; made by CreateProperty it is the object's once appended.
class Property {
 public:
  /// One that stands in no collection yet.
  Property(std::string name, int type, runtime::Variant value);
  Property(std::shared_ptr<PropertyStore> store, std::string name);

  const std::string& Name() const { return state_->name; }
  int Type() const;  // DataType
  runtime::Variant Value() const;
  /// Error 3421 if it doesn't convert, 3219 where it can't be changed.
  void setValue(const runtime::Variant& value) const;
  /// What Append does: it stands for the stored property from now on.
  void attach(std::shared_ptr<PropertyStore> store) const { state_->store = std::move(store); }
  bool attached() const { return state_->store != nullptr; }

 private:
  struct State {
    std::string name;
    int type = 0;
    runtime::Variant value;
    std::shared_ptr<PropertyStore> store;
  };
  std::shared_ptr<State> state_;
};
/// Its Item raises error 3270 where there is no such property.
using PropertyCollection = Collection<Property>;

}  // namespace jet::dao
