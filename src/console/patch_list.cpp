#include "console/patch_list.h"

#include "common/text.h"
#include "platform/code_page.h"

namespace console {

std::string nomeProgramma(std::string_view contenuto) {
  std::string nome;
  while (!contenuto.empty()) {
    const std::size_t fine = contenuto.find_first_of("\r\n");
    const std::string riga = platform::fromCodePage1252(contenuto.substr(0, fine));
    contenuto.remove_prefix(fine == std::string_view::npos ? contenuto.size() : fine + 1);
    const std::size_t uguale = riga.find('=');
    if (uguale == std::string::npos) continue;
    if (common::StessoTesto(common::SenzaSpazi(riga.substr(0, uguale)), "Norvo-Prg"))
      nome = common::SenzaSpazi(riga.substr(uguale + 1));
  }
  return nome;
}

}  // namespace console
