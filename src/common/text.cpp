#include "common/text.h"

#include "runtime/error.h"

namespace common {
namespace {

/// Bytes of the UTF-8 character that begins with `first`; a byte that begins none counts as a character.
std::size_t lengthOf(char first) {
  const auto byte = static_cast<unsigned char>(first);
  return byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 1;
}

/// The capital of a character of two bytes, where it has one in the code page.
std::string_view capitalOf(std::string_view character) {
  static constexpr std::string_view pairs[][2] = {{"ÿ", "Ÿ"}, {"š", "Š"}, {"ž", "Ž"}, {"œ", "Œ"}};
  for (const auto& [small, capital] : pairs)
    if (character == small) return capital;
  return character;
}

/// Where character `number`, from 1, begins; the text's end if there are fewer.
std::size_t placeOf(std::string_view text, std::int32_t number) {
  std::size_t place = 0;
  for (; number > 1 && place < text.size(); --number) place += lengthOf(text[place]);
  return std::min(place, text.size());
}

}  // namespace

std::string Maiuscolo(std::string_view testo) {
  std::string risultato;
  risultato.reserve(testo.size());
  for (std::size_t posto = 0; posto < testo.size();) {
    const std::string_view carattere = testo.substr(posto, lengthOf(testo[posto]));
    posto += carattere.size();
    const char ultimo = carattere.back();
    if (carattere.size() == 1) {
      risultato += ultimo >= 'a' && ultimo <= 'z' ? static_cast<char>(ultimo - 'a' + 'A') : ultimo;
    } else if (carattere >= "à" && carattere <= "þ" && carattere != "÷") {
      // The small letters of Latin-1 stand 32 behind their capitals.
      risultato += carattere.front();
      risultato += static_cast<char>(ultimo - 32);
    } else {
      risultato += capitalOf(carattere);
    }
  }
  return risultato;
}

bool StessoTesto(std::string_view a, std::string_view b) {
  return Maiuscolo(a) == Maiuscolo(b);
}

std::string SenzaSpazi(std::string_view testo) {
  const std::size_t inizio = testo.find_first_not_of(' ');
  if (inizio == std::string_view::npos) return {};
  return std::string(testo.substr(inizio, testo.find_last_not_of(' ') - inizio + 1));
}

std::string Sostituisci(std::string_view testo, std::string_view cercato, std::string_view nuovo,
                        std::int32_t inizio, std::int32_t quanti, std::int32_t confronto) {
  if (cercato.empty()) throw runtime::languageError(runtime::InvalidCall);
  const auto uguale = [&](std::string_view brano) {
    return confronto == ConfrontoTesto ? StessoTesto(brano, cercato) : brano == cercato;
  };
  // A letter and its capital have the same length in UTF-8, so a match is as long as what is searched.
  std::string risultato;
  std::int32_t fatti = 0;
  for (std::size_t posto = placeOf(testo, inizio); posto < testo.size();) {
    if ((quanti < 1 || fatti < quanti) && uguale(testo.substr(posto, cercato.size()))) {
      risultato += nuovo;
      posto += cercato.size();
      ++fatti;
    } else {
      const std::size_t lungo = lengthOf(testo[posto]);
      risultato += testo.substr(posto, lungo);
      posto += lungo;
    }
  }
  return risultato;
}

std::string SostituisciTutto(std::string_view testo, std::string_view cercato, std::string_view nuovo) {
  return Sostituisci(testo, cercato, nuovo, 1, -1, ConfrontoEsatto);
}

}  // namespace common
