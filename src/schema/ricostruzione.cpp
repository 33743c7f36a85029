// A field is rebuilt beside the old one; what depends on it is kept meanwhile and put back.
#include "schema/ricostruzione.h"

#include "common/text.h"
#include "runtime/format.h"
#include "schema/indice.h"
#include "schema/relazione.h"

namespace schema {
namespace {

using common::StessoTesto;

void copiaDati(jet::dao::Database& db, const std::string& tabella, const std::string& da,
               const std::string& a) {
  const auto copia = db.CreateQueryDef("", "UPDATE " + tabella + " SET [" + a + "]=[" + da + "]");
  // A value that doesn't convert must end the run: left out in silence it would be lost.
  copia->Execute(jet::dao::dbFailOnError);
  copia->Close();
}

void conserva(jet::dao::Relation& relazione, Relazioni& relazioni) {
  Relazione& conservata = relazioni.Add(relazione.Name());
  conservata.Name = relazione.Name();
  conservata.Table = relazione.Table();
  conservata.ForeignTable = relazione.ForeignTable();
  conservata.Attributes = relazione.Attributes();
  for (const jet::dao::Field& coppia : relazione.Fields()) {
    Campo& campo = conservata.Campi.Add(coppia.Name());
    campo.Name = coppia.Name();
    campo.ForeignName = coppia.ForeignName();
  }
}

void togliRelazioni(jet::dao::Database& db, const std::string& tabella, const std::string& campo,
                    Relazioni& relazioni) {
  for (const auto& relazione : db.Relations()) {
    if (!riguarda(*relazione, tabella, campo)) continue;
    conserva(*relazione, relazioni);
    db.Relations().Delete(relazione->Name());
  }
  db.Relations().Refresh();
}

void conserva(jet::dao::Index& indice, Indici& indici) {
  Indice& conservato = indici.Add(indice.Name());
  conservato.Name = indice.Name();
  conservato.IgnoreNulls = indice.IgnoreNulls();
  conservato.Primary = indice.Primary();
  conservato.Unique = indice.Unique();
  for (const jet::dao::Field& parte : indice.Fields()) {
    const std::string posto = runtime::format(conservato.Campi.Count() + 1, "000");
    Campo& campo = conservato.Campi.Add(posto);
    campo.Name = parte.Name();
    campo.Attributes = parte.Attributes();
  }
}

void togliIndici(jet::dao::TableDef& tabella, const std::string& campo, Indici& indici) {
  for (const auto& indice : tabella.Indexes()) {
    // An index of a relation comes and goes with the relation.
    if (indice->Foreign() || !riguarda(*indice, campo)) continue;
    conserva(*indice, indici);
    tabella.Indexes().Delete(indice->Name());
  }
  tabella.Indexes().Refresh();
}

void rimettiIndici(jet::dao::TableDef& tabella, const Indici& indici) {
  for (const auto& conservato : indici) {
    const auto indice = tabella.CreateIndex(conservato->Name);
    indice->setPrimary(conservato->Primary);
    indice->setUnique(conservato->Unique);
    indice->setIgnoreNulls(conservato->IgnoreNulls);
    for (const auto& campo : conservato->Campi) {
      const auto parte = indice->CreateField(campo->Name);
      parte.setAttributes(campo->Attributes);
      indice->Fields().Append(parte);
    }
    tabella.Indexes().Append(indice);
  }
}

void rimettiRelazioni(jet::dao::Database& db, const Relazioni& relazioni) {
  for (const auto& conservata : relazioni) {
    const auto relazione = db.CreateRelation(conservata->Name, conservata->Table, conservata->ForeignTable,
                                             conservata->Attributes);
    for (const auto& campo : conservata->Campi) {
      const auto coppia = relazione->CreateField(campo->Name, campo->ForeignName);
      coppia.setAttributes(campo->Attributes);
      relazione->Fields().Append(coppia);
    }
    db.Relations().Append(relazione);
  }
}

}  // namespace

bool riguarda(jet::dao::Relation& relazione, const std::string& tabella, const std::string& campo) {
  if (!StessoTesto(relazione.Table(), tabella) && !StessoTesto(relazione.ForeignTable(), tabella))
    return false;
  for (const jet::dao::Field& coppia : relazione.Fields())
    if (StessoTesto(coppia.Name(), campo) || StessoTesto(coppia.ForeignName(), campo)) return true;
  return false;
}

bool riguarda(jet::dao::Index& indice, const std::string& campo) {
  return indice.Fields().contains(campo);
}

jet::dao::Field nuovoCampo(jet::dao::TableDef& tabella, jet::dao::Recordset& riga) {
  const jet::dao::Field campo = tabella.CreateField();
  campo.setName(riga.value("Campo").toText());
  campo.setType(riga.value("Tipo").toLong());
  campo.setSize(riga.value("Dimensione").toLong());
  campo.setAttributes(riga.value("Attributi").toLong());
  campo.setRequired(riga.value("Required").toBoolean());
  if (campo.Type() == jet::dao::dbMemo || campo.Type() == jet::dao::dbText)
    campo.setAllowZeroLength(riga.value("AllowZeroLength").toBoolean());
  if (const runtime::Variant valore = riga.value("DefaultValue"); !valore.isNull())
    campo.setDefaultValue(valore.toText());
  campo.setOrdinalPosition(riga.value("OrdinalPosition").toLong());
  return campo;
}

void ricostruisciCampo(jet::dao::Database& db, jet::dao::TableDef& tabella, jet::dao::Recordset& riga) {
  const std::string nome = riga.value("Campo").toText();
  const jet::dao::Field vecchio = tabella.Fields(nome), nuovo = nuovoCampo(tabella, riga);
  nuovo.setName("TEMP" + nome);
  nuovo.setOrdinalPosition(vecchio.OrdinalPosition());
  tabella.Fields().Append(nuovo);
  copiaDati(db, tabella.Name(), vecchio.Name(), nuovo.Name());
  Relazioni relazioni;
  togliRelazioni(db, tabella.Name(), nome, relazioni);
  Indici indici;
  togliIndici(tabella, nome, indici);
  tabella.Fields().Delete(nome);
  nuovo.setName(nome);
  tabella.Fields().Refresh();
  rimettiIndici(tabella, indici);
  rimettiRelazioni(db, relazioni);
}

}  // namespace schema
