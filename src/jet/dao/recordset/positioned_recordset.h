#pragma once

#include <memory>
#include <string>
#include <vector>

#include "jet/dao/recordset/record_search.h"
#include "jet/dao/recordset/recordset_base.h"

namespace jet::dao {

/// A recordset whose records have places 0..n-1 that can be gone to directly. A record that the recordset
/// deletes leaves its place empty, so that the others keep theirs.
class PositionedRecordset : public RecordsetBase {
 public:
  PositionedRecordset(std::shared_ptr<Session> session, Origin origin, std::vector<FieldInfo> fields);

  bool BOF() const override { return requireOpen(), cursor_ == Cursor::Before || cursor_ == Cursor::None; }
  bool atEnd() const override { return requireOpen(), cursor_ == Cursor::Behind || cursor_ == Cursor::None; }
  void MoveFirst() override;
  void MoveNext() override;
  void MovePrevious() override;
  void MoveLast() override;
  void Move(std::int64_t rows) override;
  std::int64_t RecordCount() const override;
  std::int64_t AbsolutePosition() const override;
  void setAbsolutePosition(std::int64_t position) override;
  bool Bookmarkable() const override { return requireOpen(), true; }
  runtime::Bytes Bookmark() const override;
  void setBookmark(const runtime::Bytes& bookmark) override;
  runtime::Bytes LastModified() const override;
  void FindFirst(const std::string& criteria) override { find(criteria, -1, true); }
  void FindNext(const std::string& criteria) override { find(criteria, here(), true); }
  void FindPrevious(const std::string& criteria) override { find(criteria, here(), false); }
  void FindLast(const std::string& criteria) override { find(criteria, count(), false); }
  std::string Filter() const override { return requireOpen(), filter_; }
  void setFilter(const std::string& condition) override { requireOpen(), filter_ = condition; }
  std::string Sort() const override { return requireOpen(), sort_; }
  void setSort(const std::string& order) override { requireOpen(), sort_ = order; }

 protected:
  /// A Filter and a Sort that an OpenRecordset on a recordset has put on top of the query.
  struct RowFilter {
    std::string filter, sort;
  };

  virtual std::int64_t count() const = 0;  // of places
  virtual bool filled(std::int64_t) const { return true; }
  virtual std::int64_t holes() const { return 0; }  // places that are empty
  /// The cursor has come to another record, or to none.
  virtual void moved() = 0;
  virtual std::unique_ptr<RecordSearch> makeSearch() = 0;
  /// Brings the search up to date with records added since.
  virtual void extendSearch(RecordSearch&) {}

  /// Stands at the first record of a newly filled recordset.
  void restart();
  /// Error 3021 without a current record, 3167 if it was deleted here.
  std::int64_t requireRecord() const;
  bool onRecord() const { return cursor_ == Cursor::On; }
  void deleted();  // the current record was
  void touched(std::int64_t place) { lastModified_ = place; }
  /// The places that remain, in their order, of a newly filled recordset.
  std::vector<std::int64_t> filteredBy(const RowFilter& rowFilter);
  std::vector<RowFilter> rowFilters() const;
  void closeSearch() { search_.reset(); }
  /// A clone finds the same records by the same bookmarks, and stands on none.
  void becomeCloneOf(const PositionedRecordset& other);

  std::vector<RowFilter> rowFilters_;

 private:
  enum class Cursor { None, Before, On, Deleted, Behind };

  void goTo(std::int64_t place);
  void leave(Cursor cursor);
  std::int64_t next(std::int64_t place) const;
  std::int64_t previous(std::int64_t place) const;
  std::int64_t here() const;
  std::int64_t liveCount() const { return count() - holes(); }
  void find(const std::string& criteria, std::int64_t from, bool forward);
  RecordSearch& search();
  runtime::Bytes bookmarkOf(std::int64_t place) const;

  Cursor cursor_ = Cursor::None;
  std::int64_t place_ = 0;          // while on a record, or on a deleted one
  std::int64_t visited_ = 0;        // places come to
  std::int64_t opened_ = 0;         // places that there were at the start
  std::int64_t lastModified_ = -1;  // a place
  std::uint64_t family_;            // of this recordset and its clones
  std::string filter_, sort_;
  image::Prepared<std::unique_ptr<RecordSearch>> search_;
};

}  // namespace jet::dao
