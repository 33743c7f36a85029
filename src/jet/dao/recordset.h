#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "jet/dao/constants.h"
#include "jet/dao/field.h"

namespace jet::dao {

class Recordset;
using RecordsetPtr = std::shared_ptr<Recordset>;

/// A cursor over rows. Opened by Database or QueryDef, at its first record.
/// Error 3021 where a current record is needed and there is none, 3251 for what its kind doesn't offer, 3420
/// after Close.
///
/// Kinds: a table (records in the order of its Index, or as they lie; all changes are seen at once), a
/// dynaset (the records that were there when it was opened, and those it added itself, at the end; values are
/// read when the cursor comes to a record), a snapshot (a copy) and forward-only (MoveNext alone).
class Recordset {
 public:
  virtual ~Recordset() = default;

  /// The table's name or the text that it was opened with.
  virtual const std::string& Name() const = 0;
  virtual RecordsetType Type() const = 0;

  /// Before the first, behind the last record; both true when there is none.
  virtual bool BOF() const = 0;
  virtual bool atEnd() const = 0;  // EOF of the published vocabulary, which is a macro of the language

  virtual void MoveFirst() = 0;
  virtual void MoveNext() = 0;
  virtual void MovePrevious() = 0;
  virtual void MoveLast() = 0;
  /// Goes on by `rows` records (back where negative), at most to BOF or EOF. 0 reads the record again.
  virtual void Move(std::int64_t rows) = 0;
  /// The same from the record of `start`.
  void Move(std::int64_t rows, const runtime::Bytes& start) { setBookmark(start), Move(rows); }
  /// Table: all records. Otherwise the records come to so far: all of them after MoveLast.
  virtual std::int64_t RecordCount() const = 0;
  /// From 0; -1 without a current record. Error 3001 beyond the last. Not of a table.
  virtual std::int64_t AbsolutePosition() const = 0;
  virtual void setAbsolutePosition(std::int64_t position) = 0;
  double PercentPosition() const;

  /// Marks a record for a return to it; also in a Clone. Error 3159 for one that isn't of this recordset.
  virtual bool Bookmarkable() const = 0;
  virtual runtime::Bytes Bookmark() const = 0;
  virtual void setBookmark(const runtime::Bytes& bookmark) = 0;
  /// The record added or changed last.
  virtual runtime::Bytes LastModified() const = 0;

  /// Goes to a record that fits `criteria`, a condition without WHERE; NoMatch tells that there is none, and
  /// the cursor stays. Error 3077 for syntax, 3070 for an unknown name. Of dynasets and snapshots.
  virtual void FindFirst(const std::string& criteria) = 0;
  virtual void FindNext(const std::string& criteria) = 0;
  virtual void FindPrevious(const std::string& criteria) = 0;
  virtual void FindLast(const std::string& criteria) = 0;
  virtual bool NoMatch() const = 0;

  /// The index that orders the records of a table; the cursor goes to the first. Error 3015 if the table has
  /// none such.
  virtual std::string Index() const = 0;
  virtual void setIndex(const std::string& name) = 0;
  /// Goes to the first record (from the last backwards for < and <=) whose leading index fields stand to
  /// `keys` as `comparison` says: = >= > <= <. Sets NoMatch. Error 3019 without an Index.
  virtual void Seek(std::string_view comparison, std::span<const runtime::Variant> keys) = 0;
  void Seek(std::string_view comparison, std::initializer_list<runtime::Variant> keys) {
    Seek(comparison, std::span(keys.begin(), keys.size()));
  }

  /// What the next OpenRecordset on this recordset keeps, and in which order: a condition without WHERE and a
  /// list without ORDER BY.
  virtual std::string Filter() const = 0;
  virtual void setFilter(const std::string& condition) = 0;
  virtual std::string Sort() const = 0;
  virtual void setSort(const std::string& order) = 0;
  virtual RecordsetPtr OpenRecordset() = 0;
  /// The same records with a cursor of their own, which stands on none.
  virtual RecordsetPtr Clone() = 0;

  /// The collection, or one by position from 0 or by name. Error 3265 if there is none.
  virtual FieldCollection Fields() = 0;
  virtual Field Fields(std::size_t index) = 0;
  virtual Field Fields(std::string_view name) = 0;
  runtime::Variant value(std::string_view name) { return Fields(name).Value(); }
  /// Up to `rows` records from the current one on, by field and then by record; the cursor goes behind them.
  std::vector<std::vector<runtime::Variant>> GetRows(std::size_t rows);

  virtual bool Updatable() const = 0;
  virtual EditModeType EditMode() const = 0;
  /// Error 3027 where the recordset can't be changed, 3251 for a kind that never can.
  virtual void Edit() = 0;
  /// A new record with its default values. A dynaset over several tables takes values for one of them (3027).
  virtual void AddNew() = 0;
  /// Writes what Edit or AddNew began (error 3020 without it). The current record stays what it was.
  virtual void Update() = 0;
  virtual void CancelUpdate() = 0;
  /// The record stays current, deleted (3167), until the next move.
  virtual void Delete() = 0;
  /// Runs the query again; the cursor stands at the first record.
  virtual void Requery() = 0;
  virtual void Close() = 0;
};

}  // namespace jet::dao
