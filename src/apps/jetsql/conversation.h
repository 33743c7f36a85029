#pragma once

#include <iosfwd>

namespace jetsql {

class Lines;
struct Request;

/// Runs what a user types, each statement as a transaction of its own: it is saved as soon as it has run, and
/// one that fails changes nothing and is told on `errors` with its place; the session goes on. Returns the
/// exit status: 1 where the database can't be opened, else 0.
int runConversation(const Request& request, Lines& lines, std::ostream& rows, std::ostream& errors);

}  // namespace jetsql
