// The questions that the phases ask of the reference database.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

#include "jet/dao/database.h"
#include "runtime/variant.h"
#include "schema/ambiente.h"

/// The tables of the reference database that say how a database of each application must look.
namespace schema {

/// What is asked of the catalogue: always rows of "Tutti" and of the application of the run.
enum class Domanda {
  Tabelle,
  CampiTabella,  // of a table
  TabelleDaRidurre,
  CampiDaEliminare,  // of a table
  Indici,
  CampiIndice,  // of a table and an index
  Relazioni,
  CampiRelazione,  // of a relation
};

/// One of these questions, kept open as long as a phase asks it. A missing table or column of the catalogue
/// is the engine's error.
class Interrogazione {
 public:
  Interrogazione(const Ambiente& ambiente, Domanda domanda);
  ~Interrogazione();
  Interrogazione(const Interrogazione&) = delete;
  Interrogazione& operator=(const Interrogazione&) = delete;

  /// The rows for a table, index or relation, in the order in which they stand in the reference.
  jet::dao::RecordsetPtr righe(std::initializer_list<std::string> nomi = {});
  /// The same for a question whose rows there must be: error 3021 if there are none. Their count is known.
  jet::dao::RecordsetPtr righeContate(std::initializer_list<std::string> nomi);

 private:
  jet::dao::QueryDefPtr query_;
};

/// True if the catalogue tells something else than was found; a Null tells nothing. Texts are compared
/// without regard to case.
bool diverso(const runtime::Variant& catalogo, const std::string& trovato);
bool diverso(const runtime::Variant& catalogo, std::int32_t trovato);
bool diverso(const runtime::Variant& catalogo, bool trovato);

}  // namespace schema
