#pragma once

#include <cstdint>
#include <string>

#include "runtime/error.h"
#include "runtime/variant.h"

/// The last-resort reporter of errors, and the texts that tell of changes.
namespace common {

/// True in a host that runs unattended: ScriviLogAggiornamenti then writes instead of showing.
inline bool ModoAutomatico = false;
/// The lines written in unattended mode, each closed by CR LF.
inline std::string LogAutomatico;
/// Path of a database; the unattended log goes beside the folder "\db..." in it.
inline std::string PercorsoLog;

/// Adds the error to error.log in the folder of the program and shows it, `messaggio` on a line of its own
/// unless empty. `procedura` is the name that the trapping procedure gives itself. A fatal one ends the
/// program (controls::ProgramEnded). An error numbered 0 does nothing. Errors: those of writing the file,
/// with what it should have taken behind their own description, and then nothing is shown.
void GestisciErrore(const runtime::Error& errore, const std::string& procedura, bool fatale,
                    const std::string& messaggio);

/// Shows `messaggio` in a box of `stile` (controls::MessageStyle); in unattended mode adds a dated line to
/// AggiornamentiAutomaticiLog.txt instead, where nothing happens if PercorsoLog has no "\db", and a file that
/// can't be written is passed over.
void ScriviLogAggiornamenti(const std::string& messaggio, std::int32_t stile);

/// "etichetta: sostituito [vecchio] con [nuovo]"; for equal values "etichetta: invariato [nuovo]" if
/// `sempreRiga`, else nothing. Values are compared and shown as texts without the blanks around them, Null as
/// an empty one. `aCapo` closes a text that is not empty with CR LF.
std::string DescriviVariazione(const std::string& etichetta, const runtime::Variant& vecchio,
                               const runtime::Variant& nuovo, const runtime::Variant& sempreRiga, bool aCapo);

}  // namespace common
