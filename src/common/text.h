#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/variant.h"

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

/// How often `cercato` stands in `testo`, exactly; occurrences may overlap ("aa" stands twice in "aaa").
std::int32_t ContaOccorrenze(std::string_view testo, std::string_view cercato);

/// A Long: the position, in characters from 1, of occurrence number `occorrenza` (-1: the last) of `cercato`
/// from character `inizio` on; 0 if there are fewer, or more are asked for than `testo` has room for. Any
/// other number gives 0. Occurrences may overlap. An error (5: a start below 1, an unknown comparison) goes
/// to GestisciErrore, and the result is 0.
runtime::Variant InStrEx(std::int32_t occorrenza, std::int32_t inizio, const std::string& testo,
                         const std::string& cercato, std::int32_t confronto);

/// In capitals, accents folded (Forlì: FORLI; ð: O), all but letters dropped. Error 6 beyond 32,767
/// characters.
std::string SenzaAccenti(std::string_view testo);
/// Its digits. Error 6 beyond 32,767 characters.
std::string SoloCifre(std::string_view testo);

/// The pieces of `testo` between the delimiters; one at its very end adds no empty piece, an empty one never
/// occurs. At most `limite` pieces (-1: all), and what follows them is dropped.
std::vector<std::string> Dividi(std::string_view testo, std::string_view delimitatore,
                                std::int32_t limite = -1, std::int32_t confronto = ConfrontoEsatto);

/// Puts what stands behind the first "<tag>" up to the next "<" or the end into `valore`. False if the tag is
/// not there; `valore` then stays. Angle brackets are added to a `tag` that doesn't begin with one.
bool LeggiTag(std::string_view xml, std::string tag, std::string& valore);

/// Empty, whatever the text.
runtime::Variant ValoreVuoto(const std::string& testo);

}  // namespace common
