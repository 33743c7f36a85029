#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "jet/dao/constants.h"
#include "jet/dao/recordset.h"
#include "runtime/variant.h"

namespace jet::dao {

class QueryDef;
using QueryDefPtr = std::shared_ptr<QueryDef>;

/// A query with parameters, temporary unless it has a name. A stored one is as the database keeps it at the
/// moment; error 3420 once it is deleted.
class QueryDef {
 public:
  virtual ~QueryDef() = default;
  virtual std::string Name() const = 0;  // empty: temporary
  /// Renames a stored query. Error 3012 if the name is taken, 3219 for a temporary one.
  virtual void setName(const std::string& name) = 0;
  virtual int Type() const = 0;  // QueryDefType
  /// Null for a temporary query.
  virtual runtime::Variant DateCreated() const = 0;
  virtual runtime::Variant LastUpdated() const = 0;
  virtual std::string SQL() const = 0;
  /// A stored query is rewritten in place. Error 3075 and kin for syntax, for a stored query alone; tables
  /// need not exist.
  virtual void setSQL(const std::string& sql) = 0;
  /// Answers a parameter by name or by position from 0. Error 3265 if the query has none such.
  virtual void setParameter(std::string_view name, const runtime::Variant& value) = 0;
  virtual void setParameter(std::size_t index, const runtime::Variant& value) = 0;
  /// Error 3061 while a parameter is not answered.
  virtual RecordsetPtr OpenRecordset(RecordsetType type = dbOpenDynaset) = 0;
  virtual void Execute(int options = 0) = 0;
  virtual std::int64_t RecordsAffected() const = 0;
  virtual void Close() = 0;
};

}  // namespace jet::dao
