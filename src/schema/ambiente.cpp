// Parameters of the target that several phases go by.
#include "schema/ambiente.h"

#include <algorithm>
#include <array>

#include "common/text.h"
#include "parameters/kep_generali.h"
#include "runtime/numbers.h"

namespace schema {
namespace {

constexpr std::array TabelleWeb = {"DataWebAltriDati", "DataWebAnagrafica", "DataWebFoto",
                                   "DataWebIndirizzo", "DataWebPrivacy",    "DataWebTitoloStudio"};
constexpr std::array ApplicazioniSenzaIscritti = {"PROTOCOLLO", "TELLAROPEC"};

bool compreso(const auto& nomi, const std::string& nome) {
  return std::ranges::any_of(nomi, [&](const char* voce) { return common::StessoTesto(voce, nome); });
}

}  // namespace

runtime::Variant parametro(const Ambiente& ambiente, const std::string& nome) {
  runtime::Variant valore = parameters::LeggiKepGenerali(*ambiente.destinazione, nome);
  if (valore.kind() == runtime::Variant::Kind::Long)
    ambiente.trattieni({valore.toLong(), "", "Parametro " + nome + " non leggibile"});
  return valore;
}

bool applicazioneSenzaIscritti(const Ambiente& ambiente) {
  return compreso(ApplicazioniSenzaIscritti, ambiente.applicazione);
}

bool haPagineWeb(const Ambiente& ambiente) {
  const runtime::Variant valore = parametro(ambiente, "DataWeb");
  return valore.isText() && runtime::val(valore.toText()) > 0;
}

bool tabellaWebEsclusa(const Ambiente& ambiente, const std::string& tabella) {
  return compreso(TabelleWeb, tabella) && (applicazioneSenzaIscritti(ambiente) || !haPagineWeb(ambiente));
}

}  // namespace schema
