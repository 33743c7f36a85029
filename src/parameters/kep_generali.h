#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "jet/dao/database.h"
#include "runtime/variant.h"

/// The name and value table of every database of the suite. An error shows a warning box and is returned as a
/// Long with its number, so callers ask for the kind of the result before its value.
namespace parameters {

/// Boolean: whether table KepGenerali has a row `nome`; or the Long of an error.
runtime::Variant EsisteInKepGenerali(jet::dao::Database& db, const std::string& nome);

/// The Valore of the row as stored, also Null; Empty if there is no row; or the Long of an error.
runtime::Variant LeggiKepGenerali(jet::dao::Database& db, const std::string& nome);

/// Writes the row of `nome`, made if there is none; without `note` that of a row stays. 0, or the number of
/// an error, and then nothing is written.
std::int32_t ScriviKepGenerali(jet::dao::Database& db, const std::string& nome,
                               const runtime::Variant& valore,
                               const std::optional<runtime::Variant>& note = {});

}  // namespace parameters
