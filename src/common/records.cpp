#include "common/records.h"

#include "common/globale.h"
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

}  // namespace common
