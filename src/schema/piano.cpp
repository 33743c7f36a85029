// The phases let loose on a target that is not saved, and the changes collected.
#include "schema/piano.h"

#include <algorithm>
#include <optional>

#include "schema/contenuti.h"
#include "schema/fasi.h"

namespace schema {
namespace {

/// A text that differs where the value or its kind does.
std::string impronta(const runtime::Variant& valore) {
  std::string testo(1, static_cast<char>('a' + static_cast<int>(valore.kind())));
  if (const auto* ottetti = std::get_if<runtime::Bytes>(&valore.value()))
    testo.append(reinterpret_cast<const char*>(ottetti->data()), ottetti->size());
  else if (!valore.isNull())
    testo += valore.toText();
  return std::to_string(testo.size()) + ":" + testo;
}

/// The rows of a table in an order of their own; nothing if there is no such table.
std::optional<std::vector<std::string>> contenuto(jet::dao::Database& db, const std::string& tabella) {
  if (!db.TableDefs().contains(tabella)) return std::nullopt;
  std::vector<std::string> righe;
  const auto lette = db.OpenRecordset("SELECT * FROM [" + tabella + "]", jet::dao::dbOpenSnapshot);
  for (; !lette->atEnd(); lette->MoveNext()) {
    righe.emplace_back();
    for (const jet::dao::Field& campo : lette->Fields()) righe.back() += impronta(campo.Value());
  }
  lette->Close();
  std::ranges::sort(righe);
  return righe;
}

std::optional<std::string> testoQuery(jet::dao::Database& db, const std::string& nome) {
  bool esiste = false;
  EsisteQuery(db, nome, esiste);
  return esiste ? std::optional(db.QueryDefs(nome)->SQL()) : std::nullopt;
}

/// Adds a line for each of `nomi` that `stato` finds changed by `fase`.
template <typename Stato, typename Fase>
void confronta(const std::vector<std::string>& nomi, const std::string& inizio, const Stato& stato,
               const Fase& fase, Piano& piano) {
  std::vector<decltype(stato(nomi.front()))> prima;
  for (const std::string& nome : nomi) prima.push_back(stato(nome));
  fase();
  for (std::size_t i = 0; i < nomi.size(); ++i)
    if (stato(nomi[i]) != prima[i]) piano.modifiche.push_back(inizio + nomi[i]);
}

std::vector<std::string> nomiQuery(jet::dao::Database& db) {
  std::vector<std::string> nomi;
  for (const auto& query : db.QueryDefs()) nomi.push_back(query->Name());
  return nomi;
}

}  // namespace

void prevedi(const Ambiente& ambiente, Piano& piano) {
  jet::dao::Database &riferimento = *ambiente.riferimento, &destinazione = *ambiente.destinazione;
  Ambiente prova = ambiente;
  bool contaModifiche = true;
  prova.scrivi = [&](const std::string& testo, Voce voce) {
    if (voce == Voce::Modifica && contaModifiche) piano.modifiche.push_back(testo);
    if (voce == Voce::Errore) piano.errori.push_back(testo);
  };
  CreaEModificaCampi(prova);
  EliminaCampi(prova);
  AggiornaIndici(prova);
  AggiornaRelazioni(prova);
  contaModifiche = false;  // what follows is written anew in every run
  const auto testo = [&](const std::string& nome) { return testoQuery(destinazione, nome); };
  const auto righe = [&](const std::string& nome) { return contenuto(destinazione, nome); };
  confronta(
      nomiQuery(riferimento), "Aggiungo le query...", testo, [&] { AggiungiQuery(prova); }, piano);
  confronta(
      tabelleConPrefisso(riferimento, PrefissoAdd), "- tabella ", righe,
      [&] { SostituisciTabelleADD(prova); }, piano);
  confronta(
      tabelleConPrefisso(riferimento, PrefissoIns), "- tabella ", righe, [&] { AggiungiTabelleINS(prova); },
      piano);
}

}  // namespace schema
