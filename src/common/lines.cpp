// A text file's bytes as lines, and a line as key and value.
#include "common/lines.h"

#include "platform/code_page.h"
#include "runtime/letters.h"

namespace common {
namespace {

constexpr std::string_view segnoUtf8 = "\xEF\xBB\xBF";

/// UTF-8 as a file claims to hold it: a byte that belongs to no character becomes U+FFFD.
std::string daUtf8(std::string_view byte) {
  std::string testo;
  while (!byte.empty()) runtime::appendUtf8(runtime::takeValidCharacter(byte), testo);
  return testo;
}

}  // namespace

std::vector<std::string> Righe(std::string_view contenuto) {
  const bool conSegno = contenuto.starts_with(segnoUtf8);
  if (conSegno) contenuto.remove_prefix(segnoUtf8.size());
  const auto decifra = conSegno ? daUtf8 : platform::fromCodePage1252;
  std::vector<std::string> righe;
  while (!contenuto.empty()) {
    const std::size_t fine = contenuto.find_first_of("\r\n");
    if (fine != 0) righe.push_back(decifra(contenuto.substr(0, fine)));
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
