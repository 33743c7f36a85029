// Copies of a database beside it, and the names that they get.
#pragma once

#include <string>

#include "runtime/variant.h"

namespace console {

/// The part of a path up to and with its last backslash, and the part behind it; empty for what is not a
/// text.
std::string EstraiCartella(const runtime::Variant& percorso);
std::string EstraiNomeFile(const runtime::Variant& percorso);

/// The present time as the names of copies carry it: "yyyymmddhhnnss".
std::string oraPerNomi();

/// Copies `percorso` beside itself under `nome`, `ora` ("yyyymmddhhnnss") and ".mdb", and returns that path.
/// While another file has the name it waits for the next second. Throws platform::DiskError.
std::string copiaConOra(const std::string& percorso, const std::string& nome, std::string ora);

}  // namespace console
