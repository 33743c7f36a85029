#include "parameters/kep_generali.h"

#include "controls/desktop.h"
#include "runtime/error.h"

namespace parameters {
namespace {

/// Runs `query` with `nome` as its parameter, hands its rows to `leggi` and answers an error with the box of
/// `funzione`.
template <typename Leggi>
runtime::Variant interroga(jet::dao::Database& db, const std::string& nome, const char* funzione,
                           const char* query, const Leggi& leggi) {
  try {
    const auto domanda = db.CreateQueryDef("", query);
    domanda->Parameters(0).setValue(nome);
    const auto righe = domanda->OpenRecordset(jet::dao::dbOpenForwardOnly);
    const runtime::Variant risultato = leggi(*righe);
    righe->Close();
    domanda->Close();
    return risultato;
  } catch (const runtime::Error& errore) {
    controls::desktop().msgBox("Errore: " + std::to_string(errore.number()) + "\r\n" + errore.description(),
                               controls::vbExclamation, std::string("Funzione ") + funzione);
    return static_cast<std::int32_t>(errore.number());
  }
}

}  // namespace

runtime::Variant EsisteInKepGenerali(jet::dao::Database& db, const std::string& nome) {
  return interroga(db, nome, "EsisteInKepGenerali",
                   "PARAMETERS myNome Text; SELECT Count(*) AS Totale FROM KepGenerali WHERE Nome = myNome ",
                   [](jet::dao::Recordset& righe) -> runtime::Variant {
                     return righe.Fields(std::size_t{0}).Value().toLong() > 0;
                   });
}

runtime::Variant LeggiKepGenerali(jet::dao::Database& db, const std::string& nome) {
  return interroga(db, nome, "LeggiKepGenerali",
                   "PARAMETERS myNome Text; SELECT * FROM KepGenerali WHERE Nome = myNome ",
                   [](jet::dao::Recordset& righe) -> runtime::Variant {
                     if (righe.BOF() && righe.atEnd()) return {};
                     return righe.value("Valore");
                   });
}

}  // namespace parameters
