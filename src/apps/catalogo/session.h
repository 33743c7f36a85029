#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace catalogo {

/// What the command line asks for. Files as the system writes paths.
struct Request {
  std::string reference, model;
  std::string norvo = "Tutti";
  std::vector<std::string> add, ins;  // tables whose rows the reference carries along
  bool create = false;
};

/// Writes the reference from the model and tells on `summary` what it wrote. On an error, told on `errors`,
/// the reference is as it was; one that was made is removed. Returns the exit status, 0 or 1.
int run(const Request& request, std::ostream& summary, std::ostream& errors);

}  // namespace catalogo
