// A patch driven from the command line, with the exit status that it earns.
#include "patcher/batch.h"

#include <ostream>

#include "controls/batch_desktop.h"
#include "patcher/frmPatch.h"
#include "platform/paths.h"
#include "runtime/error.h"

namespace patcher {
namespace {

/// What keeps the run from beginning, with the reason in `err`; PatchDone if nothing does.
PatchStatus load(frmPatch& form, const std::string& folder, std::ostream& err) {
  try {
    form.Path(folder);
    form.load();
    return PatchDone;
  } catch (const controls::ProgramEnded&) {
    // The boxes have told it.
  } catch (const runtime::Error& failure) {
    err << failure.description() << std::endl;
  }
  if (form.ElencoLetto) return PatchErrors;
  err << "Elenco della patch non leggibile: " << platform::toSystemPath(folder + "\\PatchList.txt")
      << std::endl;
  return PatchUnreadable;
}

}  // namespace

int runPatch(const std::string& folder, std::ostream& out, std::ostream& err) {
  controls::BatchDesktop desktop(err);
  const controls::DesktopScope scope(desktop);
  frmPatch form;
  form.SenzaOperatore = true;
  if (const PatchStatus status = load(form, folder, err); status != PatchDone) return status;
  if (desktop.boxesShown() > 0) return PatchErrors;
  controls::streamText(form.txt, out);
  try {
    form.cmd.press();
  } catch (const runtime::Error& failure) {
    err << failure.description() << std::endl;
    return PatchErrors;
  }
  if (const std::string& report = form.txt.text(); !report.empty() && report.back() != '\n') out << std::endl;
  if (!out.flush()) err << "Lo standard output non si può scrivere." << std::endl;
  return form.ErroriPatch > 0 || desktop.boxesShown() > 0 ? PatchErrors : PatchDone;
}

}  // namespace patcher
