// Errors as the language of the suite passes them over.
#pragma once

#include <optional>
#include <string>

#include "runtime/error.h"

namespace console {

/// Errors that are passed over and tested by hand. It keeps the last one: like the language's Err, a later
/// success doesn't clear it, so an error asked for late may be an early one.
class PendingError {
 public:
  /// Does `work`; an error ends it there and becomes the pending one.
  template <typename Work>
  void attempt(const Work& work) {
    try {
      work();
    } catch (const runtime::Error& error) {
      last_ = error;
    }
  }

  const std::optional<runtime::Error>& error() const { return last_; }
  bool pending() const { return last_.has_value(); }
  /// Of the pending error; 0 and empty if there is none.
  int number() const { return last_ ? last_->number() : 0; }
  std::string description() const { return last_ ? last_->description() : std::string(); }

 private:
  std::optional<runtime::Error> last_;
};

}  // namespace console
