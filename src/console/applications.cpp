// Table Norvi, the registered paths and the list of the patch.
#include "console/applications.h"

#include "common/files.h"
#include "common/lines.h"
#include "common/text.h"
#include "platform/files.h"
#include "platform/settings.h"

namespace console {

std::string Check_Percorso(const std::string& percorso) {
  try {
    return platform::fileExists(percorso) ? percorso : std::string();
  } catch (const runtime::Error&) {
    return {};
  }
}

void elencaApplicazioni(jet::dao::Recordset& norvi, const platform::Settings& impostazioni,
                        const std::function<void(const Applicazione&)>& voce) {
  for (; !norvi.atEnd(); norvi.MoveNext()) {
    const std::string nome = norvi.value("norvo").toText();
    const std::string percorso = common::PercorsoInterno(impostazioni.get(nome, "DBSECTION", "dbpath"));
    voce({nome, percorso, !percorso.empty() && !Check_Percorso(percorso).empty()});
  }
}

// The patcher reads the same lines by a stricter rule of its own: here an apostrophe is a letter like any
// other, the key is one word and an empty value counts.
std::string applicazioneDellaPatch(const std::string& cartella) {
  const std::string elenco = cartella + "\\PatchList.txt";
  std::string nome;
  if (!common::EsisteFile(elenco)) return nome;
  const std::string contenuto = platform::readWholeFile(elenco);
  for (const std::string& riga : common::Righe(contenuto)) {
    const auto parti = common::DividiInDue(riga, '=');
    if (parti && common::StessoTesto(common::SenzaSpazi(parti->first), "Norvo-Prg"))
      nome = common::SenzaSpazi(parti->second);
  }
  return nome;
}

}  // namespace console
