#pragma once

#include <string>

/// References and targets for the benches of the reconciliation. Paths with backslashes; a file that is there
/// is made anew.
namespace bench {

/// A target with so many tables of so many fields, two indexes each and a relation from table to table, some
/// thousand rows in each, and the reference that it equals.
void makeEqualPair(const std::string& target, const std::string& reference, int tables, int fields);
/// A reference that says how one field of a table must be.
void makeFieldReference(const std::string& path, const std::string& table, const std::string& field, int type,
                        int size);

}  // namespace bench
