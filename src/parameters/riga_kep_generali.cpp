// The queries that find, read and write one row of KepGenerali.
#include "parameters/riga_kep_generali.h"

#include <algorithm>

#include "common/text.h"
#include "runtime/error.h"
#include "runtime/inspection.h"
#include "runtime/numbers.h"

namespace parameters {
namespace {

constexpr std::int16_t Vero = -1;

[[noreturn]] void nonImpostato() {
  throw runtime::Error(91, "clsKepGenerali", "Database dei parametri non impostato");
}

std::string testoDi(const runtime::Variant& valore) {
  return valore.isNull() ? std::string() : valore.toText();
}

/// A number as the layouts write it: 0 for a text that is none.
double numero(std::string testo) {
  if (testo.find(',') == testo.npos) std::replace(testo.begin(), testo.end(), '.', ',');
  const runtime::Variant valore(testo);
  return runtime::isNumeric(valore) ? static_cast<double>(runtime::toSingle(valore.toDouble())) : 0;
}

}  // namespace

void RigaKepGenerali::Db(const jet::dao::DatabasePtr& database) {
  db_ = database;
  QueryLeggiByNome =
      db_->CreateQueryDef("", "PARAMETERS parNome Text;SELECT * FROM KepGenerali WHERE Nome Like parNome");
}

void RigaKepGenerali::Class_Terminate() {
  QueryLeggiByNome = nullptr;
  db_ = nullptr;
}

bool RigaKepGenerali::LeggiByNome(const std::string& nomeChiesto) {
  valore_.clear();
  note.clear();
  dati.clear();
  valoreBool_ = 0;
  if (!nomeChiesto.empty()) nome = nomeChiesto;
  if (nome.empty()) return false;
  if (!QueryLeggiByNome) nonImpostato();
  QueryLeggiByNome->Parameters(0).setValue(nome);
  const auto righe = QueryLeggiByNome->OpenRecordset(jet::dao::dbOpenForwardOnly);
  if (righe->atEnd()) return false;
  valore_ = testoDi(righe->value("Valore"));
  valoreBool_ = valore_ == "1" || valore_ == "-1" ? Vero : std::int16_t{0};
  note = testoDi(righe->value("note"));
  dati = testoDi(righe->value("dati"));
  righe->Close();
  return true;
}

bool RigaKepGenerali::ScriviByNome(const std::string& nomeRiga, const runtime::Variant& valore,
                                   const runtime::Variant& nota, const runtime::Variant& terzo) {
  if (nomeRiga.empty()) return true;
  try {
    if (!db_) nonImpostato();
    const auto righe = db_->OpenRecordset("SELECT * FROM KEPGenerali WHERE Nome = '" + nomeRiga + "'",
                                          jet::dao::dbOpenDynaset);
    if (righe->BOF() && righe->atEnd()) {
      righe->AddNew();
      righe->Fields("nome").setValue(nomeRiga);
    } else {
      righe->Edit();
    }
    righe->Fields("Valore").setValue(valore);
    righe->Fields("note").setValue(nota);
    righe->Fields("dati").setValue(terzo);
    righe->Update();
    righe->Close();
    return true;
  } catch (const runtime::Error&) {
    return false;  // nothing is shown: the caller tells from the result
  }
}

float RigaKepGenerali::TrasformaInTwips(const std::string& testo) {
  struct Unita {
    std::string_view segno;
    double twips;
  };
  static constexpr Unita unita[] = {{"cm", 567}, {"\"", 1440}};
  for (const auto& [segno, twips] : unita)
    if (testo.ends_with(segno))
      return runtime::toSingle(
          twips * numero(common::SenzaSpazi(std::string_view(testo).substr(0, testo.size() - segno.size()))));
  return runtime::toSingle(numero(common::SenzaSpazi(testo)));
}

}  // namespace parameters
