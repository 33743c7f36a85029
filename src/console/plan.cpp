// What an update would change, found by trying it on a target that is never saved.
#include <algorithm>

#include "common/globale.h"
#include "console/frmAggMain.h"
#include "schema/piano.h"

namespace console {
namespace {

/// Lines of a summary, without those that are empty.
std::vector<std::string> righe(const std::string& riepilogo) {
  std::vector<std::string> trovate;
  for (std::size_t inizio = 0; inizio < riepilogo.size();) {
    const std::size_t fine = std::min(riepilogo.find("\r\n", inizio), riepilogo.size());
    if (fine > inizio) trovate.push_back(riepilogo.substr(inizio, fine - inizio));
    inizio = fine + 2;
  }
  return trovate;
}

}  // namespace

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
    const auto rinominati = righe(txtRiepilogo.text());
    piano.modifiche.insert(piano.modifiche.begin(), rinominati.begin(), rinominati.end());
  } catch (const runtime::Error&) {
    chiudiDestinazione();
    throw;
  }
  chiudiDestinazione();
  UltimaCorsa.esito = Esito::Completata;
}

}  // namespace console
