#pragma once

#include <string>

#include "jet/dao/database.h"

/// The texts and the database that the whole suite sees.
namespace common {

/// The application chosen for the next run, as table Norvi writes it.
inline std::string NomeApplicazione;
/// The application of the run that is under way, copied from NomeApplicazione when it begins.
inline std::string ApplicazioneCorrente;
/// The database that a run has open; nothing outside a run.
inline jet::dao::DatabasePtr DatabaseAperto;

}  // namespace common
