// Edit, AddNew and Update: the values given so far, and the statements that write them.
#include "jet/dao/recordset/row_editor.h"

#include <algorithm>

#include "jet/dao/values.h"
#include "jet/file/errors.h"
#include "jet/image/row_codec.h"

namespace jet::dao {

namespace {

[[noreturn]] void notInEdit() {
  throw errorOf(UpdateWithoutEdit, source::Recordset);
}

[[noreturn]] void ambiguous() {
  throw errorOf(ReadOnly, source::Recordset, "il record appartiene a più tabelle");
}

}  // namespace

RowEditor::RowEditor(std::shared_ptr<Session> session, std::vector<std::uint32_t> pages,
                     const std::vector<FieldInfo>& fields)
    : session_(std::move(session)), pages_(std::move(pages)), fields_(fields) {}

const file::Column& RowEditor::column(std::size_t part, std::uint16_t number) const {
  const auto& table = session_->image().definition(pages_[part]);
  return table.columns[*table.findNumber(number)];
}

void RowEditor::edit() {
  edits_.assign(fields_.size(), std::nullopt);
  mode_ = dbEditInProgress;
}

void RowEditor::add() {
  auto& image = session_->image();
  if (!defaults_.get(image.generation())) {
    for (const auto page : pages_) image.prepareToChange(page, {}, {image::RowChange::Kind::Insert, {}});
    const auto ready = image.generation();
    defaults_.set(ready, findDefaults());
  }
  edits_.assign(fields_.size(), std::nullopt);
  for (auto& each : *defaults_.last()) {
    each.statement.reset();
    if (each.statement.step()) each.value = fromImage(each.statement, 0, each.plan.columns[0].type);
    each.statement.reset();
    if (each.field) edits_[*each.field] = Edit{converted(*each.field, each.value), false};
  }
  // A Boolean is never null.
  for (std::size_t i = 0; i < fields_.size(); ++i)
    if (fields_[i].type == sql::Type::Boolean && !edits_[i]) edits_[i] = Edit{false, false};
  mode_ = dbEditAdd;
}

std::vector<RowEditor::Default> RowEditor::findDefaults() {
  auto& runner = session_->runner();
  std::vector<Default> found;
  for (std::size_t part = 0; part < pages_.size(); ++part) {
    const auto& table = session_->image().definition(pages_[part]);
    for (const auto& column : table.columns) {
      Default each;
      each.part = part;
      each.column = column.number;
      each.autoNumber = column.autoNumber();
      if (each.autoNumber) {
        each.plan.sql = "SELECT jet_auto_number(" + std::to_string(table.page) + ", NULL)";
        each.plan.columns.push_back({column.name, sql::Type::Long, {}, {}, {}});
      } else {
        auto expression = runner.defaultOf(table, column);
        expression.erase(0, expression.find_first_not_of("= "));
        if (expression.empty()) continue;
        each.plan = runner.selection("SELECT (" + expression + ")", {});
      }
      for (std::size_t i = 0; i < fields_.size(); ++i)
        if (fields_[i].part == part && fields_[i].column == column.number) each.field = i;
      each.statement = runner.prepare(each.plan, {});
      found.push_back(std::move(each));
    }
  }
  return found;
}

void RowEditor::requireEditing() const {
  if (mode_ == dbEditNone) notInEdit();
}

void RowEditor::cancel() {
  requireEditing();
  mode_ = dbEditNone;
}

const runtime::Variant* RowEditor::value(std::size_t field) const {
  return mode_ != dbEditNone && edits_[field] ? &edits_[field]->value : nullptr;
}

runtime::Variant RowEditor::converted(std::size_t field, const runtime::Variant& value) {
  const auto& info = fields_[field];
  return asStored(value, column(*info.part, info.column), info.sourceTable);
}

void RowEditor::set(std::size_t field, const runtime::Variant& value) {
  requireEditing();
  const auto& info = fields_[field];
  const bool counter = info.attributes & dbAutoIncrField;
  if (!info.part || (counter && mode_ == dbEditInProgress))
    throw runtime::Error(FieldNotUpdatable, source::Recordset,
                         "Impossibile aggiornare il campo " + info.name);
  edits_[field] = Edit{converted(field, value), true};
}

image::Statement& RowEditor::prepared(std::size_t part, const image::RowChange& change,
                                      const std::string& sql) {
  auto& image = session_->image();
  auto* last = last_.get(image.generation());
  if (!last || last->sql != sql) {
    image.prepareToChange(pages_[part], {}, change);
    auto statement = image.connection().prepare(sql);
    last = &last_.set(image.generation(), {sql, std::move(statement)});
  }
  last->statement.reset();
  return last->statement;
}

void RowEditor::change(const std::int64_t* key) {
  std::vector<std::size_t> parts;
  for (std::size_t i = 0; i < fields_.size(); ++i)
    if (edits_[i] && std::find(parts.begin(), parts.end(), *fields_[i].part) == parts.end())
      parts.push_back(*fields_[i].part);
  for (const auto part : parts)
    if (key[part] == 0) ambiguous();
  if (parts.size() == 1) {
    changePart(parts[0], key[parts[0]]);
  } else if (!parts.empty()) {
    image::Transaction whole(session_->image());
    for (const auto part : parts) changePart(part, key[part]);
    whole.keep();
  }
  mode_ = dbEditNone;
}

void RowEditor::changePart(std::size_t part, std::int64_t rowid) {
  auto& image = session_->image();
  std::string assignments;
  std::vector<std::uint16_t> assigned;
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    if (!edits_[i] || fields_[i].part != part) continue;
    assigned.push_back(fields_[i].column);
    assignments += (assignments.empty() ? "" : ", ") + image::columnName(fields_[i].column) + " = ?" +
                   std::to_string(assigned.size() + 1);
  }
  auto& statement =
      prepared(part, {image::RowChange::Kind::Update, assigned},
               "UPDATE " + image::tableName(pages_[part]) + " SET " + assignments + " WHERE rowid = ?1");
  statement.bind(1, rowid);
  int parameter = 1;
  for (std::size_t i = 0; i < fields_.size(); ++i)
    if (edits_[i] && fields_[i].part == part)
      bindField(statement, ++parameter, edits_[i]->value, column(part, fields_[i].column),
                fields_[i].sourceTable);
  statement.run();
  image.markChanged(pages_[part]);
}

