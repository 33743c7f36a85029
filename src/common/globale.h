// What the whole suite sees, and nothing else is global.
#pragma once

#include <string>

#include "jet/dao/database.h"

namespace platform {
class Settings;
}

/// What the whole suite sees: texts, the open database, where the program lies and its settings.
namespace common {

/// The application of the last run, as table Norvi writes it; a run sets it (console/aggiornamento.h). A
/// database that is picked by hand afterwards counts as one of the same.
inline std::string NomeApplicazione;
/// The same from the moment when a run knows it: what the migrations and the register's link go by.
inline std::string ApplicazioneCorrente;
/// The database that a run has open; nothing outside a run, which sets it.
inline jet::dao::DatabasePtr DatabaseAperto;
/// The directory of the executable, or what stands for it, without a closing backslash; each program sets it.
inline std::string DirProgramma;
/// The per-user settings in force, which each program opens and keeps.
inline const platform::Settings* Impostazioni = nullptr;

}  // namespace common
