// Tables and fields: what is missing is created, what differs is rebuilt, what is listed for it is dropped.
#include "schema/catalogo.h"
#include "schema/fasi.h"
#include "schema/ricostruzione.h"

namespace schema {
namespace {

/// Only what an update may change counts: a text grows and never shrinks, attributes and place stay.
bool campoDiverso(const jet::dao::Field& campo, jet::dao::Recordset& riga) {
  const int tipo = campo.Type();
  if (diverso(riga.value("Tipo"), tipo)) return true;
  const runtime::Variant dimensione = riga.value("Dimensione");
  if (tipo == jet::dao::dbText && !dimensione.isNull() && campo.Size() < dimensione.toLong()) return true;
  const bool contatore = tipo == jet::dao::dbLong && campo.Attributes() & jet::dao::dbAutoIncrField;
  if (!contatore && diverso(riga.value("DefaultValue"), campo.DefaultValue())) return true;
  return diverso(riga.value("Required"), campo.Required());
}

/// One table of the catalogue and what the target has of it.
class Tabella {
 public:
  Tabella(const Ambiente& ambiente, std::string nome)
      : ambiente_(ambiente), db_(*ambiente.destinazione), nome_(std::move(nome)) {}

  void aggiorna(jet::dao::Recordset& righe) {
    nuova_ = !db_.TableDefs().contains(nome_);
    definizione_ = nuova_ ? db_.CreateTableDef(nome_) : db_.TableDefs(nome_);
    if (nuova_) ambiente_.scrivi("Tabella " + nome_ + " in creazione", Voce::Modifica);
    for (; !righe.atEnd(); righe.MoveNext()) aggiornaCampo(righe);
    if (!nuova_) return;
    db_.TableDefs().Append(definizione_);
    ambiente_.scrivi("Tabella " + nome_ + " inserita.", Voce::Termine);
  }

 private:
  void aggiornaCampo(jet::dao::Recordset& riga) {
    const std::string campo = riga.value("Campo").toText();
    if (!definizione_->Fields().contains(campo))
      crea(campo, riga);
    else if (campoDiverso(definizione_->Fields(campo), riga))
      modifica(campo, riga);
  }

  void crea(const std::string& campo, jet::dao::Recordset& riga) {
    ambiente_.scrivi((nuova_ ? std::string() : "Tabella " + nome_) + "- campo " + campo + " in creazione...",
                     Voce::Modifica);
    definizione_->Fields().Append(nuovoCampo(*definizione_, riga));
    if (!nuova_) {
      definizione_->Fields().Refresh();
      riempi(campo, riga);
    }
    ambiente_.scrivi("fatto.", Voce::Seguito);
  }

  /// Gives the rows that are there the default of a field that is new to them.
  void riempi(const std::string& campo, jet::dao::Recordset& riga) {
    const runtime::Variant valore = riga.value("DefaultValue"), richiesto = riga.value("UpdateDefaultValue");
    if (valore.isNull() || richiesto.isNull() || !richiesto.toBoolean()) return;
    const auto aggiornamento = db_.CreateQueryDef(
        "", "PARAMETERS parDefaultValue TEXT;UPDATE [" + nome_ + "] SET [" + campo + "]= parDefaultValue");
    aggiornamento->Parameters("parDefaultValue").setValue(valore);
    aggiornamento->Execute();  // a row that refuses it keeps its Null
    aggiornamento->Close();
  }

  void modifica(const std::string& campo, jet::dao::Recordset& riga) {
    const std::string soggetto = "Tabella " + nome_ + "- campo " + campo;
    ambiente_.scrivi(soggetto + " in modifica", Voce::Modifica);
    if (nuova_)
      sostituisci(campo, riga);
    else
      ricostruisciCampo(db_, *definizione_, riga);
    ambiente_.scrivi(soggetto + " fatto.", Voce::Termine);
  }

  /// A field that a second row describes otherwise before its table is made: nothing hangs on it yet.
  void sostituisci(const std::string& campo, jet::dao::Recordset& riga) {
    const jet::dao::Field nuovo = campoSostitutivo(*definizione_, riga, definizione_->Fields(campo));
    definizione_->Fields().Delete(campo);
    definizione_->Fields().Append(nuovo);
  }

  const Ambiente& ambiente_;
  jet::dao::Database& db_;
  std::string nome_;
  jet::dao::TableDefPtr definizione_;
  bool nuova_ = false;
};

void eliminaCampo(const Ambiente& ambiente, jet::dao::TableDef& tabella, const std::string& nome,
                  const std::string& campo) {
  jet::dao::Database& db = *ambiente.destinazione;
  ambiente.scrivi("Tabella " + nome + "- campo " + campo + " in eliminazione...", Voce::Modifica);
  for (const auto& relazione : db.Relations())
    if (riguarda(*relazione, nome, campo)) db.Relations().Delete(relazione->Name());
  db.Relations().Refresh();
  for (const auto& indice : tabella.Indexes())
    if (riguarda(*indice, campo)) tabella.Indexes().Delete(indice->Name());
  tabella.Indexes().Refresh();
  tabella.Fields().Delete(campo);
  ambiente.scrivi("fatto.", Voce::Seguito);
}

}  // namespace

void CreaEModificaCampi(const Ambiente& ambiente) {
  Interrogazione tabelle(ambiente, Domanda::Tabelle);
  Interrogazione campi(ambiente, Domanda::CampiTabella);
  for (const auto righe = tabelle.righe(); !righe->atEnd(); righe->MoveNext()) {
    const std::string nome = righe->value("Tabella").toText();
    if (!tabellaWebEsclusa(ambiente, nome)) Tabella(ambiente, nome).aggiorna(*campi.righe({nome}));
  }
}

void EliminaCampi(const Ambiente& ambiente) {
  Interrogazione tabelle(ambiente, Domanda::TabelleDaRidurre);
  Interrogazione campi(ambiente, Domanda::CampiDaEliminare);
  for (const auto righe = tabelle.righe(); !righe->atEnd(); righe->MoveNext()) {
    const std::string nome = righe->value("Tabella").toText();
    if (!ambiente.destinazione->TableDefs().contains(nome)) continue;
    const auto tabella = ambiente.destinazione->TableDefs(nome);
    for (const auto voci = campi.righe({nome}); !voci->atEnd(); voci->MoveNext()) {
      const std::string campo = voci->value("Campo").toText();
      if (tabella->Fields().contains(campo)) eliminaCampo(ambiente, *tabella, nome, campo);
    }
  }
}

}  // namespace schema
