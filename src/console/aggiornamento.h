// The run of the update, apart from whoever asks for it.
#pragma once

#include <functional>
#include <string>

#include "console/corsa.h"
#include "schema/ambiente.h"

namespace schema {
struct Piano;
}

namespace console {

class PendingError;

/// What a run is to update.
struct Scelta {
  std::string database;      // with backslashes; empty: none was chosen
  std::string applicazione;  // as table Norvi writes it; empty: not known
  bool aMano = false;        // picked as a file: an application that isn't known is asked for
  std::string proposta;      // offered then; empty: what the database says of itself
  bool sorvegliata = true;   // a marker file above the database can forbid the run
};

/// One run of the update, from its choice to its end. It is executed or planned, once; corsa() then tells how
/// it ended. While it lasts the suite's procedures find its application and its open target in the global
/// texts (common/globale.h).
class Aggiornamento {
 public:
  /// `ambiente` brings the reference and the summary; application, target and memory for errors are the run's
  /// own. `salva` keeps the summary: called once, at the end of a run that has begun.
  Aggiornamento(
      Scelta scelta, schema::Ambiente ambiente, std::function<void()> salva = [] {});
  ~Aggiornamento();
  Aggiornamento(const Aggiornamento&) = delete;
  Aggiornamento& operator=(const Aggiornamento&) = delete;

  /// Updates the database from its backup to its compaction. Errors of the run end up in corsa() and in the
  /// summary. Lets events run throughout.
  void esegui();
  /// Tells what the phases over the target's structure and contents would change, and writes nothing
  /// anywhere; corsa() then tells how a run would end, and why.
  void prevedi(schema::Piano& piano);

  const Corsa& corsa() const { return corsa_; }
  /// What the phases are given: the target is there while it is open.
  const schema::Ambiente& ambiente() const { return ambiente_; }

 private:
  // Before it begins.
  bool ammesso();  // then the outcome is SenzaNome, until the application is known
  bool scegliApplicazione();
  bool pronto();
  void rifiuta();
  void impostaApplicazione(const std::string& nome);
  void impostaDestinazione(jet::dao::DatabasePtr db);

  // Up to the commit.
  bool portaAlCommit();
  void copiaDiSicurezza();
  bool transazioneRichiesta();
  bool rinominaCampi(const schema::Ambiente& ambiente);
  void contaTabelle();
  void aggiungiQuery();
  void aggiornaTabelle();
  void chiudiDestinazione();
  void annulla(const PendingError& errore);
  bool prevediFasi(schema::Piano& piano);

  // After the commit.
  void compattaEControlla();
  bool tabelleComplete();
  void ripristina(PendingError& errori);
  void concludi();

  // The summary.
  void riga(const std::string& testo);     // on a new line
  void seguito(const std::string& testo);  // on the same line
  void intesta();
  void scriviErrore(int numero, const std::string& descrizione);
  void trattieni(const runtime::Error& errore);  // one that was passed over

  Scelta scelta_;
  schema::Ambiente ambiente_;
  std::function<void()> salva_;
  Corsa corsa_;
};

}  // namespace console
