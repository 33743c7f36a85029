#pragma once

#include <string>

/// What the computer tells about itself. Where the system doesn't, an administrator does in the computer's
/// file: docs/computer.md.
namespace platform {

/// With backslashes, with or without a closing one; empty where there is none.
std::string windowsFolder();
std::string systemFolder();
/// Empty where the system tells none.
std::string computerName();
/// Value of an environment variable, its name without regard to case where the system has it so; empty
/// without one.
std::string environmentVariable(const std::string& name);

/// Reads another file (backslash path) as the computer's from now on; "": the system's own place for it.
/// Without effect where the system needs no such file.
void useComputerFile(const std::string& path);

}  // namespace platform
