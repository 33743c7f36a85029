// An option that lost its value must not take the next option for it: a dry run would become the real one.
#include <CLI/CLI.hpp>

#include "apps/command_line.h"

namespace apps {
namespace {

/// What is wrong with a value; empty if nothing.
std::string refusal(const std::string& value) {
  if (value.empty()) return "il valore è vuoto";
  return value.starts_with("--") ? "manca il valore prima di " + value : std::string();
}

}  // namespace

void refuseSwallowedOptions(CLI::App& app) {
  for (CLI::Option* option : app.get_options()) {
    if (option->get_positional()) continue;  // behind a bare "--" it may be anything
    if (option->get_items_expected_max() == 0) {
      option->disable_flag_override();
    } else {
      option->check(refusal);
    }
  }
}

}  // namespace apps
