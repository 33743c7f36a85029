#pragma once

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "runtime/variant.h"

namespace jetsql {

/// Where the rows of a result go.
class Output {
 public:
  virtual ~Output() = default;
  /// Begins a result.
  virtual void columns(const std::vector<std::string>& names) = 0;
  /// One value for each column of the current result.
  virtual void row(const std::vector<runtime::Variant>& values) = 0;
  /// A text that is no table, line feeds included.
  virtual void text(const std::string& text) = 0;
};

/// Tab-separated lines under a line with the names; an empty line between two results.
std::unique_ptr<Output> tabbedOutput(std::ostream& stream);
/// One JSON object a line. A number of more than 15 digits is given as a text, since readers would round it.
std::unique_ptr<Output> jsonOutput(std::ostream& stream);

}  // namespace jetsql
