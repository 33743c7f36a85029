#pragma once

#include <span>

namespace bench {

/// A statement whose time is compared with that of its translation in the shell of SQLite.
struct TimedStatement {
  const char* name;
  const char* sql;
  /// Runs so often, its one parameter being 1, 2, 3, ...; 0: once, without a parameter.
  long repetitions = 0;
};

/// What they need beside the large table of the office, made in a transaction that is never saved.
std::span<const char* const> preparations();
std::span<const TimedStatement> timedStatements();

}  // namespace bench
