// The applications of the suite on this computer.
#pragma once

#include <functional>
#include <string>

#include "jet/dao/recordset.h"

namespace platform {
class Settings;
}

namespace console {

/// An application that the suite knows.
struct Applicazione {
  std::string nome;      // as table Norvi writes it
  std::string percorso;  // registered on this computer for its database, with backslashes; empty: none is
  bool presente;         // the file is there
};

/// The path if a file is there, otherwise empty.
std::string Check_Percorso(const std::string& percorso);

/// Calls `voce` for each record of table Norvi, in their order. Throws the engine's errors.
void elencaApplicazioni(jet::dao::Recordset& norvi, const platform::Settings& impostazioni,
                        const std::function<void(const Applicazione&)>& voce);

/// The application that the patch was built for: the last value of key "Norvo-Prg" in PatchList.txt of the
/// program's folder; empty if there is none. Throws if the list can't be read.
std::string applicazioneDellaPatch(const std::string& cartella);

}  // namespace console
