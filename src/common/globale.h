#pragma once

#include <string>

#include "jet/dao/database.h"

namespace platform {
class Settings;
}

/// What the whole suite sees: texts, the open database, where the program lies and its settings.
namespace common {

/// The application chosen for the next run, as table Norvi writes it.
inline std::string NomeApplicazione;
/// The application of the run that is under way, copied from NomeApplicazione when it begins.
inline std::string ApplicazioneCorrente;
/// The database that a run has open; nothing outside a run.
inline jet::dao::DatabasePtr DatabaseAperto;
/// The directory of the executable, or what stands for it, without a closing backslash; each program sets it.
inline std::string DirProgramma;
/// The per-user settings in force, which each program opens and keeps.
inline const platform::Settings* Impostazioni = nullptr;

}  // namespace common
