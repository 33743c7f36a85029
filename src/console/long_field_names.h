// Names of fields that later versions of the suite have shortened.
#pragma once

#include <optional>
#include <string>

#include "runtime/error.h"
#include "schema/ambiente.h"

namespace console {

/// Gives the fields of the target's table whose names are too long their short ones; where the short one is
/// there, deletes the long. Returns the error that stopped it, which the summary doesn't show.
std::optional<runtime::Error> RinominaCampiLunghi(const schema::Ambiente& ambiente,
                                                  const std::string& tabella);

}  // namespace console
