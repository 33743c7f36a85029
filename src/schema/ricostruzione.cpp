// A field is rebuilt beside the old one; what depends on it is kept meanwhile and put back.
#include "schema/ricostruzione.h"

#include <algorithm>
#include <optional>

#include "common/text.h"
#include "jet/file/errors.h"
#include "runtime/format.h"
#include "schema/indice.h"
#include "schema/relazione.h"

namespace schema {
namespace {

using common::StessoTesto;

bool conTesto(const jet::dao::Field& campo) {
  return campo.Type() == jet::dao::dbMemo || campo.Type() == jet::dao::dbText;
}

/// A number of digits that the catalogue tells; nothing where it has no such column or says nothing there.
std::optional<int> cifre(jet::dao::Recordset& riga, const char* colonna) {
  if (!riga.Fields().contains(colonna) || riga.value(colonna).isNull()) return std::nullopt;
  return riga.value(colonna).toLong();
}

bool numero(int tipo) {
  constexpr int Numeri[] = {jet::dao::dbByte,   jet::dao::dbInteger, jet::dao::dbLong,   jet::dao::dbCurrency,
                            jet::dao::dbSingle, jet::dao::dbDouble,  jet::dao::dbDecimal};
  return std::ranges::find(Numeri, tipo) != std::end(Numeri);
}

/// True if a conversion may round a Decimal, or to one.
bool puoArrotondare(int da, int a) {
  if (da == jet::dao::dbDecimal) return numero(a);
  return a == jet::dao::dbDecimal && da != jet::dao::dbBoolean;
}

void rifiutaArrotondati(jet::dao::Database& db, const std::string& tabella, const jet::dao::Field& da,
                        const jet::dao::Field& a) {
  const auto cambiati = db.OpenRecordset("SELECT TOP 1 [" + da.Name() + "] FROM [" + tabella + "] WHERE [" +
                                             da.Name() + "] - [" + a.Name() + "] <> 0",
                                         jet::dao::dbOpenSnapshot);
  if (!cambiati->atEnd())
    throw runtime::Error(jet::ConversionFailed, "ricostruzione",
                         "Il valore " + cambiati->Fields(0).Value().toText() + " del campo " + da.Name() +
                             " della tabella " + tabella + " andrebbe arrotondato");
  cambiati->Close();
}

void copiaDati(jet::dao::Database& db, const std::string& tabella, const jet::dao::Field& da,
               const jet::dao::Field& a) {
  const auto copia =
      db.CreateQueryDef("", "UPDATE [" + tabella + "] SET [" + a.Name() + "]=[" + da.Name() + "]");
  // A value that doesn't convert must end the run: left out in silence it would be lost.
  try {
    copia->Execute(jet::dao::dbFailOnError);
  } catch (runtime::Error& errore) {
    errore.addPlace("tabella " + tabella + ", campo " + da.Name());
    throw;
  }
  copia->Close();
  if (puoArrotondare(da.Type(), a.Type())) rifiutaArrotondati(db, tabella, da, a);
}

/// Appends the field and brings the values over before it demands anything of them.
void accodaConDati(jet::dao::Database& db, jet::dao::TableDef& tabella, const jet::dao::Field& vecchio,
                   const jet::dao::Field& nuovo) {
  const bool richiesto = nuovo.Required(), testo = conTesto(nuovo), vuoto = nuovo.AllowZeroLength();
  nuovo.setRequired(false);
  if (testo) nuovo.setAllowZeroLength(true);
  tabella.Fields().Append(nuovo);
  copiaDati(db, tabella.Name(), vecchio, nuovo);
  if (richiesto) nuovo.setRequired(true);
  if (testo) nuovo.setAllowZeroLength(vuoto);
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
  if (const auto precisione = cifre(riga, "Precisione")) campo.setPrecision(*precisione);
  if (const auto scala = cifre(riga, "Scala")) campo.setScale(*scala);
  if (conTesto(campo)) campo.setAllowZeroLength(riga.value("AllowZeroLength").toBoolean());
  if (const runtime::Variant valore = riga.value("DefaultValue"); !valore.isNull())
    campo.setDefaultValue(valore.toText());
  campo.setOrdinalPosition(riga.value("OrdinalPosition").toLong());
  return campo;
}

jet::dao::Field campoSostitutivo(jet::dao::TableDef& tabella, jet::dao::Recordset& riga,
                                 const jet::dao::Field& vecchio) {
  const jet::dao::Field campo = nuovoCampo(tabella, riga);
  campo.setOrdinalPosition(vecchio.OrdinalPosition());
  if (vecchio.Type() == jet::dao::dbDecimal) {
    campo.setPrecision(vecchio.precision());
    campo.setScale(vecchio.scale());
  }
  return campo;
}

void ricostruisciCampo(jet::dao::Database& db, jet::dao::TableDef& tabella, jet::dao::Recordset& riga) {
  const std::string nome = riga.value("Campo").toText();
  const jet::dao::Field vecchio = tabella.Fields(nome), nuovo = campoSostitutivo(tabella, riga, vecchio);
  nuovo.setName("TEMP" + nome);
  accodaConDati(db, tabella, vecchio, nuovo);
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
