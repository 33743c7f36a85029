#include "jet/dao/recordset/row_reader.h"

#include "jet/dao/values.h"
#include "jet/image/row_codec.h"

namespace jet::dao {

RowReader::RowReader(std::shared_ptr<Session> session, std::vector<std::uint32_t> pages,
                     const std::vector<FieldInfo>& fields)
    : session_(std::move(session)), pages_(std::move(pages)) {
  texts_.assign(pages_.size(), "SELECT rowid");
  std::vector<int> used(pages_.size(), 0);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const auto& field = fields[i];
    if (field.part) {
      texts_[*field.part] += ", " + image::columnName(field.column);
      places_.push_back({field.part, ++used[*field.part], field.type});
    } else {
      places_.push_back({{}, static_cast<int>(i), field.type});
    }
  }
  for (std::size_t i = 0; i < pages_.size(); ++i)
    texts_[i] += " FROM " + image::tableName(pages_[i]) + " WHERE rowid = ?1";
  statements_.resize(pages_.size());
  found_.assign(pages_.size(), false);
}

void RowReader::takeExpressions(const sql::RowStatement& plan, const Answers& answers) {
  expressions_.emplace(Expressions{plan, answers, {}, {}});
  expressions_->last.resize(places_.size());
}

bool RowReader::read(const std::int64_t* key) {
  auto& image = session_->image();
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    found_[i] = false;
    if (key[i] == NoRow) continue;
    image.prepareToRead(pages_[i], {});
    auto& statement = statements_[i];
    if (!statement) statement = image.connection().prepare(texts_[i]);
    statement.reset();
    statement.bind(1, key[i]);
    if (!statement.step()) return false;
    found_[i] = true;
  }
  if (expressions_) readExpressions(key);
  return true;
}

/// A record that no longer fits the query keeps the values that its expressions had.
void RowReader::readExpressions(const std::int64_t* key) {
  auto& [plan, answers, statement, last] = *expressions_;
  if (!statement) {
    std::string names, condition;
    for (std::size_t i = 0; i < plan.columns.size(); ++i) names += (i ? ", v" : "v") + std::to_string(i);
    for (std::size_t i = 0; i < pages_.size(); ++i) {
      const std::string name = "k" + std::to_string(i);
      names += ", " + name;
      condition += (i ? " AND " : " WHERE ") + ("ifnull(" + name + ", 0) = ?") +
                   std::to_string(plan.parameters.size() + i + 1);
    }
    auto wrapped = plan;
    wrapped.sql = "WITH q(" + names + ") AS (" + plan.sql + ") SELECT * FROM q" + condition;
    statement = session_->runner().prepare(wrapped, answers);
  }
  statement.reset();
  for (std::size_t i = 0; i < pages_.size(); ++i)
    statement.bind(static_cast<int>(plan.parameters.size() + i + 1), key[i]);
  if (statement.step()) {
    for (std::size_t i = 0; i < places_.size(); ++i)
      if (!places_[i].part) last[i] = fromImage(statement, places_[i].column, places_[i].type);
  }
  statement.reset();
}

runtime::Variant RowReader::value(std::size_t field) const {
  const auto& place = places_[field];
  if (place.part) {
    if (!found_[*place.part]) return runtime::Null{};
    return fromImage(statements_[*place.part], place.column, place.type);
  }
  if (expressions_ && expressions_->last[field]) return *expressions_->last[field];
  return runtime::Null{};
}

void RowReader::release() {
  for (auto& statement : statements_) statement.reset();
}

}  // namespace jet::dao
