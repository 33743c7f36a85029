// The names of a run and the kinds of its errors.
#include "console/corsa.h"

#include <algorithm>

#include "console/copies.h"
#include "controls/batch_desktop.h"
#include "jet/file/errors.h"

namespace console {

std::string inUnaRiga(const runtime::Error& errore) {
  const std::string numero =
      errore.number() == 0 ? std::string() : "errore " + std::to_string(errore.number()) + ": ";
  return controls::oneLine(numero + errore.description());
}

Corsa::Corsa(const std::string& percorso)
    : database(percorso),
      inizio(oraPerNomi()),
      compattato(EstraiCartella(percorso) + "New" + EstraiNomeFile(percorso)) {}

bool diDisegno(int numero) {
  // The engine numbers what it can't make of a statement from 3061 to 3146.
  constexpr std::array altri = {jet::TableExists, jet::ObjectExists, jet::ItemNotFound,
                                jet::InsertCountDiffers, jet::TypesDiffer};
  return (numero >= jet::TooFewParameters && numero <= 3146) ||
         std::ranges::find(altri, numero) != altri.end();
}

}  // namespace console
