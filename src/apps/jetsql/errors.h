#pragma once

#include <iosfwd>

#include "apps/jetsql/script.h"

namespace runtime {
class Error;
}

namespace jetsql {

/// Tells an error on `stream`: its line of the script where `piece` has one, number and description; an error
/// of the statement's text with the line of the statement and a caret under the place.
void tellError(std::ostream& stream, const runtime::Error& error, const ScriptPiece& piece);

}  // namespace jetsql
