// One update run, from the click to the commit.
#include <optional>
#include <utility>

#include "common/files.h"
#include "common/globale.h"
#include "common/text.h"
#include "console/frmAggMain.h"
#include "console/pending_error.h"
#include "controls/desktop.h"
#include "jet/file/errors.h"
#include "parameters/kep_generali.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "schema/fasi.h"

namespace console {
namespace {

/// The error by which the engine tells that a file is none of its databases; nothing if it is one, or if that
/// can't be seen now.
std::optional<runtime::Error> nonDatabase(const std::string& percorso) {
  constexpr int formatoNonRiconosciuto = jet::UnrecognizedFormat;
  try {
    jet::dao::Workspace().OpenDatabase(percorso, false, true);
  } catch (const runtime::Error& errore) {
    if (errore.number() == formatoNonRiconosciuto) return errore;
  }
  return std::nullopt;
}

}  // namespace

void frmAggMain::EseguiAggiornamento() {
  if (busy()) return;
  UltimaCorsa = Corsa();
  uscitaRichiesta_ = false;
  whileBusy([this] {
    esegui(UltimaCorsa);
    if (uscitaRichiesta_) congedo();
  });
}

void frmAggMain::esegui(Corsa& corsa) {
  txtRiepilogo.setText("");
  corsa = nuovaCorsa();
  if (corsa.esito == Esito::Vietata) controls::desktop().endProgram();
  if (corsa.esito == Esito::NonDatabase) rifiuta(corsa);
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
  Corsa corsa(PercorsoDatabase);
  // A database that another program holds is there: the operator is asked about it later.
  if (PercorsoDatabase.empty() ||
      !(common::EsisteFile(PercorsoDatabase) || common::FileOccupato(PercorsoDatabase)))
    return corsa;
  corsa.esito = Esito::SenzaNome;
  if (!PathImpostato && aggiornamentoVietato()) {
    corsa.esito = Esito::Vietata;
  } else if (sceltoRiferimento()) {
    corsa.esito = Esito::Riferimento;
  } else if ((corsa.causa = nonDatabase(PercorsoDatabase))) {
    corsa.esito = Esito::NonDatabase;
  }
  return corsa;
}

bool frmAggMain::sceltoRiferimento() const {
  try {
    const platform::File scelto = platform::openFile(PercorsoDatabase, platform::OpenMode::Read);
    if (!scelto.isStillAt(PercorsoRiferimento)) return false;
  } catch (const runtime::Error&) {
    return false;
  }
  // This program has it open itself: to wait for it to be closed would never end.
  controls::desktop().msgBox("Il database scelto è quello di riferimento e non può essere aggiornato.",
                             controls::vbCritical);
  return true;
}

void frmAggMain::rifiuta(const Corsa& corsa) {
  intesta(corsa);
  scriviErrore(corsa.causa->number(), corsa.causa->description());
  ScriviRiepilogo("\r\nAggiornamento annullato!", true);
  ScriviRiepilogo("", true);
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
  const std::string marca = PercorsoDatabase.substr(0, posto + 1) + "NoAggNorvo.txt";
  if (!common::EsisteFile(marca) && !common::FileOccupato(marca)) return false;
  controls::desktop().msgBox(
      "Attenzione, per questioni di sicurezza non è consentita l'esecuzione della patch AggNorvo.\r\n"
      "Procedere con la funzione 'Controllo Aggiornamenti'",
      controls::vbCritical);
  return true;
}

void frmAggMain::intesta(const Corsa& corsa) {
  ScriviRiepilogo("Aggiornamento in data " + runtime::Variant(platform::clock().now()).toText(), false);
  ScriviRiepilogo("Database:" + corsa.database, true);
}

void frmAggMain::copiaDiSicurezza(Corsa& corsa) {
  controls::desktop().setMousePointer(controls::MousePointer::Hourglass);
  intesta(corsa);
  ScriviRiepilogo("Copia di sicurezza in corso...", true);
  corsa.backup = copiaConOra(corsa.database, "Backup", corsa.inizio);
  ScriviRiepilogo("fatto.", false);
}

std::string frmAggMain::copiaConOra(const std::string& percorso, const std::string& nome, std::string ora) {
  for (;;) {
    const std::string copia = EstraiCartella(percorso) + nome + ora + ".mdb";
    try {
      platform::copyToNewFile(percorso, copia);
      return copia;
    } catch (const platform::DiskError& errore) {
      // Another run in this folder has begun in the same second.
      if (errore.fault() != platform::DiskFault::Exists) throw;
    }
    for (const std::string presa = ora; ora == presa; ora = oraPerNomi()) {
      controls::desktop().doEvents();
      platform::clock().rest(20);
    }
  }
}

bool frmAggMain::transazioneRichiesta() {
  const runtime::Variant esiste = parameters::EsisteInKepGenerali(*DbDestinazione, "UsaTransazione");
  if (esiste.kind() != runtime::Variant::Kind::Boolean) {
    trattieni({esiste.toLong(), "", "Parametro UsaTransazione non leggibile"});
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

void frmAggMain::trattieni(const runtime::Error& errore) {
  if (diDisegno(errore.number())) return;
  UltimaCorsa.erroreTrattenuto = true;
  if (!UltimaCorsa.causa) UltimaCorsa.causa = errore;
}

schema::Ambiente frmAggMain::ambienteDellaCorsa() {
  return {DbRiferimento, DbDestinazione, PercorsoRiferimento,
          [this](const std::string& testo, schema::Voce voce) {
            ScriviRiepilogo(std::string(testo), voce != schema::Voce::Seguito);
          },
          [this](const runtime::Error& errore) { trattieni(errore); }};
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
  // Where a trap of its own has taken the error, it has kept the cause.
  if (errore.number() != 0 || !corsa.causa) corsa.causa = errore;
  PendingError ritorno;
  if (corsa.usaTransazione) ritorno.attempt([this] { Ws->Rollback(); });
  scriviErrore(errore.number(), errore.description());
  if (errore.number() == runtime::PermissionDenied)
    ScriviRiepilogo("\r\nIl database è aperto da un altro programma.", true);
  ScriviRiepilogo("\r\nAggiornamento annullato!", true);
  ScriviRiepilogo("", true);
  ritorno.attempt([this] { chiudiDestinazione(); });
  if (ritorno.pending()) {
    scriviErrore(ritorno.number(), ritorno.description());
    corsa.causa->addPlace(inUnaRiga(*ritorno.error()));
  }
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
