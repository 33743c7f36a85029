// What one run of the update has, and how it ended.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "runtime/error.h"

namespace console {

/// How a run of the update ended.
enum class Esito {
  NonScelta,      // no database chosen, its file isn't there or is held exclusively: nothing was done
  Vietata,        // the marker file forbids it: nothing was done
  Riferimento,    // the database chosen is the reference itself: nothing was done
  NonDatabase,    // the file is no database, or a damaged one: nothing was done
  SenzaNome,      // no application was named: nothing was done
  ApertoAltrove,  // the database is open elsewhere and the operator gave up: nothing was done
  Fallita,        // an error, answered by the rollback
  NonRimossa,     // saved; the compacted file of an earlier run is in the way
  NonCompattata,  // saved, but not compacted
  Ripristinata,   // the record counts differ, and the backup was copied back
  Completata,     // saved, compacted and checked
};

/// The tables whose records are counted before and after a run, in this order.
inline constexpr std::array<const char*, 6> TabelleControllo = {"ragioniere",    "praticante", "associati",
                                                                "simpatizzante", "enti",       "gruppi"};

/// True for the errors by which a database says that it is made otherwise than the statement at hand expects:
/// a table or a field that it doesn't have, a name that is taken, a text that can't be understood, a field of
/// another type. A run goes on from them; any other error in the same place is a fault of the file or its
/// disk.
bool diDisegno(int numero);

/// "errore 3022: ...", or the description alone of an error without a number.
std::string inUnaRiga(const runtime::Error& errore);

/// One run of the update: the paths and values that belong to it alone, and how it ended.
struct Corsa {
  Corsa() = default;
  /// Of the target at `percorso`, beginning now.
  explicit Corsa(const std::string& percorso);

  /// It came to the point where it reads and copies the target.
  bool cominciata() const { return esito > Esito::ApertoAltrove; }
  /// It came to its normal end, even if without compaction.
  bool terminata() const { return esito == Esito::Completata || esito == Esito::NonCompattata; }

  std::string database;         // the target
  std::string inizio;           // the time of the start
  std::string backup;           // the target's copy of before the run; empty until it is made
  std::string compattato;       // its compacted copy
  bool usaTransazione = false;  // set when the target is open, unless its parameter says otherwise
  std::array<std::int32_t, TabelleControllo.size()> conteggi{};  // -1: could not be counted

  Esito esito = Esito::NonScelta;
  bool databaseAperto = false;    // the target was opened for writing
  bool erroreTrattenuto = false;  // a step with a trap of its own met an error that is no matter of design
  bool erroreInChiusura = false;  // an error was passed over after the commit
  std::optional<runtime::Error> causa;  // what kept it from ending well
};

}  // namespace console
