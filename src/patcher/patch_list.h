#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The grammar of PatchList.txt: lines "Chiave-Comando=Valore ' comment".
namespace patcher {

/// A row of the list, its parts without the blanks around them.
struct Riga {
  std::string Chiave;
  std::string Comando;
  std::string Valore;
};

/// The row that a line of the file writes; nothing for a line of another form. The first "-" ends the key and
/// the first "=" the command, so a command can hold further "-" signs and a value both. A part made of blanks
/// counts as written; a missing one does not.
std::optional<Riga> leggiRiga(std::string_view riga);

}  // namespace patcher
