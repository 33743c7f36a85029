// The stored queries of the reference, copied to the target under their names.
#include "schema/fasi.h"

namespace schema {

void EsisteQuery(jet::dao::Database& db, const std::string& nome, bool& esiste) {
  try {
    db.QueryDefs(nome)->SQL();
    esiste = true;
  } catch (const runtime::Error&) {
    esiste = false;
  }
}

void AggiungiQuery(const Ambiente& ambiente) {
  jet::dao::Database& db = *ambiente.destinazione;
  std::string nome;
  try {
    for (const auto& query : ambiente.riferimento->QueryDefs()) {
      nome = query->Name();
      const std::string testo = query->SQL();
      bool esiste = false;
      EsisteQuery(db, nome, esiste);
      if (esiste)
        db.QueryDefs(nome)->setSQL(testo);
      else
        db.CreateQueryDef(nome, testo);
    }
  } catch (runtime::Error& errore) {
    ambiente.scrivi("- errore " + std::to_string(errore.number()) + " durante la creazione query " + nome,
                    Voce::Errore);
    ambiente.scrivi(errore.description(), Voce::Errore);
    errore.addPlace("query " + nome);
    ambiente.trattieni(errore);
  }
}

}  // namespace schema
