#pragma once

#include <cstddef>
#include <string>

namespace jet::dao {
class Database;
}

namespace catalogo {

/// Stores every query of `model` in `reference` under its name, except those that forms and reports keep for
/// themselves. Returns their number.
std::size_t copyQueries(jet::dao::Database& reference, jet::dao::Database& model);

/// Copies the table `name` of `model` with its rows to `reference`, as `prefix` ("ADD_" or "INS_") and its
/// name, in place of the one that is there. Error 3265 if the model doesn't have it. Returns the number of
/// rows.
std::size_t copyTable(jet::dao::Database& reference, jet::dao::Database& model, const std::string& prefix,
                      const std::string& name);

}  // namespace catalogo
