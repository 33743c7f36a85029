#include "console/corsa.h"

#include "console/frmAggMain.h"

namespace console {

Corsa::Corsa(const std::string& percorso, const std::string& ora) : database(percorso) {
  const std::string cartella = frmAggMain::EstraiCartella(percorso);
  backup = cartella + "Backup" + ora + ".mdb";
  compattato = cartella + "New" + frmAggMain::EstraiNomeFile(percorso);
}

bool diDisegno(int numero) {
  return numero == 3078 || numero == 3061 || numero == 3464;
}

}  // namespace console
