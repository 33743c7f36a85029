#pragma once

#include <memory>
#include <vector>

#include "jet/dao/recordset/editable_recordset.h"
#include "jet/dao/recordset/positioned_recordset.h"

namespace jet::dao {

/// A dynaset: the keys of its records, collected when it is filled. Each record is read when the cursor comes
/// to it, and each field is changed in the table that it is a column of.
class KeysetRecordset : public EditableRecordset<PositionedRecordset> {
 public:
  /// `plan` was compiled with row keys and has some.
  KeysetRecordset(std::shared_ptr<Session> session, Origin origin, sql::RowStatement plan, Answers answers,
                  bool readOnly);
  void Delete() override;
  RecordsetPtr OpenRecordset() override;
  RecordsetPtr Clone() override;
  void Requery() override;
  void Close() override;

 private:
  /// Shared with the clones. A record deleted here has `Gone` as its first key.
  struct Keys {
    static constexpr std::int64_t Gone = -1;
    std::size_t parts = 1;
    std::int64_t gone = 0;
    std::vector<std::int64_t> rowids;  // `parts` for each record
    std::int64_t count() const { return static_cast<std::int64_t>(rowids.size() / parts); }
    std::int64_t* of(std::int64_t place) { return rowids.data() + static_cast<std::size_t>(place) * parts; }
  };

  KeysetRecordset(const KeysetRecordset& other, std::vector<RowFilter> rowFilters);

  std::int64_t count() const override { return keys_ ? keys_->count() : 0; }
  bool filled(std::int64_t place) const override { return *keys_->of(place) != Keys::Gone; }
  std::int64_t holes() const override { return keys_ ? keys_->gone : 0; }
  void moved() override { leaveEdited(); }
  std::unique_ptr<RecordSearch> makeSearch() override;
  void extendSearch(RecordSearch&) override;
  void fill();
  std::int64_t currentRecord() const override { return requireRecord(); }
  bool readRecord(std::int64_t record) const override;
  void insertRecord() override;
  void changeRecord() override;
  /// The key of the record that a new row of `part` makes.
  void append(std::size_t part, std::int64_t rowid);

  sql::RowStatement plan_;
  Answers answers_;
  std::shared_ptr<Keys> keys_;
  std::int64_t searchCount_ = 0;  // records whose keys the search knows
};

}  // namespace jet::dao
