#include "console/patch_list.h"

#include "common/lines.h"
#include "common/text.h"

namespace console {

// The patcher reads the same lines by a stricter rule of its own: here an apostrophe is a letter like any
// other, the key is one word and an empty value counts.
std::string nomeProgramma(std::string_view contenuto) {
  std::string nome;
  for (const std::string& riga : common::Righe(contenuto)) {
    const auto parti = common::DividiInDue(riga, '=');
    if (parti && common::StessoTesto(common::SenzaSpazi(parti->first), "Norvo-Prg"))
      nome = common::SenzaSpazi(parti->second);
  }
  return nome;
}

}  // namespace console
