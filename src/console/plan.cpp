// What an update would change, found by trying it on a target that is never saved.
#include "console/aggiornamento.h"
#include "console/duplicates.h"
#include "console/record_counts.h"
#include "jet/dao/engine.h"
#include "schema/piano.h"

namespace console {

void Aggiornamento::prevedi(schema::Piano& piano) {
  if (!ammesso() || !scegliApplicazione()) return;
  corsa_.esito = Esito::Fallita;
  ambiente_.scrivi = [](const std::string&, schema::Voce) {};  // what is worth telling goes to the plan
  // A workspace of its own forgets at its end what no commit has saved.
  jet::dao::Workspace prova;
  prova.BeginTrans();
  try {
    impostaDestinazione(prova.OpenForTrial(corsa_.database));
    if (prevediFasi(piano)) corsa_.esito = tabelleComplete() ? Esito::Completata : Esito::Ripristinata;
  } catch (const runtime::Error& errore) {
    corsa_.causa = errore;
  }
  if (corsa_.esito == Esito::Fallita && !piano.modifiche.empty())
    corsa_.causa->addPlace(piano.modifiche.back());
  chiudiDestinazione();
}

/// False where the run would end without an error that the summary shows.
bool Aggiornamento::prevediFasi(schema::Piano& piano) {
  const std::int32_t prima = ContaRecords(ambiente_.destinazione, "italia_comuni");
  EliminaComuniDuplicati(ambiente_);
  const std::int32_t dopo = ContaRecords(ambiente_.destinazione, "italia_comuni");
  if (dopo != prima)
    piano.modifiche.push_back("Tabella italia_comuni: eliminazione comuni duplicati: " +
                              std::to_string(prima - dopo));
  schema::Ambiente raccolta = ambiente_;
  raccolta.scrivi = [&](const std::string& testo, schema::Voce) { piano.modifiche.push_back(testo); };
  if (!rinominaCampi(raccolta)) return false;
  contaTabelle();
  schema::prevedi(ambiente_, piano);
  // The plan over the migrations has its place here.
  return true;
}

}  // namespace console
