#pragma once

#include <string>

namespace common {

/// True if the file can be opened for input: not if another opener holds it exclusively. Any failure is
/// false.
bool EsisteFile(const std::string& percorso);
/// True if the file is there and another opener holds it exclusively.
bool FileOccupato(const std::string& percorso);

/// A path as an operator or a setting writes it, in the form that the suite keeps: one with the slashes of
/// the system gets backslashes and becomes absolute.
std::string PercorsoInterno(const std::string& percorso);

}  // namespace common
