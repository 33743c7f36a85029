// The phases of an update, as a run calls them.
#pragma once

#include <string>

#include "jet/dao/database.h"
#include "schema/ambiente.h"

/// The phases that bring a target to what its reference says, in the order in which a run calls them. Each
/// writes its changes to the summary; where nothing differs the first four write nothing.
namespace schema {

/// Creates tables and fields that are missing and rebuilds fields that differ. Throws the engine's errors.
void CreaEModificaCampi(const Ambiente& ambiente);
/// Drops the fields that the catalogue lists for it, with the indexes and relations over them. Throws.
void EliminaCampi(const Ambiente& ambiente);
/// Creates indexes that are missing and makes those anew that differ. Throws; 3021 for one without fields.
void AggiornaIndici(const Ambiente& ambiente);
/// The same for relations.
void AggiornaRelazioni(const Ambiente& ambiente);

/// Copies all stored queries of the reference. An error is written to the summary and ends the copy.
void AggiungiQuery(const Ambiente& ambiente);

/// Replaces the contents of the tables that the reference has under the prefix ADD_. A parameter of that
/// whole name that is "0" or Null leaves a table alone. An error ends it without a word.
void SostituisciTabelleADD(const Ambiente& ambiente);
/// Adds the rows of the reference's tables INS_ that no key or rule refuses, in the same way.
void AggiungiTabelleINS(const Ambiente& ambiente);

/// False after any error.
void EsisteQuery(jet::dao::Database& db, const std::string& nome, bool& esiste);
void EsisteTabella(jet::dao::Database& db, const std::string& nome, bool& esiste);

}  // namespace schema
