// Records counted by a statement of the target.
#include "console/record_counts.h"

#include "common/text.h"
#include "runtime/numbers.h"

namespace console {

std::int32_t ContaRecords(const jet::dao::DatabasePtr& db, const std::string& tabella) {
  if (!db) return -1;
  try {
    const auto domanda = db->CreateQueryDef("", "SELECT count(*) AS CountRecords FROM " + tabella);
    const auto righe = domanda->OpenRecordset(jet::dao::dbOpenSnapshot);
    const std::int32_t trovati = righe->atEnd() ? 0 : righe->Fields(std::size_t{0}).Value().toLong();
    righe->Close();
    domanda->Close();
    return trovati;
  } catch (const runtime::Error&) {
    return -1;
  }
}

std::optional<std::string> ControllaRecords(const schema::Ambiente& ambiente, const std::string& tabella,
                                            std::int32_t attesi) {
  const std::int32_t trovati = ContaRecords(ambiente.destinazione, tabella);
  if (trovati == attesi) return std::nullopt;
  const std::string differenza =
      "Tabella " + common::SenzaSpazi(tabella) + ": mancano " + runtime::str(attesi - trovati) + " records!";
  for (const std::string& testo : {std::string(), differenza, std::string()})
    ambiente.scrivi(testo, schema::Voce::Errore);
  return differenza;
}

}  // namespace console
