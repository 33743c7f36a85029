#pragma once

#include "platform/ini_file.h"

namespace platform {

/// The file in which an administrator tells what the system can't (docs/computer.md), as it is now.
IniFile computerFile();
/// A folder or a program in it, with slashes or backslashes, as the product keeps paths.
std::string administratorsPath(const std::string& text);

}  // namespace platform
