#include "common/text.h"

#include <algorithm>

#include "runtime/error.h"
#include "runtime/text.h"

namespace common {

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

}  // namespace common
