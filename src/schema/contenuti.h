// Reference contents: the tables ADD_ and INS_ of the reference.
#pragma once

#include <string>
#include <vector>

#include "jet/dao/database.h"

namespace schema {

/// What the names of the reference's tables begin with whose rows go to a table of the target.
using Prefisso = const char*;
inline constexpr Prefisso PrefissoAdd = "ADD_", PrefissoIns = "INS_";

/// The names behind the prefix, in catalogue order. Case doesn't matter.
std::vector<std::string> tabelleConPrefisso(jet::dao::Database& riferimento, Prefisso prefisso);

}  // namespace schema
