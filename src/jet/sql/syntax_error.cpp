// The error of a statement's text, with its place.
#include "jet/sql/syntax_error.h"

#include "runtime/letters.h"

namespace jet::sql {

namespace {

/// As much of a long detail as tells which it is.
std::string shortened(const std::string& detail) {
  constexpr std::size_t most = 60;
  if (detail.size() <= most) return detail;
  return detail.substr(0, runtime::utf8Prefix(std::string_view(detail).substr(0, most))) + "...";
}

}  // namespace

SyntaxError::SyntaxError(ErrorNumber number, const std::string& detail, std::size_t position)
    : SyntaxError(static_cast<int>(number),
                  errorOf(number, source::Database, shortened(detail)).description(), position) {}

}  // namespace jet::sql
