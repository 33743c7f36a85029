// Searching, replacing and splitting, by characters and with or without regard to case.
#include "common/text.h"

#include <algorithm>

#include "common/error_log.h"
#include "runtime/error.h"
#include "runtime/letters.h"
#include "runtime/text.h"

namespace common {
namespace {

/// A text as `confronto` tells characters apart.
std::u32string confrontabile(std::string_view testo, std::int32_t confronto) {
  const bool esatto = runtime::compareMode(confronto) == runtime::Compare::Exact;
  return runtime::characters(esatto ? std::string(testo) : runtime::lowerCase(testo));
}

/// Where `cercato` stands from character `inizio` (from 1) on, overlapping places too. An empty one stands at
/// every character.
std::vector<std::int32_t> posizioni(const std::u32string& dove, const std::u32string& cercato,
                                    std::int32_t inizio) {
  std::vector<std::int32_t> trovate;
  for (auto a = dove.find(cercato, static_cast<std::size_t>(inizio) - 1); a < dove.size();
       a = dove.find(cercato, a + 1))
    trovate.push_back(static_cast<std::int32_t>(a) + 1);
  return trovate;
}

/// The suite's routines count characters in 16 bits.
std::u32string caratteriContati(std::string_view testo) {
  std::u32string caratteri = runtime::characters(testo);
  if (caratteri.size() > INT16_MAX) throw runtime::languageError(runtime::Overflow);
  return caratteri;
}

}  // namespace

std::string Maiuscolo(std::string_view testo) {
  return runtime::upperCase(testo);
}

bool StessoTesto(std::string_view a, std::string_view b) {
  return runtime::strComp(a, b, runtime::Compare::Text) == 0;
}

std::string SenzaSpazi(std::string_view testo) {
  return std::string(runtime::trimmed(testo));
}

std::string Sostituisci(std::string_view testo, std::string_view cercato, std::string_view nuovo,
                        std::int32_t inizio, std::int32_t quanti, std::int32_t confronto) {
  if (cercato.empty()) throw runtime::languageError(runtime::InvalidCall);
  return runtime::replace(testo, cercato, nuovo, std::max(inizio, 1), quanti < 1 ? -1 : quanti,
                          runtime::compareMode(confronto));
}

std::string SostituisciTutto(std::string_view testo, std::string_view cercato, std::string_view nuovo) {
  return Sostituisci(testo, cercato, nuovo, 1, -1, ConfrontoEsatto);
}

std::int32_t ContaOccorrenze(std::string_view testo, std::string_view cercato) {
  return static_cast<std::int32_t>(
      posizioni(runtime::characters(testo), runtime::characters(cercato), 1).size());
}

runtime::Variant InStrEx(std::int32_t occorrenza, std::int32_t inizio, const std::string& testo,
                         const std::string& cercato, std::int32_t confronto) {
  try {
    // More than there is room for are not there, whatever the other arguments.
    if (occorrenza > static_cast<std::int64_t>(runtime::length(testo)) - inizio + 1) return std::int32_t{0};
    if (inizio < 1) throw runtime::languageError(runtime::InvalidCall);
    const auto trovate =
        posizioni(confrontabile(testo, confronto), confrontabile(cercato, confronto), inizio);
    if (occorrenza == -1) return trovate.empty() ? 0 : trovate.back();
    const auto indice = static_cast<std::size_t>(occorrenza) - 1;
    return occorrenza > 0 && indice < trovate.size() ? trovate[indice] : 0;
  } catch (const runtime::Error& errore) {
    GestisciErrore(errore, "InStrEx", false, "");
    return std::int32_t{0};
  }
}

std::string SenzaAccenti(std::string_view testo) {
  static constexpr std::pair<char, std::u32string_view> tavola[] = {
      {'E', U"èéêëÈÉÊË"},    {'A', U"àáâãäåÄÁÂÀÃÅ"}, {'I', U"ìíîïÌÍÎÏ"},
      {'O', U"ðòóôõöÒÓÔÕÖ"}, {'U', U"ùúûüÙÚÛÜ"},     {'C', U"çÇ"},
      {'N', U"ñÑ"},          {'Y', U"ýÿÝŸ"},         {'S', U"šŠ"},
      {'Z', U"žŽ"}};
  std::string esito;
  for (const char32_t lettera : caratteriContati(testo)) {
    if ((lettera >= U'A' && lettera <= U'Z') || (lettera >= U'a' && lettera <= U'z')) {
      esito += static_cast<char>(runtime::upperCase(lettera));
      continue;
    }
    for (const auto& [base, accentate] : tavola)
      if (accentate.find(lettera) != accentate.npos) esito += base;
  }
  return esito;
}

std::string SoloCifre(std::string_view testo) {
  std::string cifre;
  for (const char32_t carattere : caratteriContati(testo))
    if (carattere >= U'0' && carattere <= U'9') cifre += static_cast<char>(carattere);
  return cifre;
}

std::vector<std::string> Dividi(std::string_view testo, std::string_view delimitatore, std::int32_t limite,
                                std::int32_t confronto) {
  const std::u32string tutto = runtime::characters(testo), dove = confrontabile(testo, confronto),
                       fine = confrontabile(delimitatore, confronto);
  std::vector<std::string> voci;
  for (std::size_t da = 0;
       da < tutto.size() && (limite < 0 || voci.size() < static_cast<std::size_t>(limite));) {
    const std::size_t a = fine.empty() ? dove.npos : dove.find(fine, da);
    voci.push_back(runtime::toUtf8(std::u32string_view(tutto).substr(da, a - da)));
    if (a == dove.npos) break;
    da = a + fine.size();
  }
  return voci;
}

bool LeggiTag(std::string_view xml, std::string tag, std::string& valore) {
  if (!tag.starts_with('<')) tag = "<" + tag + ">";
  const std::size_t trovato = xml.find(tag);
  if (trovato == xml.npos) return false;
  xml.remove_prefix(trovato + tag.size());
  valore = xml.substr(0, xml.find('<'));
  return true;
}

runtime::Variant ValoreVuoto(const std::string&) {
  return {};
}

}  // namespace common
