#include "jet/file/errors.h"

namespace jet::file {

namespace {

struct Mapping {
  platform::DiskFault fault;
  JetErrorNumber number;
  const char* text;
};

constexpr Mapping Mappings[] = {
    {platform::DiskFault::NotFound, DatabaseNotFound, "Impossibile trovare il file"},
    {platform::DiskFault::PathNotFound, InvalidPath, "Il percorso non è valido"},
    {platform::DiskFault::AccessDenied, CannotOpen, "Accesso negato al file"},
    {platform::DiskFault::IsFolder, CannotOpen, "È una cartella e non un file"},
    {platform::DiskFault::Sharing, OpenedElsewhere, "Il file è in uso"},
    {platform::DiskFault::NoSpace, NotEnoughSpace, "Spazio su disco insufficiente"},
    {platform::DiskFault::Exists, DatabaseExists, "Il database esiste già:"},
    {platform::DiskFault::Io, DiskFailure, "Errore di disco o di rete"},
    {platform::DiskFault::Rights, CannotOpen,
     "Proprietario, permessi o attributi non si possono conservare per il file"},
};

}  // namespace

runtime::Error jetError(JetErrorNumber number, const std::string& description) {
  return runtime::Error(number, "DAO.Database", description);
}

runtime::Error damagedFile(const std::string& what) {
  return jetError(UnrecognizedFormat, "Formato di database non riconosciuto: " + what);
}

runtime::Error fromDisk(const platform::DiskError& error) {
  for (const Mapping& mapping : Mappings)
    if (mapping.fault == error.fault())
      return jetError(mapping.number, std::string(mapping.text) + " \"" + error.path() + "\"");
  return jetError(DiskFailure, error.description());
}

runtime::Error heldElsewhere(const std::string& path) {
  std::string text = "Il file \"" + path + "\" è già aperto";
  const std::string holder = platform::lockHolder(path);
  if (!holder.empty()) text += " da " + holder;
  return jetError(OpenedElsewhere, text);
}

}  // namespace jet::file
