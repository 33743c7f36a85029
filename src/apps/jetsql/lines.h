#pragma once

#include <istream>
#include <string>

#include "runtime/error.h"

namespace jetsql {

/// Where a script's lines come from.
class Lines {
 public:
  enum class Reading { Line, Abandoned, End };

  virtual ~Lines() = default;
  /// Reads a line without its end. `continues` tells that it goes on with a statement. Abandoned: the user
  /// gave up the statement.
  virtual Reading read(std::string& line, bool continues) = 0;
  /// Keeps a statement for the user to come back to.
  virtual void remember(const std::string&) {}
};

class StreamLines : public Lines {
 public:
  explicit StreamLines(std::istream& stream) : stream_(stream) {}
  Reading read(std::string& line, bool) override {
    if (std::getline(stream_, line)) return Reading::Line;
    // Half a script must not pass for a whole one.
    if (stream_.bad()) throw runtime::Error(runtime::DeviceIoError, "jetsql", "Lo script non si può leggere");
    return Reading::End;
  }

 private:
  std::istream& stream_;
};

}  // namespace jetsql
