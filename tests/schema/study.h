#pragma once

#include <string>
#include <vector>

#include "console/office.h"

/// A target in small and a reference for it, the update of one by the other, and what came of it.
namespace study {

using Statements = std::vector<std::string>;

/// Rows of the catalogue, as statements.
struct Field {
  std::string type = "4";  // Tipo
  int size = 0;
  std::string defaultValue = "";  // as SQL writes it; empty: Null
  bool required = false, update = false;
  int attributes = 0, position = 0;
  std::string norvo = "Tutti";
  bool zeroLength = false;
};
std::string field(const std::string& table, const std::string& name, const Field& row = {});
/// The columns of the catalogue that not every one has, made behind all rows.
Statements digitColumns();
/// What stands there for a field.
std::string digits(const std::string& table, const std::string& name, int precision, int scale);
std::string droppedField(const std::string& table, const std::string& name);
/// `flags`: letters P (primary), U (unique), I (ignores Nulls). `fields`: names, with '-' in front where
/// descending.
Statements index(const std::string& table, const std::string& name, const std::string& flags,
                 const Statements& fields);
/// `pairs`: "field=foreign field"
Statements relation(const std::string& name, const std::string& table, const std::string& foreign,
                    const Statements& pairs, int attributes = 0);

/// All in one.
Statements operator+(Statements a, const Statements& b);
Statements operator+(Statements a, const std::string& b);

/// Tables beyond those that every target has, one a line, with fields, indexes, rows; then relations; then
/// queries.
std::string described(const std::string& path);

/// One update of the target.
struct Update {
  int status = 0;
  std::string structure;  // what the summary says of fields, indexes and relations
  std::string contents;   // and of queries and reference tables
  std::string error;      // the line of its error
  std::string errors;     // standard error
};

class Study {
 public:
  Study(const Statements& reference, const Statements& target);
  Update update(const std::string& application = "collgeometri");
  /// What --plan prints, with the status in front.
  std::string plan(const std::string& application = "collgeometri");
  std::string bytes() const;
  /// What a strict checker of such files says against the target, but for Nulls that a later rule found
  /// there; empty where it is not at hand.
  std::string faults() const;

  office::Office office;
};

}  // namespace study