std::size_t RowEditor::partToInsert() const {
  if (pages_.size() == 1) return 0;
  std::optional<std::size_t> part;
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    if (!edits_[i] || !edits_[i]->given) continue;
    if (part && part != fields_[i].part) ambiguous();
    part = fields_[i].part;
  }
  if (!part) ambiguous();
  return *part;
}

std::pair<std::size_t, std::int64_t> RowEditor::insert() {
  auto& image = session_->image();
  const std::size_t part = partToInsert();
  std::vector<std::pair<std::uint16_t, const runtime::Variant*>> values;
  for (std::size_t i = 0; i < fields_.size(); ++i)
    if (edits_[i] && fields_[i].part == part) values.emplace_back(fields_[i].column, &edits_[i]->value);
  for (const auto& each : *defaults_.last())
    if (each.part == part && !each.field) values.emplace_back(each.column, &each.value);

  std::string names, places;
  for (const auto& [number, value] : values) {
    names += (names.empty() ? "" : ", ") + image::columnName(number);
    places += places.empty() ? "?" : ", ?";
  }
  const std::string into = "INSERT INTO " + image::tableName(pages_[part]);
  auto& statement =
      prepared(part, {image::RowChange::Kind::Insert, {}},
               values.empty() ? into + " DEFAULT VALUES" : into + "(" + names + ") VALUES (" + places + ")");
  const std::string table = image.definition(pages_[part]).name;
  int parameter = 0;
  for (const auto& [number, value] : values)
    bindField(statement, ++parameter, *value, column(part, number), table);
  statement.run();
  image.markChanged(pages_[part]);
  mode_ = dbEditNone;
  return {part, image.connection().lastInsertedRow()};
}

void RowEditor::remove(std::size_t part, std::int64_t rowid) {
  auto& image = session_->image();
  auto& statement = prepared(part, {image::RowChange::Kind::Delete, {}},
                             "DELETE FROM " + image::tableName(pages_[part]) + " WHERE rowid = ?1");
  statement.bind(1, rowid);
  statement.run();
  image.markChanged(pages_[part]);
}

}  // namespace jet::dao
