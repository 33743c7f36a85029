#pragma once

#include <cstdint>
#include <string>

#include "jet/dao/database.h"
#include "runtime/variant.h"

namespace parameters {

/// A cursor on one row of table KepGenerali: each read leaves the row's columns in the fields until the next.
class RigaKepGenerali {
 public:
  RigaKepGenerali() = default;
  // Properties point at it.
  RigaKepGenerali(const RigaKepGenerali&) = delete;
  RigaKepGenerali& operator=(const RigaKepGenerali&) = delete;

  /// The database to work on, to be set before anything else is asked (error 91 otherwise). Prepares the
  /// reading query; errors as CreateQueryDef.
  void Db(const jet::dao::DatabasePtr& database);
  /// Lets go of the query and the database.
  void Class_Terminate();

  std::string nome;  // the key asked for last
  std::string note;  // of the last read; what some setters write
  std::string dati;
  /// Of the last read; empty where the column is Null or no row was found.
  const std::string& Valore() const { return valore_; }
  /// Valore as a flag: -1 for "1" and "-1", 0 for anything else.
  std::int16_t ValoreBool() const { return valoreBool_; }

  /// Reads the row of this key (without one, of the last key) into the fields. False, and the fields empty,
  /// if there is none. The key is a pattern of Like; of several rows the first counts. Errors of the query.
  bool LeggiByNome(const std::string& nome = {});
  /// Writes the row of this key, made if there is none; without `dati` that column becomes empty. True if
  /// that went well, and for an empty key, which writes nothing.
  bool ScriviByNome(const std::string& nome, const runtime::Variant& valore, const runtime::Variant& note,
                    const runtime::Variant& dati = "");

  /// A length as the layouts have it ("2,5cm", "1\"" for inches, "720" in twips) in twips; 0 for another
  /// text. Decimal sign is the comma, or a point where there is no comma. Error 6 beyond 32 bits.
  static float TrasformaInTwips(const std::string& testo);

 private:
  jet::dao::DatabasePtr db_;
  jet::dao::QueryDefPtr QueryLeggiByNome;
  std::string valore_;
  std::int16_t valoreBool_ = 0;
};

}  // namespace parameters
