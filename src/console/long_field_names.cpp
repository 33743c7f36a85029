// The table of long names, and the walk that shortens them.
#include "console/long_field_names.h"

#include <array>

#include "common/records.h"
#include "common/text.h"

namespace console {
namespace {

struct NomeLungo {
  const char* nome;
  const char* nuovo;
};

constexpr std::array NomiLunghi = {
    NomeLungo{"ds_regione_certificatore_energetico", "ds_reg_cert_energetico"},
    NomeLungo{"ds_regione_certificatore_acustico", "ds_reg_cert_acustico"},
    NomeLungo{"ds_regione_certificatore_energetico2", "ds_reg_cert_energetico2"},
    NomeLungo{"CompagniaAssicurazioneProfessionale", "CompagniaAssicurazione"},
};

struct CampoLungo {
  jet::dao::Field campo;
  std::string nuovo;
};

/// The table's first field with a long name.
std::optional<CampoLungo> primoCampoLungo(jet::dao::TableDef& tabella) {
  for (const jet::dao::Field& campo : tabella.Fields())
    for (const NomeLungo& voce : NomiLunghi)
      if (common::StessoTesto(campo.Name(), voce.nome)) return CampoLungo{campo, voce.nuovo};
  return std::nullopt;
}

}  // namespace

std::optional<runtime::Error> RinominaCampiLunghi(const schema::Ambiente& ambiente,
                                                  const std::string& tabella) {
  try {
    auto db = ambiente.destinazione;
    const auto definizione = db->TableDefs(tabella);
    while (auto lungo = primoCampoLungo(*definizione)) {
      const std::string nome = lungo->campo.Name();
      ambiente.scrivi("Tabella " + tabella + " - campo " + nome + " in modifica", schema::Voce::Modifica);
      if (common::EsisteCampo(tabella, lungo->nuovo, db)) {
        definizione->Fields().Delete(nome);
      } else {
        lungo->campo.setName(lungo->nuovo);
      }
    }
    return std::nullopt;
  } catch (const runtime::Error& errore) {
    return errore;
  }
}

}  // namespace console
