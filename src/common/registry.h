#pragma once

#include <string>

#include "platform/registry.h"
#include "runtime/variant.h"

namespace common {

/// Value `nomeValore` of the key `chiave` (the default value: ""), by its type: texts without their closing
/// NULs and with their variables as they stand, Bytes, Long. `predefinito` where there is no such key. Error
/// 1001 for a value of another type, and for a key without the value.
runtime::Variant LeggiRegistro(platform::RegistryRoot radice, const std::string& chiave,
                               const std::string& nomeValore, const runtime::Variant& predefinito = {});

/// Path of an installed program ("ordcommec.exe") as the table of App Paths tells it; empty if it isn't
/// there. Error 1001 for an entry without a path.
std::string LeggiAppPath(const std::string& nomeExe);

}  // namespace common
