#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "jet/dao/constants.h"
#include "jet/dao/field.h"

namespace jet::dao {

class Recordset;
using RecordsetPtr = std::shared_ptr<Recordset>;

/// A cursor over rows. Opened by Database or QueryDef, at its first record.
/// Error 3021 where a current record is needed and there is none, 3420 after Close.
class Recordset {
 public:
  virtual ~Recordset() = default;

  /// Before the first, behind the last record; both true when there is none.
  virtual bool BOF() const = 0;
  virtual bool atEnd() const = 0;  // EOF of the published vocabulary, which is a macro of the language

  virtual void MoveFirst() = 0;
  virtual void MoveNext() = 0;
  virtual void MovePrevious() = 0;
  virtual void MoveLast() = 0;
  virtual std::int64_t RecordCount() const = 0;

  virtual std::size_t fieldCount() const = 0;
  /// By position from 0, or by name. Error 3265 if there is none.
  virtual Field Fields(std::size_t index) = 0;
  virtual Field Fields(std::string_view name) = 0;
  runtime::Variant value(std::string_view name) { return Fields(name).Value(); }

  /// Error 3027 where the recordset can't be changed, 3251 for a type that never can.
  virtual void Edit() = 0;
  virtual void AddNew() = 0;
  virtual void Update() = 0;
  virtual void CancelUpdate() = 0;
  /// The record stays current, deleted, until the next move.
  virtual void Delete() = 0;
  /// Runs the query again; the cursor stands at the first record.
  virtual void Requery() = 0;
  virtual void Close() = 0;
};

}  // namespace jet::dao
