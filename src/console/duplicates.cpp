// Groups of equal rows, thinned out one row at a time until none is left.
#include "console/duplicates.h"

#include "common/text.h"

namespace console {
namespace {

/// The value of a row as it goes into an SQL text; a Null counts as empty.
std::string inSql(jet::dao::Recordset& righe, const char* campo) {
  const runtime::Variant valore = righe.value(campo);
  return valore.isNull() ? std::string() : common::SostituisciTutto(valore.toText(), "'", "''");
}

/// Deletes the earliest of the rows like the current one of `gruppi`; false if there is only one.
bool eliminaPrimo(jet::dao::Database& db, jet::dao::Recordset& gruppi) {
  const auto comuni =
      db.OpenRecordset("SELECT * FROM italia_comuni WHERE ISTAT = '" + inSql(gruppi, "ISTAT") +
                           "' AND Comune = '" + inSql(gruppi, "Comune") + "' AND PROVINCIA = '" +
                           inSql(gruppi, "PROVINCIA") + "' ORDER BY DataFine",
                       jet::dao::dbOpenDynaset);
  // A dynaset counts the records that it has come to: all of them at the last.
  if (!comuni->atEnd()) comuni->MoveLast();
  const bool doppio = comuni->RecordCount() > 1;
  if (doppio) {
    comuni->MoveFirst();
    comuni->Delete();
  }
  comuni->Close();
  return doppio;
}

}  // namespace

bool EliminaComuniDuplicati(const schema::Ambiente& ambiente) {
  try {
    jet::dao::Database& db = *ambiente.destinazione;
    const auto gruppi = db.OpenRecordset(
        "SELECT ISTAT, Comune, PROVINCIA, COUNT(*) AS Conta FROM italia_comuni GROUP BY ISTAT, Comune, "
        "PROVINCIA "
        "HAVING COUNT(*) > 1",
        jet::dao::dbOpenSnapshot);
    if (!gruppi->atEnd())
      ambiente.scrivi("Tabella italia_comuni: eliminazione comuni duplicati ....", schema::Voce::Modifica);
    while (!gruppi->atEnd()) {
      bool eliminati = false;
      for (; !gruppi->atEnd(); gruppi->MoveNext())
        if (eliminaPrimo(db, *gruppi)) eliminati = true;
      // Rows with a Null are a group, but no row equals a Null: without this they would be asked for for
      // ever.
      if (!eliminati) break;
      gruppi->Requery();
      if (gruppi->atEnd()) ambiente.scrivi("fatto", schema::Voce::Seguito);
    }
    gruppi->Close();
    return true;
  } catch (const runtime::Error& errore) {
    ambiente.trattieni(errore);
    ambiente.scrivi("- errore " + std::to_string(errore.number()) + "-", schema::Voce::Errore);
    ambiente.scrivi(errore.description(), schema::Voce::Errore);
    return false;
  }
}

}  // namespace console
