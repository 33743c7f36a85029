// One update run, from the click to the commit.
#include <utility>

#include "common/files.h"
#include "common/globale.h"
#include "common/text.h"
#include "console/frmAggMain.h"
#include "console/pending_error.h"
#include "controls/desktop.h"
#include "parameters/kep_generali.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "runtime/format.h"
#include "schema/fasi.h"

namespace console {

void frmAggMain::EseguiAggiornamento() {
  if (busy()) return;
  UltimaCorsa = Corsa();
  whileBusy([this] { esegui(UltimaCorsa); });
}

void frmAggMain::esegui(Corsa& corsa) {
  txtRiepilogo.setText("");
  corsa = nuovaCorsa();
  if (corsa.esito == Esito::Vietata) controls::desktop().endProgram();
  if (corsa.esito != Esito::SenzaNome) return;
  try {
    if (!applicazioneScelta()) return;
    controls::desktop().doEvents();
    corsa.esito = Esito::ApertoAltrove;
    bool annulla = false;
    VerificaDatabaseChiuso(annulla);
    if (annulla) return;

    corsa.esito = Esito::Fallita;  // until it ended otherwise
    copiaDiSicurezza(corsa);
    corsa.databaseAperto = true;
    DbDestinazione = Ws->OpenDatabase(corsa.database, true);
    common::DatabaseAperto = DbDestinazione;
    corsa.usaTransazione = transazioneRichiesta();
    // Before the transaction: what this deletes stays deleted even if the run is rolled back.
    bool eliminati = false;
    EliminaComuniDuplicati(eliminati);
    if (corsa.usaTransazione) Ws->BeginTrans();
    rinominaCampi();
    contaTabelle(corsa);
    const schema::Ambiente ambiente = ambienteDellaCorsa();
    schema::CreaEModificaCampi(ambiente);
    schema::EliminaCampi(ambiente);
    schema::AggiornaIndici(ambiente);
    schema::AggiornaRelazioni(ambiente);
    aggiungiQuery(ambiente);
    aggiornaTabelle(ambiente);
    chiudiDestinazione();
    // The commit saves the closed database.
    if (corsa.usaTransazione) Ws->CommitTrans(0);
  } catch (const runtime::Error& errore) {
    annullaAggiornamento(corsa, errore);
    return;
  }
  compattaEControlla(corsa);
}

Corsa frmAggMain::nuovaCorsa() {
  LeggiDatabaseScelto();
  Corsa corsa(PercorsoDatabase, runtime::format(platform::clock().now(), "yyyymmddhhnnss"));
  if (!PercorsoDatabase.empty() && common::EsisteFile(PercorsoDatabase))
    corsa.esito = !PathImpostato && aggiornamentoVietato() ? Esito::Vietata : Esito::SenzaNome;
  return corsa;
}

bool frmAggMain::applicazioneScelta() {
  if (common::NomeApplicazione.empty() && !txtAltroDB.text().empty()) {
    std::string nome;
    ChiediApplicazione(nome);
    if (nome.empty()) return false;
  }
  common::ApplicazioneCorrente = common::NomeApplicazione;
  return true;
}

bool frmAggMain::aggiornamentoVietato() const {
  const std::size_t posto = common::Maiuscolo(PercorsoDatabase).find("\\DB");
  if (posto == std::string::npos) return false;
  if (!common::EsisteFile(PercorsoDatabase.substr(0, posto + 1) + "NoAggNorvo.txt")) return false;
  controls::desktop().msgBox(
      "Attenzione, per questioni di sicurezza non è consentita l'esecuzione della patch AggNorvo.\r\n"
      "Procedere con la funzione 'Controllo Aggiornamenti'",
      controls::vbCritical);
  return true;
}

void frmAggMain::copiaDiSicurezza(const Corsa& corsa) {
  controls::desktop().setMousePointer(controls::MousePointer::Hourglass);
  ScriviRiepilogo("Aggiornamento in data " + runtime::Variant(platform::clock().now()).toText(), false);
  ScriviRiepilogo("Database:" + corsa.database, true);
  ScriviRiepilogo("Copia di sicurezza in corso...", true);
  platform::copyFile(corsa.database, corsa.backup);
  ScriviRiepilogo("fatto.", false);
}

bool frmAggMain::transazioneRichiesta() {
  const runtime::Variant esiste = parameters::EsisteInKepGenerali(*DbDestinazione, "UsaTransazione");
  if (esiste.kind() != runtime::Variant::Kind::Boolean) {
    trattieni(esiste.toLong());
    return true;
  }
  if (!esiste.toBoolean()) return true;
  const runtime::Variant valore = schema::parametro(ambienteDellaCorsa(), "UsaTransazione");
  return !valore.isText() || valore.toText() != "0";
}

void frmAggMain::rinominaCampi() {
  if (schema::applicazioneSenzaIscritti()) return;
  const auto rinomina = [this](const std::string& tabella) {
    bool esito = false;
    RinominaCampiLunghi(tabella, esito);
    // Its own trap has taken the error: the summary shows number 0 and no description.
    if (!esito) throw runtime::Error(0, "", "");
  };
  rinomina("ragioniere");
  if (schema::haPagineWeb(ambienteDellaCorsa())) rinomina("DataWebAnagrafica");
}

void frmAggMain::contaTabelle(Corsa& corsa) {
  DbDestinazione->TableDefs().Refresh();
  for (std::size_t tabella = 0; tabella < TabelleControllo.size(); ++tabella) {
    ContaRecords(DbDestinazione, TabelleControllo[tabella], corsa.conteggi[tabella]);
    if (corsa.conteggi[tabella] == -1)
      ScriviRiepilogo(
          "Errore nel calcolo records della tabella " + std::string(TabelleControllo[tabella]) + "!", true);
  }
}

void frmAggMain::trattieni(int numero) {
  if (!diDisegno(numero)) UltimaCorsa.erroreTrattenuto = true;
}

schema::Ambiente frmAggMain::ambienteDellaCorsa() {
  return {DbRiferimento, DbDestinazione, PercorsoRiferimento,
          [this](const std::string& testo, schema::Voce voce) {
            ScriviRiepilogo(std::string(testo), voce != schema::Voce::Seguito);
          },
          [this](int numero) { trattieni(numero); }};
}

void frmAggMain::aggiungiQuery(const schema::Ambiente& ambiente) {
  ScriviRiepilogo("", true);
  ScriviRiepilogo("Aggiungo le query...", true);
  schema::AggiungiQuery(ambiente);
  ScriviRiepilogo("fatto!", false);
}

void frmAggMain::aggiornaTabelle(const schema::Ambiente& ambiente) {
  ScriviRiepilogo("", true);
  ScriviRiepilogo("Aggiornamento tabelle...", true);
  schema::SostituisciTabelleADD(ambiente);
  schema::AggiungiTabelleINS(ambiente);
  ScriviRiepilogo("Aggiornamento tabelle terminato!", true);
}

void frmAggMain::chiudiDestinazione() {
  common::DatabaseAperto = nullptr;
  // Let go of first: a close that fails is not tried again.
  if (const auto db = std::exchange(DbDestinazione, nullptr)) db->Close();
}

void frmAggMain::annullaAggiornamento(Corsa& corsa, const runtime::Error& errore) {
  corsa.esito = Esito::Fallita;
  PendingError ritorno;
  if (corsa.usaTransazione) ritorno.attempt([this] { Ws->Rollback(); });
  scriviErrore(errore.number(), errore.description());
  if (errore.number() == runtime::PermissionDenied)
    ScriviRiepilogo("\r\nIl database è aperto da un altro programma.", true);
  ScriviRiepilogo("\r\nAggiornamento annullato!", true);
  ScriviRiepilogo("", true);
  ritorno.attempt([this] { chiudiDestinazione(); });
  if (ritorno.pending()) scriviErrore(ritorno.number(), ritorno.description());
  concludi();
}

void frmAggMain::scriviErrore(int numero, const std::string& descrizione) {
  ScriviRiepilogo("Errore: " + std::to_string(numero) + "\r\n" + descrizione, true);
}

void frmAggMain::concludi() {
  bool salvato = false;
  SalvaRiepilogo(txtRiepilogo, salvato);
  controls::desktop().setMousePointer(controls::MousePointer::Default);
}

}  // namespace console
