#pragma once

#include <cstdint>
#include <string>

#include "jet/dao/database.h"
#include "runtime/variant.h"

namespace common {

/// True if the table has the field; any error is false. A `db` that is nothing becomes, also for the caller,
/// the database that the suite has open.
bool EsisteCampo(const std::string& tabella, const std::string& campo, jet::dao::DatabasePtr& db);

/// Deletes a table. Errors of TableDefs.Delete, 3265 if there is none.
void EliminaTabella(jet::dao::Database& db, const std::string& nome);

/// Begins a transaction on the default workspace; `flag` becomes 1.
void IniziaTrans(std::int16_t& flag);
/// Commits it if `flag` is 1, which becomes 0; otherwise does nothing.
void ChiudiTrans(std::int16_t& flag);

/// The state code of an event: its reason for the pairs ("IS", "SO") and ("CA", "RA"), otherwise its kind. A
/// Null kind without such a reason is error 94.
std::string CodiceEventoEffettivo(const runtime::Variant& evento, const runtime::Variant& motivo);

}  // namespace common
