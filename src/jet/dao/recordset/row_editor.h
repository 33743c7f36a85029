#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "jet/dao/recordset/recordset_base.h"

namespace jet::dao {

/// The record that a recordset edits or adds, until Update writes it.
class RowEditor {
 public:
  /// `pages`: the tables of the recordset, by part; `fields` must outlive this.
  RowEditor(std::shared_ptr<Session> session, std::vector<std::uint32_t> pages,
            const std::vector<FieldInfo>& fields);

  EditModeType mode() const { return mode_; }
  void edit();
  /// Gives the fields their default values and auto-numbers.
  void add();
  void cancel();
  /// Error 3020 outside edit and add.
  void requireEditing() const;
  /// What the field has been given; nullptr if nothing.
  const runtime::Variant* value(std::size_t field) const;
  /// Converts the value to the field's type. Error 3020 outside edit and add, 3421, 3163, 3164.
  void set(std::size_t field, const runtime::Variant& value);
  /// Writes what was given into the rows of `key`, all or nothing. Error 3027 where a table has no row.
  void change(const std::int64_t* key);
  /// Writes the new row; gives its part and rowid. Error 3027 if several tables were given values.
  std::pair<std::size_t, std::int64_t> insert();
  void remove(std::size_t part, std::int64_t rowid);

 private:
  struct Edit {
    runtime::Variant value;
    bool given = false;  // not a default
  };
  /// A column of the tables that gets a value of its own accord.
  struct Default {
    std::size_t part = 0;
    std::uint16_t column = 0;
    std::optional<std::size_t> field;  // that shows it
    bool autoNumber = false;
    sql::RowStatement plan;  // yields the value
    image::Statement statement;
    runtime::Variant value;
  };
  std::vector<Default> findDefaults();
  const file::Column& column(std::size_t part, std::uint16_t number) const;
  runtime::Variant converted(std::size_t field, const runtime::Variant& value);
  std::size_t partToInsert() const;
  void changePart(std::size_t part, std::int64_t rowid);
  /// Makes the part's table ready for the change and gives its statement; those of the last one are kept.
  image::Statement& prepared(std::size_t part, const image::RowChange& change, const std::string& sql);

  std::shared_ptr<Session> session_;
  std::vector<std::uint32_t> pages_;
  const std::vector<FieldInfo>& fields_;
  EditModeType mode_ = dbEditNone;
  std::vector<std::optional<Edit>> edits_;          // by field
  image::Prepared<std::vector<Default>> defaults_;  // with the tables ready for new rows
  struct Last {
    std::string sql;
    image::Statement statement;
  };
  image::Prepared<Last> last_;
};

}  // namespace jet::dao
