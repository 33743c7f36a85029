// The running summary of a run, and the file that it is kept in.
#pragma once

#include <string>

#include "controls/text_box.h"

namespace console {

/// Appends to the summary in `casella`, on a new line if `aCapo` (then `testo` comes back with the line end
/// in front), and lets events run.
void ScriviRiepilogo(controls::TextBox& casella, std::string& testo, const bool& aCapo);

/// Saves the box's text, in code page 1252, in a file of its own in `cartella` that is named by `programma`
/// and the time. False after a failure, of which a box has told.
bool SalvaRiepilogo(const controls::TextBox& casella, const std::string& cartella,
                    const std::string& programma);

}  // namespace console
