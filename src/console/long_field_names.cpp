// Names of fields that later versions of the suite have shortened.
#include <array>
#include <optional>

#include "common/records.h"
#include "common/text.h"
#include "console/frmAggMain.h"

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

void frmAggMain::RinominaCampiLunghi(const std::string& tabella, bool& esito) {
  esito = false;
  try {
    const auto definizione = DbDestinazione->TableDefs(tabella);
    while (auto lungo = primoCampoLungo(*definizione)) {
      const std::string nome = lungo->campo.Name();
      ScriviRiepilogo("Tabella " + tabella + " - campo " + nome + " in modifica", true);
      if (common::EsisteCampo(tabella, lungo->nuovo, DbDestinazione)) {
        definizione->Fields().Delete(nome);
      } else {
        lungo->campo.setName(lungo->nuovo);
      }
    }
    esito = true;
  } catch (const runtime::Error& errore) {
    // The summary shows only that it failed: the run stops at it without a number.
    UltimaCorsa.causa = errore;
  }
}

}  // namespace console
