// Reference contents: tables that come with the version replace or complete those of the target.
#include "schema/contenuti.h"

#include "common/records.h"
#include "common/text.h"
#include "controls/desktop.h"
#include "schema/fasi.h"

namespace schema {
namespace {

/// What the two procedures differ in.
struct Maniera {
  Prefisso prefisso;
  const char* assente;  // the target has no such table
  bool svuota;          // its rows go first
};
constexpr Maniera Sostituzione = {PrefissoAdd, "non necessario.", true};
constexpr Maniera Aggiunta = {PrefissoIns, "non presente nel database.", false};

void eliminaCollegamento(jet::dao::Database& db, const std::string& collegamento) {
  try {
    common::EliminaTabella(db, collegamento);
  } catch (const runtime::Error&) {
    // There is one only where an earlier run has failed.
  }
}

void collega(const Ambiente& ambiente, const std::string& origine, const std::string& collegamento) {
  jet::dao::Database& db = *ambiente.destinazione;
  const auto tabella = db.CreateTableDef(collegamento);
  tabella->setConnect(";DATABASE=" + ambiente.percorsoRiferimento);
  tabella->setSourceTableName(origine);
  db.TableDefs().Append(tabella);
  db.TableDefs().Refresh();
}

void trasferisci(jet::dao::Database& db, const std::string& nome, const std::string& collegamento,
                 bool svuota) {
  const std::string inserimento = "INSERT INTO [" + nome + "] SELECT * FROM [" + collegamento + "]";
  // Understood before anything is deleted: reference rows that don't fit the table leave it as it was.
  db.CreateQueryDef("", inserimento)->Parameters().Count();
  if (svuota) db.Execute("DELETE * FROM [" + nome + "]");
  db.Execute(inserimento);
}

void aggiornaContenuto(const Ambiente& ambiente, const Maniera& maniera, const std::string& nome) {
  jet::dao::Database& db = *ambiente.destinazione;
  const std::string origine = maniera.prefisso + nome, collegamento = "link" + nome;
  ambiente.scrivi("- tabella " + nome + "  ", Voce::Modifica);
  const runtime::Variant scelta = parametro(ambiente, origine);
  if (scelta.isNull() || scelta.toText() == "0")
    return ambiente.scrivi("saltato (impostazione database).", Voce::Seguito);
  eliminaCollegamento(db, collegamento);
  bool esiste = false;
  EsisteTabella(db, nome, esiste);
  if (!esiste) return ambiente.scrivi(maniera.assente, Voce::Seguito);
  collega(ambiente, origine, collegamento);
  trasferisci(db, nome, collegamento, maniera.svuota);
  db.TableDefs().Delete(collegamento);
  ambiente.scrivi("fatto.", Voce::Seguito);
  controls::desktop().doEvents();
}

void aggiornaContenuti(const Ambiente& ambiente, const Maniera& maniera) {
  std::string tabella;
  try {
    for (const std::string& nome : tabelleConPrefisso(*ambiente.riferimento, maniera.prefisso)) {
      tabella = nome;
      aggiornaContenuto(ambiente, maniera, nome);
    }
  } catch (runtime::Error& errore) {
    errore.addPlace("tabella " + tabella);
    ambiente.trattieni(errore);
  }
}

}  // namespace

std::vector<std::string> tabelleConPrefisso(jet::dao::Database& riferimento, Prefisso prefisso) {
  std::vector<std::string> nomi;
  const std::size_t lunghezza = std::string_view(prefisso).size();
  for (const auto& tabella : riferimento.TableDefs()) {
    const std::string nome = tabella->Name();
    if (common::StessoTesto(nome.substr(0, lunghezza), prefisso)) nomi.push_back(nome.substr(lunghezza));
  }
  return nomi;
}

void EsisteTabella(jet::dao::Database& db, const std::string& nome, bool& esiste) {
  try {
    db.TableDefs(nome);
    esiste = true;
  } catch (const runtime::Error&) {
    esiste = false;
  }
}

void SostituisciTabelleADD(const Ambiente& ambiente) {
  aggiornaContenuti(ambiente, Sostituzione);
}

void AggiungiTabelleINS(const Ambiente& ambiente) {
  aggiornaContenuti(ambiente, Aggiunta);
}

}  // namespace schema
