// The counts of the control tables, by which a compacted file is judged.
#include "common/text.h"
#include "console/frmAggMain.h"
#include "runtime/numbers.h"

namespace console {

void frmAggMain::ContaRecords(const jet::dao::DatabasePtr& db, const std::string& tabella,
                              std::int32_t& conteggio) {
  conteggio = -1;
  if (!db) return;
  try {
    const auto domanda = db->CreateQueryDef("", "SELECT count(*) AS CountRecords FROM " + tabella);
    const auto righe = domanda->OpenRecordset(jet::dao::dbOpenSnapshot);
    const std::int32_t trovati = righe->atEnd() ? 0 : righe->Fields(std::size_t{0}).Value().toLong();
    righe->Close();
    domanda->Close();
    conteggio = trovati;
  } catch (const runtime::Error&) {
    conteggio = -1;
  }
}

void frmAggMain::ControllaRecords(const jet::dao::DatabasePtr& db, const std::string& tabella,
                                  std::int32_t attesi, bool& uguale) {
  std::int32_t trovati = 0;
  ContaRecords(db, tabella, trovati);
  uguale = trovati == attesi;
  if (uguale) return;
  const std::string differenza =
      "Tabella " + common::SenzaSpazi(tabella) + ": mancano " + runtime::str(attesi - trovati) + " records!";
  UltimaCorsa.causa = runtime::Error(0, "", differenza);
  ScriviRiepilogo("", true);
  ScriviRiepilogo(std::string(differenza), true);
  ScriviRiepilogo("", true);
}

}  // namespace console
