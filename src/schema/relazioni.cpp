// Relations: each one of the catalogue that is missing is made, and made anew if it differs.
#include "schema/catalogo.h"
#include "schema/fasi.h"

namespace schema {
namespace {

bool diversa(jet::dao::Relation& relazione, jet::dao::Recordset& riga, jet::dao::Recordset& campi) {
  if (diverso(riga.value("Table"), relazione.Table()) ||
      diverso(riga.value("ForeignTable"), relazione.ForeignTable()) ||
      diverso(riga.value("Attributi"), relazione.Attributes()) ||
      campi.RecordCount() != static_cast<std::int64_t>(relazione.Fields().Count()))
    return true;
  std::size_t posto = 0;
  for (campi.MoveFirst(); !campi.atEnd(); campi.MoveNext()) {
    const jet::dao::Field coppia = relazione.Fields(posto++);
    if (diverso(campi.value("Campo"), coppia.Name()) ||
        diverso(campi.value("ForeignName"), coppia.ForeignName()))
      return true;
  }
  return false;
}

void creaRelazione(jet::dao::Database& db, const std::string& nome, jet::dao::Recordset& riga,
                   jet::dao::Recordset& campi) {
  const auto relazione =
      db.CreateRelation(nome, riga.value("Table").toText(), riga.value("ForeignTable").toText(),
                        riga.value("Attributi").toLong());
  for (campi.MoveFirst(); !campi.atEnd(); campi.MoveNext()) {
    const auto coppia = relazione->CreateField(campi.value("Campo").toText());
    coppia.setForeignName(campi.value("ForeignName").toText());
    relazione->Fields().Append(coppia);
  }
  db.Relations().Append(relazione);
}

void aggiornaRelazione(const Ambiente& ambiente, jet::dao::Recordset& riga, Interrogazione& campiRelazione) {
  if (tabellaWebEsclusa(ambiente, riga.value("Table").toText())) return;
  jet::dao::Database& db = *ambiente.destinazione;
  const std::string nome = riga.value("Relazione").toText();
  const auto campi = campiRelazione.righeContate({nome});
  if (db.Relations().contains(nome)) {
    if (!diversa(*db.Relations(nome), riga, *campi)) return;
    ambiente.scrivi("Cancello relazione " + nome + "...", Voce::Modifica);
    db.Relations().Delete(nome);
    ambiente.scrivi("fatto", Voce::Seguito);
  }
  ambiente.scrivi("Creo relazione " + nome + "...", Voce::Modifica);
  creaRelazione(db, nome, riga, *campi);
  ambiente.scrivi("fatto", Voce::Seguito);
}

}  // namespace

void AggiornaRelazioni(const Ambiente& ambiente) {
  Interrogazione relazioni(ambiente, Domanda::Relazioni);
  Interrogazione campi(ambiente, Domanda::CampiRelazione);
  for (const auto righe = relazioni.righe(); !righe->atEnd(); righe->MoveNext())
    aggiornaRelazione(ambiente, *righe, campi);
}

}  // namespace schema
