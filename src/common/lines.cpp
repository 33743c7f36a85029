#include "common/lines.h"

#include "platform/code_page.h"

namespace common {

std::vector<std::string> Righe(std::string_view contenuto) {
  std::vector<std::string> righe;
  while (!contenuto.empty()) {
    const std::size_t fine = contenuto.find_first_of("\r\n");
    if (fine != 0) righe.push_back(platform::fromCodePage1252(contenuto.substr(0, fine)));
    contenuto.remove_prefix(fine == contenuto.npos ? contenuto.size() : fine + 1);
  }
  return righe;
}

std::optional<std::pair<std::string_view, std::string_view>> DividiInDue(std::string_view testo, char segno) {
  const std::size_t posto = testo.find(segno);
  if (posto == testo.npos) return std::nullopt;
  return std::pair(testo.substr(0, posto), testo.substr(posto + 1));
}

}  // namespace common
