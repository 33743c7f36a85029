// What an update would change, found by trying it on a target that is never saved.
#include "common/globale.h"
#include "common/text.h"
#include "console/frmAggMain.h"
#include "schema/piano.h"

namespace console {

void frmAggMain::PrevediAggiornamento(schema::Piano& piano) {
  UltimaCorsa = nuovaCorsa();
  if (UltimaCorsa.esito != Esito::SenzaNome || !applicazioneScelta()) return;
  UltimaCorsa.esito = Esito::Fallita;
  // A workspace of its own forgets at its end what no commit has saved.
  jet::dao::Workspace prova;
  prova.BeginTrans();
  DbDestinazione = prova.OpenDatabase(PercorsoDatabase);
  common::DatabaseAperto = DbDestinazione;
  try {
    bool eliminati = false;
    EliminaComuniDuplicati(eliminati);
    txtRiepilogo.setText("");
    rinominaCampi();
    piano = schema::prevedi(ambienteDellaCorsa());
    auto rinominati = common::Dividi(txtRiepilogo.text(), "\r\n");
    std::erase(rinominati, "");
    piano.modifiche.insert(piano.modifiche.begin(), rinominati.begin(), rinominati.end());
  } catch (const runtime::Error&) {
    chiudiDestinazione();
    throw;
  }
  chiudiDestinazione();
  UltimaCorsa.esito = Esito::Completata;
}

}  // namespace console
