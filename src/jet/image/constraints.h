#pragma once

#include <functional>

#include "jet/image/auto_numbers.h"
#include "jet/image/catalogue.h"
#include "jet/image/foreign_keys.h"

namespace jet::image {

/// The condition in SQLite SQL, about the row NEW of a trigger, under which a row keeps a validation rule of
/// a column, or of its table where that is nullptr. Throws where the rule makes no sense.
using RuleCompiler =
    std::function<std::string(const file::TableDefinition&, const file::Column*, const std::string& rule)>;

/// What the rows of a table must keep once they are changed, watched by triggers of the image.
class Constraints {
 public:
  Constraints(Tables& tables, Rows& rows, Catalogue& catalogue, AutoNumbers& autoNumbers);

  /// Validation rules are watched once there is somebody who can read them.
  void setRuleCompiler(RuleCompiler compiler) { compileRule_ = std::move(compiler); }

  /// Makes `t<page>` ready for `change`: unique and required indexes, Required, AllowZeroLength
  /// and validation rules, auto-numbers and relations are watched (3022, 3058, 3314 to 3317, 3200, 3201). Of
  /// the tables that relations lead to only those are loaded that the change can meet. Error 3027 in a
  /// read-only database and for a link, 3111 for a system table; that of a rule that can't be read.
  void prepareToChange(std::uint32_t page, const std::vector<std::uint16_t>& compared,
                       const RowChange& change);
  /// Notes that rows of the table have changed, and those of other tables that cascades of the last statement
  /// changed.
  void markChanged(std::uint32_t page);

 private:
  /// A change that a table was made ready for, for the same statement.
  struct Readied {
    std::uint32_t page;
    RowChange change;
    bool operator==(const Readied&) const = default;
  };
  void prepare(Table& table, const std::vector<std::uint16_t>& compared, const RowChange& change,
               std::vector<Readied>& done);
  void addTriggers(Table& table);

  Tables& tables_;
  Rows& rows_;
  Catalogue& catalogue_;
  AutoNumbers& autoNumbers_;
  ForeignKeys foreignKeys_;
  RuleCompiler compileRule_;
};

}  // namespace jet::image
