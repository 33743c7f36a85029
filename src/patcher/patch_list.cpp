// A line of PatchList.txt taken apart.
#include "patcher/patch_list.h"

#include "common/lines.h"
#include "common/text.h"

namespace patcher {

std::optional<Riga> leggiRiga(std::string_view riga) {
  // Only the line with a comment loses its outer blanks, which tells " -AGG=" from "-AGG=".
  std::string senzaCommento;
  if (const auto commento = common::DividiInDue(riga, '\'')) {
    senzaCommento = common::SenzaSpazi(commento->first);
    riga = senzaCommento;
  }
  const auto parti = common::DividiInDue(riga, '=');
  const auto chiavi = parti ? common::DividiInDue(parti->first, '-') : std::nullopt;
  if (!chiavi) return std::nullopt;
  if (parti->second.empty() || chiavi->first.empty() || chiavi->second.empty()) return std::nullopt;
  return Riga{common::SenzaSpazi(chiavi->first), common::SenzaSpazi(chiavi->second),
              common::SenzaSpazi(parti->second)};
}

}  // namespace patcher
