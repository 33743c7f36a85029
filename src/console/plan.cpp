// What an update would change, found by trying it on a target that is never saved.
#include "common/globale.h"
#include "common/text.h"
#include "console/frmAggMain.h"
#include "schema/piano.h"

namespace console {
namespace {

/// Takes the lines out of a summary.
void prendiRighe(controls::TextBox& riepilogo, std::vector<std::string>& righe) {
  for (std::string& riga : common::Dividi(riepilogo.text(), "\r\n"))
    if (!riga.empty()) righe.push_back(std::move(riga));
  riepilogo.setText("");
}

}  // namespace

void frmAggMain::PrevediAggiornamento(schema::Piano& piano) {
  UltimaCorsa = nuovaCorsa();
  if (UltimaCorsa.esito != Esito::SenzaNome || !applicazioneScelta()) return;
  UltimaCorsa.esito = Esito::Fallita;
  // A workspace of its own forgets at its end what no commit has saved.
  jet::dao::Workspace prova;
  prova.BeginTrans();
  try {
    DbDestinazione = prova.OpenForTrial(PercorsoDatabase);
    common::DatabaseAperto = DbDestinazione;
    prevediFasi(piano);
    UltimaCorsa.esito = tabelleComplete(UltimaCorsa) ? Esito::Completata : Esito::Ripristinata;
  } catch (const runtime::Error& errore) {
    if (errore.number() != 0 || !UltimaCorsa.causa) UltimaCorsa.causa = errore;
    if (!piano.modifiche.empty()) UltimaCorsa.causa->addPlace(piano.modifiche.back());
  }
  txtRiepilogo.setText("");
  chiudiDestinazione();
}

void frmAggMain::prevediFasi(schema::Piano& piano) {
  std::int32_t prima = 0, dopo = 0;
  ContaRecords(DbDestinazione, "italia_comuni", prima);
  bool eliminati = false;
  EliminaComuniDuplicati(eliminati);
  ContaRecords(DbDestinazione, "italia_comuni", dopo);
  txtRiepilogo.setText("");
  if (dopo != prima)
    piano.modifiche.push_back("Tabella italia_comuni: eliminazione comuni duplicati: " +
                              std::to_string(prima - dopo));
  try {
    rinominaCampi();
  } catch (const runtime::Error&) {
    prendiRighe(txtRiepilogo, piano.modifiche);
    throw;
  }
  prendiRighe(txtRiepilogo, piano.modifiche);
  contaTabelle(UltimaCorsa);
  schema::prevedi(ambienteDellaCorsa(), piano);
}

}  // namespace console
