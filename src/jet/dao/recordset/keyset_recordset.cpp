// Dynasets: keys of records, and rows read and changed by them.
#include "jet/dao/recordset/keyset_recordset.h"

#include <algorithm>

#include "jet/dao/values.h"
#include "jet/file/errors.h"
#include "jet/image/row_codec.h"

namespace jet::dao {

namespace {

std::vector<std::uint32_t> keyPages(const sql::RowStatement& plan) {
  std::vector<std::uint32_t> pages;
  for (std::size_t i = 0; i < plan.rowKeys; ++i) pages.push_back(plan.tables[i].page);
  return pages;
}

bool hasExpressions(const std::vector<FieldInfo>& fields) {
  return std::any_of(fields.begin(), fields.end(), [](const FieldInfo& field) { return !field.part; });
}

}  // namespace

KeysetRecordset::KeysetRecordset(std::shared_ptr<Session> session, Origin origin, sql::RowStatement plan,
                                 Answers answers, bool readOnly)
    : EditableRecordset(session, std::move(origin), resultFields(plan, session->runner()), keyPages(plan),
                        readOnly),
      plan_(std::move(plan)),
      answers_(std::move(answers)) {
  if (hasExpressions(fields_)) reader_.takeExpressions(plan_, answers_);
  fill();
}

KeysetRecordset::KeysetRecordset(const KeysetRecordset& other, std::vector<RowFilter> rowFilters)
    : EditableRecordset(other.session_, other.origin_, other.fields_, keyPages(other.plan_), other.readOnly_),
      plan_(other.plan_),
      answers_(other.answers_) {
  if (hasExpressions(fields_)) reader_.takeExpressions(plan_, answers_);
  rowFilters_ = std::move(rowFilters);
}

void KeysetRecordset::fill() {
  auto rows = session_->runner().prepare(plan_, answers_);
  const int first = static_cast<int>(plan_.columns.size()), parts = static_cast<int>(plan_.rowKeys);
  auto keys = std::make_shared<Keys>();
  keys->parts = plan_.rowKeys;
  while (rows.step())
    for (int i = 0; i < parts; ++i) keys->rowids.push_back(rows.integer(first + i));
  rows = {};
  keys_ = std::move(keys);
  restart();
  for (const auto& rowFilter : rowFilters_) {
    auto kept = std::make_shared<Keys>();
    kept->parts = keys_->parts;
    for (const auto place : filteredBy(rowFilter))
      kept->rowids.insert(kept->rowids.end(), keys_->of(place), keys_->of(place) + keys_->parts);
    keys_ = std::move(kept);
    restart();
  }
}

bool KeysetRecordset::readRecord(std::int64_t record) const {
  return filled(record) && reader_.read(keys_->of(record));
}

void KeysetRecordset::insertRecord() {
  const auto [part, rowid] = editor_.insert();
  append(part, rowid);
  touched(count() - 1);
}

void KeysetRecordset::changeRecord() {
  const auto place = requireRecord();
  editor_.change(keys_->of(place));
  touched(place);
}

void KeysetRecordset::append(std::size_t part, std::int64_t rowid) {
  std::vector<std::int64_t> key(keys_->parts, NoRow);
  key[part] = rowid;
  if (keys_->parts > 1) {
    // The rows of the other tables are those that the query now finds for it.
    auto rows = session_->runner().prepare(plan_, answers_);
    const int first = static_cast<int>(plan_.columns.size());
    while (rows.step()) {
      if (rows.integer(first + static_cast<int>(part)) != rowid) continue;
      for (std::size_t i = 0; i < key.size(); ++i) key[i] = rows.integer(first + static_cast<int>(i));
      break;
    }
  }
  keys_->rowids.insert(keys_->rowids.end(), key.begin(), key.end());
}

void KeysetRecordset::Delete() {
  requireChangeable();
  fetch();
  if (keys_->parts > 1)
    throw runtime::Error(ReadOnly, source::Recordset,
                         "Impossibile eliminare: il record appartiene a più tabelle");
  reader_.release();
  auto* key = keys_->of(requireRecord());
  editor_.remove(0, *key);
  *key = Keys::Gone;
  ++keys_->gone;
  deleted();
}

std::unique_ptr<RecordSearch> KeysetRecordset::makeSearch() {
  auto search = std::make_unique<RecordSearch>(session_, fields_);
  searchCount_ = 0;
  std::string keyColumns = "place INTEGER PRIMARY KEY", from = search->scratch() + " AS k";
  for (std::size_t i = 0; i < keys_->parts; ++i) {
    const std::string part = std::to_string(i);
    keyColumns += ", k" + part;
    from += (keys_->parts > 1 ? " LEFT JOIN main." : " JOIN main.") + image::tableName(reader_.pages()[i]) +
            " AS a" + part + " ON a" + part + ".rowid = k.k" + part;
  }
  std::vector<std::string> columns;
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    const auto& field = fields_[i];
    if (field.part) {
      columns.push_back("a" + std::to_string(*field.part) + "." + image::columnName(field.column));
    } else {
      columns.push_back("k.v" + std::to_string(i));
      keyColumns += ", v" + std::to_string(i);
    }
  }
  search->makeScratch(keyColumns);
  search->show(columns, "k.place", from);
  return search;
}

void KeysetRecordset::extendSearch(RecordSearch& search) {
  for (const auto page : reader_.pages()) session_->image().prepareToRead(page, {});
  if (searchCount_ == count()) return;
  const auto& connection = session_->image().connection();
  std::string values = "?";
  for (std::size_t i = 0; i < keys_->parts; ++i) values += ", ?";
  for (const auto& field : fields_)
    if (!field.part) values += ", ?";
  auto insert = connection.prepare("INSERT INTO " + search.scratch() + " VALUES (" + values + ")");
  for (; searchCount_ < count(); ++searchCount_) {
    auto* key = keys_->of(searchCount_);
    int parameter = 0;
    insert.bind(++parameter, searchCount_);
    for (std::size_t i = 0; i < keys_->parts; ++i) insert.bind(++parameter, key[i]);
    if (hasExpressions(fields_)) {
      const bool there = filled(searchCount_) && reader_.read(key);
      for (std::size_t i = 0; i < fields_.size(); ++i)
        if (!fields_[i].part)
          bindValue(insert, ++parameter, there ? reader_.value(i) : runtime::Variant(runtime::Null{}),
                    fields_[i].type);
      fetched_ = false;
    }
    insert.run();
  }
}

RecordsetPtr KeysetRecordset::OpenRecordset() {
  requireOpen();
  auto opened = std::shared_ptr<KeysetRecordset>(new KeysetRecordset(*this, rowFilters()));
  opened->fill();
  return opened;
}

RecordsetPtr KeysetRecordset::Clone() {
  requireOpen();
  auto clone = std::shared_ptr<KeysetRecordset>(new KeysetRecordset(*this, rowFilters_));
  clone->keys_ = keys_;
  clone->becomeCloneOf(*this);
  return clone;
}

void KeysetRecordset::Requery() {
  requireOpen();
  fill();
}

void KeysetRecordset::Close() {
  closeSearch();
  reader_.release();
  open_ = false;
}

}  // namespace jet::dao
