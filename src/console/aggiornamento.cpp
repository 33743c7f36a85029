// The straight line of a run, from its guards to the commit.
#include "console/aggiornamento.h"

#include <utility>

#include "common/globale.h"
#include "console/copies.h"
#include "console/duplicates.h"
#include "console/guards.h"
#include "console/long_field_names.h"
#include "console/pending_error.h"
#include "console/questions.h"
#include "console/record_counts.h"
#include "controls/desktop.h"
#include "jet/dao/engine.h"
#include "parameters/kep_generali.h"
#include "platform/clock.h"
#include "schema/fasi.h"

namespace console {

Aggiornamento::Aggiornamento(Scelta scelta, schema::Ambiente ambiente, std::function<void()> salva)
    : scelta_(std::move(scelta)),
      ambiente_(std::move(ambiente)),
      salva_(std::move(salva)),
      corsa_(scelta_.database) {
  impostaApplicazione(scelta_.applicazione);
  ambiente_.trattieni = [this](const runtime::Error& errore) { trattieni(errore); };
}

Aggiornamento::~Aggiornamento() {
  impostaDestinazione(nullptr);
}

void Aggiornamento::impostaApplicazione(const std::string& nome) {
  ambiente_.applicazione = nome;
  common::NomeApplicazione = nome;
}

void Aggiornamento::impostaDestinazione(jet::dao::DatabasePtr db) {
  common::DatabaseAperto = db;
  ambiente_.destinazione = std::move(db);
}

void Aggiornamento::esegui() {
  if (!ammesso()) return rifiuta();
  PendingError errore;
  bool salvato = false;
  errore.attempt([&] { salvato = pronto() && portaAlCommit(); });
  if (salvato) return compattaEControlla();
  if (errore.pending() || corsa_.cominciata()) annulla(errore);
}

bool Aggiornamento::ammesso() {
  if (!databasePresente(corsa_.database)) return false;
  corsa_.esito = Esito::SenzaNome;
  if (scelta_.sorvegliata && aggiornamentoVietato(corsa_.database)) {
    corsa_.esito = Esito::Vietata;
  } else if (sceltoRiferimento(corsa_.database, ambiente_.percorsoRiferimento)) {
    corsa_.esito = Esito::Riferimento;
  } else if ((corsa_.causa = nonDatabase(corsa_.database))) {
    corsa_.esito = Esito::NonDatabase;
  }
  return corsa_.esito == Esito::SenzaNome;
}

void Aggiornamento::rifiuta() {
  if (corsa_.esito == Esito::Vietata) controls::desktop().endProgram();
  if (corsa_.esito != Esito::NonDatabase) return;
  intesta();
  scriviErrore(corsa_.causa->number(), corsa_.causa->description());
  riga("\r\nAggiornamento annullato!");
  riga("");
}

bool Aggiornamento::scegliApplicazione() {
  if (ambiente_.applicazione.empty() && scelta_.aMano) {
    impostaApplicazione(ChiediApplicazione(corsa_.database, scelta_.proposta));
    if (ambiente_.applicazione.empty()) return false;
  }
  common::ApplicazioneCorrente = ambiente_.applicazione;
  return true;
}

bool Aggiornamento::pronto() {
  if (!scegliApplicazione()) return false;
  controls::desktop().doEvents();
  corsa_.esito = Esito::ApertoAltrove;
  return VerificaDatabaseChiuso(corsa_.database);
}

bool Aggiornamento::portaAlCommit() {
  const auto ws = jet::dao::DBEngine::Workspaces(0);
  corsa_.esito = Esito::Fallita;  // until it ended otherwise
  copiaDiSicurezza();
  corsa_.databaseAperto = true;
  impostaDestinazione(ws->OpenDatabase(corsa_.database, true));
  corsa_.usaTransazione = transazioneRichiesta();
  // Before the transaction: what this deletes stays deleted even if the run is rolled back.
  EliminaComuniDuplicati(ambiente_);
  if (corsa_.usaTransazione) ws->BeginTrans();
  if (!rinominaCampi(ambiente_)) return false;
  contaTabelle();
  schema::CreaEModificaCampi(ambiente_);
  schema::EliminaCampi(ambiente_);
  schema::AggiornaIndici(ambiente_);
  schema::AggiornaRelazioni(ambiente_);
  aggiungiQuery();
  aggiornaTabelle();
  // The migrations ("Modifica dati...") have their place here.
  chiudiDestinazione();
  // The commit saves the closed database.
  if (corsa_.usaTransazione) ws->CommitTrans(0);
  // The descriptions of tables and fields have theirs here.
  return true;
}

void Aggiornamento::copiaDiSicurezza() {
  controls::desktop().setMousePointer(controls::MousePointer::Hourglass);
  intesta();
  riga("Copia di sicurezza in corso...");
  corsa_.backup = copiaConOra(corsa_.database, "Backup", corsa_.inizio);
  seguito("fatto.");
}

bool Aggiornamento::transazioneRichiesta() {
  const runtime::Variant esiste = parameters::EsisteInKepGenerali(*ambiente_.destinazione, "UsaTransazione");
  if (esiste.kind() != runtime::Variant::Kind::Boolean) {
    trattieni({esiste.toLong(), "", "Parametro UsaTransazione non leggibile"});
    return true;
  }
  if (!esiste.toBoolean()) return true;
  const runtime::Variant valore = schema::parametro(ambiente_, "UsaTransazione");
  return !valore.isText() || valore.toText() != "0";
}

/// False if it can't be done; the run then ends with the error kept as its cause, and shown to nobody.
bool Aggiornamento::rinominaCampi(const schema::Ambiente& ambiente) {
  if (schema::applicazioneSenzaIscritti(ambiente)) return true;
  const auto rinominata = [&](const char* tabella) {
    const auto errore = RinominaCampiLunghi(ambiente, tabella);
    if (errore) corsa_.causa = errore;
    return !errore;
  };
  return rinominata("ragioniere") && (!schema::haPagineWeb(ambiente) || rinominata("DataWebAnagrafica"));
}

void Aggiornamento::contaTabelle() {
  ambiente_.destinazione->TableDefs().Refresh();
  for (std::size_t tabella = 0; tabella < TabelleControllo.size(); ++tabella) {
    corsa_.conteggi[tabella] = ContaRecords(ambiente_.destinazione, TabelleControllo[tabella]);
    if (corsa_.conteggi[tabella] == -1)
      riga("Errore nel calcolo records della tabella " + std::string(TabelleControllo[tabella]) + "!");
  }
}

void Aggiornamento::aggiungiQuery() {
  riga("");
  riga("Aggiungo le query...");
  schema::AggiungiQuery(ambiente_);
  seguito("fatto!");
}

void Aggiornamento::aggiornaTabelle() {
  riga("");
  riga("Aggiornamento tabelle...");
  schema::SostituisciTabelleADD(ambiente_);
  schema::AggiungiTabelleINS(ambiente_);
  riga("Aggiornamento tabelle terminato!");
}

void Aggiornamento::chiudiDestinazione() {
  // Let go of first: a close that fails is not tried again.
  const auto db = ambiente_.destinazione;
  impostaDestinazione(nullptr);
  if (db) db->Close();
}

/// Answers a failure before the commit. Where no error is pending, a step with a trap of its own has ended
/// the run: the summary shows number 0 and no description.
void Aggiornamento::annulla(const PendingError& errore) {
  corsa_.esito = Esito::Fallita;
  if (errore.pending()) corsa_.causa = errore.error();
  PendingError ritorno;
  if (corsa_.usaTransazione) ritorno.attempt([] { jet::dao::DBEngine::Workspaces(0)->Rollback(); });
  scriviErrore(errore.number(), errore.description());
  if (errore.number() == runtime::PermissionDenied) riga("\r\nIl database è aperto da un altro programma.");
  riga("\r\nAggiornamento annullato!");
  riga("");
  ritorno.attempt([this] { chiudiDestinazione(); });
  if (ritorno.pending()) {
    scriviErrore(ritorno.number(), ritorno.description());
    corsa_.causa->addPlace(inUnaRiga(*ritorno.error()));
  }
  concludi();
}

void Aggiornamento::concludi() {
  salva_();
  controls::desktop().setMousePointer(controls::MousePointer::Default);
}

void Aggiornamento::riga(const std::string& testo) {
  ambiente_.scrivi(testo, schema::Voce::Passo);
}

void Aggiornamento::seguito(const std::string& testo) {
  ambiente_.scrivi(testo, schema::Voce::Seguito);
}

void Aggiornamento::intesta() {
  seguito("Aggiornamento in data " + runtime::Variant(platform::clock().now()).toText());
  riga("Database:" + corsa_.database);
}

void Aggiornamento::scriviErrore(int numero, const std::string& descrizione) {
  riga("Errore: " + std::to_string(numero) + "\r\n" + descrizione);
}

void Aggiornamento::trattieni(const runtime::Error& errore) {
  if (diDisegno(errore.number())) return;
  corsa_.erroreTrattenuto = true;
  if (!corsa_.causa) corsa_.causa = errore;
}

}  // namespace console
