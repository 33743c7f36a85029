// The options that the program and its window share.
#pragma once

#include "console/program_options.h"

namespace CLI {
class App;
}

namespace aggnorvo {

/// The options that both programs have.
void addProgramOptions(CLI::App& app, console::ProgramOptions& options);

}  // namespace aggnorvo
