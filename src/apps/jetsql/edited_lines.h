#pragma once

#include <memory>
#include <string>

#include "apps/jetsql/lines.h"

namespace jetsql {

/// Lines that the user types at a terminal, with the usual editing keys and a history of statements. Ctrl-C
/// gives up the statement, Ctrl-D on an empty line ends. `historyFile`, as the system writes paths, keeps the
/// last statements from one session to the next; where it can't be read or written, nothing is kept.
std::unique_ptr<Lines> editedLines(const std::string& historyFile);

/// True if a user sits at standard input and output.
bool atTerminal();

}  // namespace jetsql
