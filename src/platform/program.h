#pragma once

#include <string>
#include <vector>

namespace platform {

/// Keeps the descriptors of the standard streams that the program was started without occupied, so that no
/// file that it opens becomes one of them; reading and writing such a stream fails. The first thing that a
/// program does. Ends the program if that can't be had.
void holdStandardStreams();
/// False if the program was started without a standard output, or with one that is only for reading.
bool hasStandardOutput();

/// Makes a limit on file sizes and a closed pipe errors of the write that meets them, not the end of the
/// program.
void keepRunningOnWriteSignals();

/// Goes on as the program at `path` with these arguments, its name not among them. Returns that program's
/// exit status, where the system starts it beside this one, or not at all. Error 53, 75 or 5 if it can't be
/// started.
int continueAs(const std::string& path, const std::vector<std::string>& arguments);

}  // namespace platform
