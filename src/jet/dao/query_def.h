#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "jet/dao/collection.h"
#include "jet/dao/constants.h"
#include "jet/dao/recordset.h"
#include "runtime/variant.h"

namespace jet::dao {

/// What a query asks for, and the answer it was given.
class ParameterOwner {
 public:
  virtual ~ParameterOwner() = default;
  virtual std::string parameterName(std::size_t index) = 0;
  virtual int parameterType(std::size_t index) = 0;
  virtual runtime::Variant parameterValue(std::size_t index) = 0;
  virtual void setParameterValue(std::size_t index, const runtime::Variant& value) = 0;
};

/// A parameter of a QueryDef. Valid as long as the query keeps its text.
class Parameter {
 public:
  Parameter(std::shared_ptr<ParameterOwner> owner, std::size_t index)
      : owner_(std::move(owner)), index_(index) {}
  std::string Name() const { return owner_->parameterName(index_); }
  int Type() const { return owner_->parameterType(index_); }  // DataType; dbText where not declared
  /// Empty until it is set.
  runtime::Variant Value() const { return owner_->parameterValue(index_); }
  void setValue(const runtime::Variant& value) const { owner_->setParameterValue(index_, value); }

 private:
  std::shared_ptr<ParameterOwner> owner_;
  std::size_t index_;
};
using ParameterCollection = Collection<Parameter>;

class QueryDef;
using QueryDefPtr = std::shared_ptr<QueryDef>;
using QueryDefCollection = Collection<QueryDefPtr>;

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
  /// In the order in which they are declared or appear. Error 3265 if the query has none such.
  virtual ParameterCollection Parameters() = 0;
  Parameter Parameters(std::size_t position) { return Parameters().Item(position); }
  Parameter Parameters(std::string_view name) { return Parameters().Item(name); }
  /// Error 3061 while a parameter is not answered.
  virtual RecordsetPtr OpenRecordset(RecordsetType type = dbOpenDynaset, int options = 0) = 0;
  /// As Database::Execute.
  virtual void Execute(int options = 0) = 0;
  virtual std::int64_t RecordsAffected() const = 0;
  virtual void Close() = 0;
};

}  // namespace jet::dao
