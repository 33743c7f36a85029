#pragma once

#include "jet/file/errors.h"

namespace jet::sql {

/// An error of a statement's text with its place: `position` counts characters of the statement from 0.
class SyntaxError : public runtime::Error {
 public:
  SyntaxError(int number, std::string description, std::size_t position)
      : Error(number, source::Database, std::move(description)), position_(position) {}
  /// With the description of `number`; `detail` names the word or object concerned.
  SyntaxError(ErrorNumber number, const std::string& detail, std::size_t position);
  std::size_t position() const { return position_; }

 private:
  std::size_t position_;
};

}  // namespace jet::sql
