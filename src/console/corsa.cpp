#include "console/corsa.h"

#include <algorithm>

#include "console/frmAggMain.h"

namespace console {

Corsa::Corsa(const std::string& percorso, const std::string& ora) : database(percorso) {
  const std::string cartella = frmAggMain::EstraiCartella(percorso);
  backup = cartella + "Backup" + ora + ".mdb";
  compattato = cartella + "New" + frmAggMain::EstraiNomeFile(percorso);
}

bool diDisegno(int numero) {
  // The engine numbers what it can't make of a statement from 3061 to 3146.
  constexpr std::array altri = {3010, 3012, 3265, 3346, 3464};
  return (numero >= 3061 && numero <= 3146) || std::ranges::find(altri, numero) != altri.end();
}

}  // namespace console
