// Fields, tables and transactions of the open database; the state of an event.
#include "common/records.h"

#include "common/globale.h"
#include "jet/dao/engine.h"
#include "runtime/error.h"

namespace common {

bool EsisteCampo(const std::string& tabella, const std::string& campo, jet::dao::DatabasePtr& db) {
  if (!db) db = DatabaseAperto;
  if (!db) return false;
  try {
    db->TableDefs().Refresh();
    db->TableDefs(tabella)->Fields(campo);
    return true;
  } catch (const runtime::Error&) {
    return false;
  }
}

void EliminaTabella(jet::dao::Database& db, const std::string& nome) {
  db.TableDefs().Delete(nome);
}

void IniziaTrans(std::int16_t& flag) {
  jet::dao::DBEngine::Workspaces(0)->BeginTrans();
  flag = 1;
}

void ChiudiTrans(std::int16_t& flag) {
  if (flag != 1) return;
  jet::dao::DBEngine::Workspaces(0)->CommitTrans();
  flag = 0;
}

std::string CodiceEventoEffettivo(const runtime::Variant& evento, const runtime::Variant& motivo) {
  static constexpr const char* effettivi[][2] = {{"IS", "SO"}, {"CA", "RA"}};
  const auto uguale = [](const runtime::Variant& valore, const char* codice) {
    return !valore.isNull() && valore.toText() == codice;
  };
  for (const auto& [tipo, causa] : effettivi)
    if (uguale(evento, tipo) && uguale(motivo, causa)) return motivo.toText();
  return evento.toText();
}

}  // namespace common
