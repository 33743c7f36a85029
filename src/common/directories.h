#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Directories of this computer and of the suite's applications. A directory ends in a backslash, so that a
/// file name can follow it at once.
namespace common {

/// Empty where the computer names none.
std::string DirWindows();
std::string DirSystem();
/// Up to 15 characters; empty where the system tells none.
std::string NomeComputer();

/// The text before the first NUL.
std::string TroncaAlNul(std::string_view testo);
/// Takes the blanks behind the path away and closes it with a backslash, unless it ends in "/" or "\"
/// already.
void AggiungiBarra(std::string& percorso);

/// Levels of GetDBParentDir; any other number counts as DirDatabase.
enum Livello : std::int32_t { DirDatabase = 0, DirSopraDatabase = 1 };

/// Directory of the database that the settings name for this application (section "DBSECTION", key "dbPath"),
/// or the one above it; empty where there is none. An error goes to GestisciErrore and gives an empty text.
std::string GetDBParentDir(const std::string& nomeApp, std::int32_t livello);

/// Kinds of VerificaDir; any other number gives an empty text.
enum TipoDir : std::int32_t {
  DirTesserini = 0,  // 0 to 3: beside the database's directory
  DirStampe = 1,
  DirScan = 2,
  DirAllegati = 3,       // one for each computer
  DirTempProgramma = 4,  // below the program's directory
  DirDatabaseNorvo = 5,  // the database's own
  DirTempUtente = 6,     // the environment's "Temp", as it stands
};

/// A directory of the application. The name of a sub-directory comes also where the directory above it is
/// empty. An error goes to GestisciErrore and gives an empty text.
std::string VerificaDir(std::int32_t tipo, const std::string& nomeApp);

}  // namespace common
