// The update without a window, driven from the command line.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "console/program_options.h"
#include "controls/batch_desktop.h"

namespace console {

struct Corsa;

/// Exit statuses of the programs.
enum ExitStatus : int {
  Done = 0,
  FailedUnchanged = 1,  // the target is as it was
  Refused = 2,          // before it began; nothing written
  WouldChange = 3,      // of a plan alone
  FailedChanged = 4,    // the target is not as it was, or nobody can tell
  WrongUsage = 64,
};

struct BatchOptions : ProgramOptions {
  std::optional<std::string> app;       // a name of table Norvi, without regard to case
  std::optional<std::string> database;  // as the system writes it
  controls::BatchDesktop::Answer answer = controls::BatchDesktop::Answer::Default;
  bool plan = false;  // only shows what would change
};

/// The exit status that a run earns: after any failure the target is compared with the backup, byte by byte.
int exitStatus(const Corsa& run);

/// Updates the database of `app`, or `database`, or the application that the patch was built for. The summary
/// goes to `out` as it grows, with LF line ends; boxes, questions, refusals and, in one line, the cause of a
/// failure to `err`. Returns an ExitStatus. A plan writes one line a change to `out` and nothing to any file:
/// WouldChange, or Done if nothing would change; a run that would fail, or take the backup back, is a
/// failure.
int runBatch(const BatchOptions& options, std::ostream& out, std::ostream& err);

/// Writes the applications that the window would list, one a line: name, TAB, path as the system writes it;
/// to `err` those whose registered database isn't there. Returns Done, Refused without a reference database,
/// FailedUnchanged where `out` can't be written.
int runList(const ProgramOptions& options, std::ostream& out, std::ostream& err);

}  // namespace console
