// What keeps a run from beginning; nothing is written before these are passed.
#pragma once

#include <optional>
#include <string>

#include "runtime/error.h"

namespace console {

/// True if a file is at the path, even one that another program holds: the operator is asked about that
/// later.
bool databasePresente(const std::string& percorso);

/// True, and a box says so, if a marker file above a folder "db..." of the path forbids the update.
bool aggiornamentoVietato(const std::string& percorso);

/// True, and a box says so, if the path leads, by whatever name, to the reference database.
bool sceltoRiferimento(const std::string& percorso, const std::string& percorsoRiferimento);

/// The error by which the engine tells that a file is none of its databases; nothing if it is one, or if that
/// can't be seen now.
std::optional<runtime::Error> nonDatabase(const std::string& percorso);

}  // namespace console
