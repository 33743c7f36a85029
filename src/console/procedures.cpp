// The procedures that the suite knows by the window's name, and the run that the window starts.
#include "console/copies.h"
#include "console/duplicates.h"
#include "console/frmAggMain.h"
#include "console/long_field_names.h"
#include "console/questions.h"
#include "console/record_counts.h"
#include "console/summary.h"

namespace console {

void frmAggMain::EseguiAggiornamento() {
  if (busy()) return;
  UltimaCorsa = Corsa();
  uscitaRichiesta_ = false;
  whileBusy([this] {
    txtRiepilogo.setText("");
    corsa_ = std::make_unique<Aggiornamento>(LeggiDatabaseScelto(), ambiente(), [this] {
      console::SalvaRiepilogo(txtRiepilogo, programma_.cartella, programma_.nome);
    });
    corsa_->esegui();
    UltimaCorsa = corsa_->corsa();
    corsa_ = nullptr;
    if (UltimaCorsa.terminata()) AggiornamentoEseguito = true;
    if (uscitaRichiesta_) congedo();
  });
}

schema::Ambiente frmAggMain::ambiente() {
  schema::Ambiente ambiente;
  ambiente.riferimento = DbRiferimento;
  ambiente.percorsoRiferimento = PercorsoRiferimento;
  ambiente.scrivi = [this](std::string testo, schema::Voce voce) {
    ScriviRiepilogo(testo, voce != schema::Voce::Seguito);
  };
  return ambiente;
}

jet::dao::DatabasePtr frmAggMain::DbDestinazione() const {
  return corsa_ ? corsa_->ambiente().destinazione : nullptr;
}

void frmAggMain::ChiediApplicazione(std::string& nome) {
  nome = console::ChiediApplicazione(PercorsoDatabase, NomeProgrammaPatch);
}

void frmAggMain::VerificaDatabaseChiuso(bool& annulla) {
  annulla = !console::VerificaDatabaseChiuso(PercorsoDatabase);
}

void frmAggMain::WaitFor(int secondi) {
  console::WaitFor(secondi);
}

void frmAggMain::EliminaComuniDuplicati(bool& esito) {
  esito = DbDestinazione() && console::EliminaComuniDuplicati(corsa_->ambiente());
}

void frmAggMain::RinominaCampiLunghi(const std::string& tabella, bool& esito) {
  esito = DbDestinazione() && !console::RinominaCampiLunghi(corsa_->ambiente(), tabella);
}

void frmAggMain::ContaRecords(const jet::dao::DatabasePtr& db, const std::string& tabella,
                              std::int32_t& conteggio) {
  conteggio = console::ContaRecords(db, tabella);
}

void frmAggMain::ControllaRecords(const jet::dao::DatabasePtr& db, const std::string& tabella,
                                  std::int32_t attesi, bool& uguale) {
  schema::Ambiente controllo = ambiente();
  controllo.destinazione = db;
  uguale = !console::ControllaRecords(controllo, tabella, attesi);
}

void frmAggMain::ScriviRiepilogo(std::string& testo, const bool& aCapo) {
  console::ScriviRiepilogo(txtRiepilogo, testo, aCapo);
}

void frmAggMain::SalvaRiepilogo(const controls::TextBox& casella, bool& esito) {
  esito = console::SalvaRiepilogo(casella, programma_.cartella, programma_.nome);
}

std::string frmAggMain::EstraiCartella(const runtime::Variant& percorso) {
  return console::EstraiCartella(percorso);
}

std::string frmAggMain::EstraiNomeFile(const runtime::Variant& percorso) {
  return console::EstraiNomeFile(percorso);
}

}  // namespace console
