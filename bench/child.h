#pragma once

#include <string>
#include <vector>

namespace bench {

/// What a child process took.
struct Measure {
  double seconds = 0;    // wall time, from before its start to behind its end
  double megabytes = 0;  // largest resident size
};

/// Runs a program (found in PATH if it has no slash) to its end, with its output discarded. Ends this process
/// with a message if the child fails: a figure of something that didn't happen is worth nothing.
Measure runChild(const std::vector<std::string>& command);

/// The one of the middle time; an odd number of them.
Measure middle(std::vector<Measure> runs);
/// The run of the middle time among `times` of them.
Measure medianOf(int times, const std::vector<std::string>& command);

}  // namespace bench
