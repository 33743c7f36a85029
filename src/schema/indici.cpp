// Indexes: each one of the catalogue that is missing is made, and made anew if it differs.
#include "common/text.h"
#include "schema/catalogo.h"
#include "schema/fasi.h"

namespace schema {
namespace {

/// The index of this name that no relation made, or nothing.
jet::dao::IndexPtr trovaIndice(jet::dao::TableDef& tabella, const std::string& nome) {
  for (const auto& indice : tabella.Indexes())
    if (!indice->Foreign() && common::StessoTesto(indice->Name(), nome)) return indice;
  return nullptr;
}

bool indiceDiverso(jet::dao::Index& indice, jet::dao::Recordset& riga, jet::dao::Recordset& campi) {
  if (diverso(riga.value("Primary"), indice.Primary()) || diverso(riga.value("Unique"), indice.Unique()) ||
      diverso(riga.value("IgnoreNulls"), indice.IgnoreNulls()) ||
      campi.RecordCount() != static_cast<std::int64_t>(indice.Fields().Count()))
    return true;
  std::size_t posto = 0;
  for (campi.MoveFirst(); !campi.atEnd(); campi.MoveNext()) {
    const jet::dao::Field campo = indice.Fields(posto++);
    if (diverso(campi.value("Campo"), campo.Name())) return true;
    // Another order of its values alone leaves the index as it is, and what follows in it unread.
    if (diverso(campi.value("Attributi"), campo.Attributes())) return false;
  }
  return false;
}

void cancellaIndice(const Ambiente& ambiente, jet::dao::TableDef& tabella, const std::string& nome,
                    const std::string& soggetto) {
  ambiente.scrivi("Cancello " + soggetto, Voce::Modifica);
  tabella.Indexes().Delete(nome);
  ambiente.scrivi("fatto", Voce::Seguito);
}

void creaIndice(const Ambiente& ambiente, jet::dao::TableDef& tabella, jet::dao::Recordset& riga,
                jet::dao::Recordset& campi, const std::string& soggetto) {
  ambiente.scrivi("Creo " + soggetto, Voce::Modifica);
  const auto indice = tabella.CreateIndex(riga.value("Indice").toText());
  indice->setIgnoreNulls(riga.value("IgnoreNulls").toBoolean());
  indice->setPrimary(riga.value("Primary").toBoolean());
  indice->setUnique(riga.value("Unique").toBoolean());
  for (campi.MoveFirst(); !campi.atEnd(); campi.MoveNext()) {
    const auto campo = indice->CreateField(campi.value("Campo").toText());
    campo.setAttributes(campi.value("Attributi").toLong());
    indice->Fields().Append(campo);
  }
  tabella.Indexes().Append(indice);
  ambiente.scrivi("fatto", Voce::Seguito);
}

void aggiornaIndice(const Ambiente& ambiente, jet::dao::Recordset& riga, Interrogazione& campiIndice) {
  const std::string tabella = riga.value("Tabella").toText(), nome = riga.value("Indice").toText();
  if (tabellaWebEsclusa(ambiente, tabella)) return;
  const auto campi = campiIndice.righeContate({tabella, nome});
  const auto definizione = ambiente.destinazione->TableDefs(tabella);
  const std::string soggetto = "indice " + nome + " nella tabella " + tabella + "...";
  if (const auto indice = trovaIndice(*definizione, nome)) {
    if (!indiceDiverso(*indice, riga, *campi)) return;
    cancellaIndice(ambiente, *definizione, nome, soggetto);
  }
  creaIndice(ambiente, *definizione, riga, *campi, soggetto);
}

}  // namespace

void AggiornaIndici(const Ambiente& ambiente) {
  Interrogazione indici(ambiente, Domanda::Indici);
  Interrogazione campi(ambiente, Domanda::CampiIndice);
  for (const auto righe = indici.righe(); !righe->atEnd(); righe->MoveNext())
    aggiornaIndice(ambiente, *righe, campi);
}

}  // namespace schema
