#include "jet/dao/design/object_properties.h"

#include <functional>

#include "jet/dao/constants.h"
#include "jet/dao/table_def.h"
#include "jet/dao/values.h"
#include "jet/file/errors.h"
#include "jet/image/property_values.h"

namespace jet::dao {

namespace {

/// A property that every object of a kind has.
struct BuiltIn {
  std::string name;
  int type;
  std::function<runtime::Variant()> value;
  std::function<void(const runtime::Variant&)> setValue;  // empty: it can't be changed
};

class ObjectProperties : public CollectionSource<Property>,
                         public PropertyStore,
                         public std::enable_shared_from_this<ObjectProperties> {
 public:
  /// `column` gives the name of the column now; empty for the object itself.
  ObjectProperties(std::shared_ptr<Session> session, std::uint32_t id, std::function<std::string()> column,
                   std::vector<BuiltIn> builtIn)
      : session_(std::move(session)), id_(id), column_(std::move(column)), builtIn_(std::move(builtIn)) {}

  const char* title() const override { return source::Properties; }
  int missingError() const override { return PropertyNotFound; }
  std::size_t count() const override { return names().size(); }
  Property at(std::size_t position) const override {
    return Property(std::const_pointer_cast<ObjectProperties>(shared_from_this()), names()[position]);
  }
  std::optional<std::size_t> find(std::string_view name) const override {
    const auto all = names();
    for (std::size_t i = 0; i < all.size(); ++i)
      if (file::sameName(all[i], name)) return i;
    return std::nullopt;
  }
  void append(const Property& property) const override {
    if (find(property.Name())) throw errorOf(PropertyExists, source::Properties, property.Name());
    const int type = property.Type();
    const auto column = type == dbDecimal ? file::ColumnType::Numeric : static_cast<file::ColumnType>(type);
    session_->image().setProperty(id_, column_(),
                                  image::propertyItem(property.Name(), column, property.Value()));
    property.attach(std::const_pointer_cast<ObjectProperties>(shared_from_this()));
  }
  void remove(std::size_t position) const override {
    const auto name = names()[position];
    if (builtIn(name)) throw errorOf(BuiltInProperty, source::Properties, name);
    session_->image().removeProperty(id_, column_(), name);
  }

  int propertyType(std::string_view name) const override {
    const auto* own = builtIn(name);
    return own ? own->type : dataType(item(name).type);
  }
  runtime::Variant propertyValue(std::string_view name) const override {
    const auto* own = builtIn(name);
    return own ? own->value() : image::propertyValue(item(name));
  }
  void setPropertyValue(std::string_view name, const runtime::Variant& value) override {
    if (const auto* own = builtIn(name)) {
      if (!own->setValue)
        throw runtime::Error(InvalidOperation, source::Properties, "Proprietà di sola lettura: " + own->name);
      return own->setValue(value);
    }
    auto changed = image::propertyItem(std::string(name), item(name).type, value);
    changed.flag = item(name).flag;
    session_->image().setProperty(id_, column_(), changed);
  }

 private:
  const BuiltIn* builtIn(std::string_view name) const {
    for (const auto& each : builtIn_)
      if (file::sameName(each.name, name)) return &each;
    return nullptr;
  }
  const file::PropertyItem& item(std::string_view name) const {
    const auto* found = session_->image().properties(id_).find(column_(), name);
    if (!found) throw errorOf(PropertyNotFound, source::Properties, std::string(name));
    return *found;
  }
  std::vector<std::string> names() const {
    std::vector<std::string> result;
    for (const auto& each : builtIn_) result.push_back(each.name);
    const auto owner = column_();
    for (const auto& group : session_->image().properties(id_).groups()) {
      if (!file::sameName(group.owner, owner)) continue;
      for (const auto& each : group.items)
        if (!builtIn(each.name)) result.push_back(each.name);
    }
    return result;
  }

  std::shared_ptr<Session> session_;
  std::uint32_t id_;
  std::function<std::string()> column_;
  std::vector<BuiltIn> builtIn_;
};

/// The items of a field that its Properties show.
struct FieldProperty {
  const char* name;
  int type;
  FieldItem item;
};
constexpr FieldProperty FieldProperties[] = {
    {"Name", dbText, FieldItem::Name},
    {"Type", dbInteger, FieldItem::Type},
    {"Size", dbLong, FieldItem::Size},
    {"Attributes", dbLong, FieldItem::Attributes},
    {"OrdinalPosition", dbInteger, FieldItem::OrdinalPosition},
    {"Required", dbBoolean, FieldItem::Required},
    {"AllowZeroLength", dbBoolean, FieldItem::AllowZeroLength},
    {"DefaultValue", dbMemo, FieldItem::DefaultValue},
    {"ValidationRule", dbMemo, FieldItem::ValidationRule},
    {"ValidationText", dbText, FieldItem::ValidationText},
    {"SourceTable", dbText, FieldItem::SourceTable},
    {"SourceField", dbText, FieldItem::SourceField},
};

}  // namespace

Property::Property(std::string name, int type, runtime::Variant value)
    : state_(std::make_shared<State>(State{std::move(name), type, std::move(value), nullptr})) {}

Property::Property(std::shared_ptr<PropertyStore> store, std::string name)
    : state_(std::make_shared<State>(State{std::move(name), 0, {}, std::move(store)})) {}

int Property::Type() const {
  return state_->store ? state_->store->propertyType(state_->name) : state_->type;
}

runtime::Variant Property::Value() const {
  return state_->store ? state_->store->propertyValue(state_->name) : state_->value;
}

void Property::setValue(const runtime::Variant& value) const {
  if (state_->store)
    state_->store->setPropertyValue(state_->name, value);
  else
    state_->value = value;
}

PropertyCollection Field::Properties() const {
  return owner_->fieldProperties(index_);
}

Property Field::CreateProperty(const std::string& name, int type, const runtime::Variant& value) const {
  return Property(name, type, value);
}

PropertyCollection columnProperties(std::shared_ptr<Session> session, std::uint32_t page,
                                    std::uint16_t column, Field field) {
  std::vector<BuiltIn> builtIn;
  for (const auto& [name, type, item] : FieldProperties)
    builtIn.push_back({name, type, [field, which = item] { return field.owner()->fieldItem(0, which); },
                       [field, which = item](const runtime::Variant& value) {
                         field.owner()->setFieldItem(0, which, value);
                       }});
  auto columnName = [session, page, column] {
    const auto& table = session->image().definition(page);
    const auto position = table.findNumber(column);
    return position ? table.columns[*position].name : std::string();
  };
  return PropertyCollection(
      std::make_shared<ObjectProperties>(std::move(session), page, columnName, std::move(builtIn)));
}

PropertyCollection tableProperties(std::shared_ptr<Session> session, std::uint32_t page,
                                   std::shared_ptr<const TableDef> table) {
  std::vector<BuiltIn> builtIn = {
      {"Name", dbText, [table] { return runtime::Variant(table->Name()); }, {}},
      {"Attributes", dbLong, [table] { return runtime::Variant(table->Attributes()); }, {}},
      {"Connect", dbText, [table] { return runtime::Variant(table->Connect()); }, {}},
      {"SourceTableName", dbText, [table] { return runtime::Variant(table->SourceTableName()); }, {}},
      {"RecordCount",
       dbLong,
       [table] { return runtime::Variant(static_cast<std::int32_t>(table->RecordCount())); },
       {}},
  };
  return PropertyCollection(std::make_shared<ObjectProperties>(
      std::move(session), page, [] { return std::string(); }, std::move(builtIn)));
}

}  // namespace jet::dao
