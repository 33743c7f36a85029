// The rebuilding of a field.
#pragma once

#include <string>

#include "jet/dao/database.h"

namespace schema {

/// A field for `tabella` as a row of CampiTabella describes it, not appended yet. The digits of a Decimal
/// stand in the columns Precisione and Scala, which a catalogue need not have.
jet::dao::Field nuovoCampo(jet::dao::TableDef& tabella, jet::dao::Recordset& riga);
/// The same for one that takes the place of `vecchio`: it keeps its position and, of a Decimal, its digits.
jet::dao::Field campoSostitutivo(jet::dao::TableDef& tabella, jet::dao::Recordset& riga,
                                 const jet::dao::Field& vecchio);

/// Puts a field as `riga` describes it in the place of the one that has its name, with its data, and the
/// indexes and relations over it back. The values come over as they are: what the new field requires holds
/// for those written later. Throws the engine's errors, such as that of a value that doesn't convert; 3421
/// where a Decimal or what becomes one doesn't fit whole.
void ricostruisciCampo(jet::dao::Database& db, jet::dao::TableDef& tabella, jet::dao::Recordset& riga);

/// True if a pair of the relation, which must be one of `tabella`, has the field's name on either side.
bool riguarda(jet::dao::Relation& relazione, const std::string& tabella, const std::string& campo);
/// True if the field is part of the index.
bool riguarda(jet::dao::Index& indice, const std::string& campo);

}  // namespace schema
