#pragma once

#include <iosfwd>
#include <string>

/// The patch without a window: the same form that the operator uses, driven from the command line.
namespace patcher {

/// Exit statuses.
enum PatchStatus : int {
  PatchDone = 0,
  PatchErrors = 1,      // a file could not be copied, or a box has told of an error
  PatchUnreadable = 2,  // there is no list, or it can't be read; nothing written
};

/// Runs the list in `folder` (backslashes) with the settings in common::Impostazioni. The report goes to
/// `out` as it grows, with LF line ends, boxes and refusals to `err`. Where the directories can't be looked
/// up nothing is copied: no operator is there to judge by. Returns a PatchStatus.
int runPatch(const std::string& folder, std::ostream& out, std::ostream& err);

}  // namespace patcher
