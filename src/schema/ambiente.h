// What the phases of an update are given to work with, and the questions they ask of it.
#pragma once

#include <functional>
#include <string>

#include "jet/dao/database.h"
#include "runtime/error.h"
#include "runtime/variant.h"

namespace schema {

/// What a text of the summary tells.
enum class Voce {
  Modifica,  // on a new line: a change begins
  Seguito,   // on the same line: how it went
  Termine,   // on a new line: a change told before has ended
  Passo,     // on a new line: where the run stands
  Errore,    // on a new line: of an error that the run passes over
};

/// What a run gives to the phases: its application, its two databases, its summary and its memory for errors.
struct Ambiente {
  std::string applicazione;  // as table Norvi writes it
  jet::dao::DatabasePtr riferimento;
  jet::dao::DatabasePtr destinazione;
  std::string percorsoRiferimento;  // with backslashes
  std::function<void(const std::string& testo, Voce voce)> scrivi;
  std::function<void(const runtime::Error& errore)> trattieni;  // one that a phase has passed over
};

/// The target's parameter as stored; Empty if there is none, the Long of an error, which is held back.
runtime::Variant parametro(const Ambiente& ambiente, const std::string& nome);

/// True for PROTOCOLLO and TELLAROPEC, the applications that have no members.
bool applicazioneSenzaIscritti(const Ambiente& ambiente);
/// True if the target's parameter DataWeb is above 0.
bool haPagineWeb(const Ambiente& ambiente);
/// True for the tables of the web pages in a database that has none: that of the applications without members
/// and one whose parameter DataWeb isn't above 0.
bool tabellaWebEsclusa(const Ambiente& ambiente, const std::string& tabella);

}  // namespace schema
