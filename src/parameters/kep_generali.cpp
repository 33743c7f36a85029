// Rows of KepGenerali read and written by name, with the box that an error shows.
#include "parameters/kep_generali.h"

#include "controls/desktop.h"
#include "runtime/error.h"

namespace parameters {
namespace {

using runtime::Variant;

/// Does `lavoro`; an error gets the box of `funzione` and becomes the result.
template <typename Lavoro>
Variant conAvviso(const char* funzione, const Lavoro& lavoro) {
  try {
    return lavoro();
  } catch (const runtime::Error& errore) {
    controls::desktop().msgBox("Errore: " + std::to_string(errore.number()) + "\r\n" + errore.description(),
                               controls::vbExclamation, std::string("Funzione ") + funzione);
    return static_cast<std::int32_t>(errore.number());
  }
}

/// Runs `query` with `nome` as its parameter and hands its rows to `leggi`.
template <typename Leggi>
Variant interroga(jet::dao::Database& db, const std::string& nome, const char* query, const Leggi& leggi) {
  const auto domanda = db.CreateQueryDef("", query);
  domanda->Parameters(0).setValue(nome);
  const auto righe = domanda->OpenRecordset(jet::dao::dbOpenForwardOnly);
  const Variant risultato = leggi(*righe);
  righe->Close();
  domanda->Close();
  return risultato;
}

/// By [row there][note given].
constexpr const char* Scritture[2][2] = {
    {"PARAMETERS myNome Text, myValue Text; INSERT INTO KepGenerali ( Nome, Valore ) VALUES ( myNome, "
     "myValue )",
     "PARAMETERS myNome Text, myValue Text, myNote Text; INSERT INTO KepGenerali ( Nome, Valore, [Note] ) "
     "VALUES ( myNome, myValue, myNote )"},
    {"PARAMETERS myNome Text, myValue Text; UPDATE KepGenerali SET  Valore = myValue WHERE Nome = myNome",
     "PARAMETERS myNome Text, myValue Text, myNote Text; UPDATE KepGenerali SET  Valore = myValue, [Note] = "
     "myNote WHERE Nome = myNome"}};

}  // namespace

Variant EsisteInKepGenerali(jet::dao::Database& db, const std::string& nome) {
  return conAvviso("EsisteInKepGenerali", [&] {
    return interroga(
        db, nome, "PARAMETERS myNome Text; SELECT Count(*) AS Totale FROM KepGenerali WHERE Nome = myNome ",
        [](jet::dao::Recordset& righe) -> Variant {
          return righe.Fields(std::size_t{0}).Value().toLong() > 0;
        });
  });
}

Variant LeggiKepGenerali(jet::dao::Database& db, const std::string& nome) {
  return conAvviso("LeggiKepGenerali", [&] {
    return interroga(db, nome, "PARAMETERS myNome Text; SELECT * FROM KepGenerali WHERE Nome = myNome ",
                     [](jet::dao::Recordset& righe) -> Variant {
                       if (righe.BOF() && righe.atEnd()) return {};
                       return righe.value("Valore");
                     });
  });
}

std::int32_t ScriviKepGenerali(jet::dao::Database& db, const std::string& nome, const Variant& valore,
                               const std::optional<Variant>& note) {
  const Variant esito = conAvviso("ScriviKepGenerali", [&]() -> Variant {
    const auto scrittura = db.CreateQueryDef("", "");
    const Variant esiste = EsisteInKepGenerali(db, nome);
    if (esiste.kind() != Variant::Kind::Boolean) return esiste;
    scrittura->setSQL(Scritture[esiste.toBoolean()][note.has_value()]);
    scrittura->Parameters(0).setValue(nome);
    scrittura->Parameters(1).setValue(valore);
    if (note) scrittura->Parameters(2).setValue(*note);
    scrittura->Execute(jet::dao::dbFailOnError);
    return std::int32_t{0};
  });
  return esito.toLong();
}

}  // namespace parameters
