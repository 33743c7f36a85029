// The counts of the control tables, by which a compacted file is judged.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "schema/ambiente.h"

namespace console {

/// The number of the table's records; -1 if it can't be told, also without a database.
std::int32_t ContaRecords(const jet::dao::DatabasePtr& db, const std::string& tabella);

/// Counts the records of the target's table again. Returns what is missing, which the summary tells too;
/// nothing if there are as many as before.
std::optional<std::string> ControllaRecords(const schema::Ambiente& ambiente, const std::string& tabella,
                                            std::int32_t attesi);

}  // namespace console
