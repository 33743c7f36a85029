#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace common {

/// Capital letters for all letters of the suite's texts.
std::string Maiuscolo(std::string_view testo);
/// True if the texts are equal without regard to case.
bool StessoTesto(std::string_view a, std::string_view b);
/// Without the blanks at both ends; other white space stays.
std::string SenzaSpazi(std::string_view testo);

/// How two texts are compared: character by character, or without regard to case.
enum Confronto : std::int32_t { ConfrontoEsatto = 0, ConfrontoTesto = 1 };

/// Replaces `cercato` by `nuovo` from character `inizio` (a start below 1 counts as 1) at most `quanti`
/// times; -1 and 0 mean all. From a start of 2 on, what stands before it is dropped. Error 5 for an empty
/// `cercato`.
std::string Sostituisci(std::string_view testo, std::string_view cercato, std::string_view nuovo,
                        std::int32_t inizio = 1, std::int32_t quanti = -1,
                        std::int32_t confronto = ConfrontoEsatto);

/// Replaces every occurrence, with regard to case. With "'" and "''" it makes a value safe inside an SQL
/// text.
std::string SostituisciTutto(std::string_view testo, std::string_view cercato, std::string_view nuovo);

}  // namespace common
