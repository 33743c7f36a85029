// The typed properties that need more than their shape.
#include "parameters/clsKepGenerali.h"

#include "common/text.h"
#include "runtime/inspection.h"
#include "runtime/numbers.h"

namespace parameters {

std::int16_t clsKepGenerali::InizialiMaiuscole(const std::string& campo) {
  return Flag(this, ("InizialiMaiuscole" + campo).c_str())();
}

std::string clsKepGenerali::TipoPagamentoMav() {
  const std::string tipo = Testo(this, "TipoPagamentoMav")();
  return tipo.empty() ? "4" : tipo;
}

std::string clsKepGenerali::ProtocolloCfgImap(std::int16_t indice) {
  return Testo(this, ("ProtocolloCfgImap" + std::to_string(indice)).c_str())();
}

void clsKepGenerali::ProtocolloCfgImap(std::int16_t indice, const std::string& valore) {
  ScriviByNome("ProtocolloCfgImap" + std::to_string(indice), valore, note, dati);
}

std::string clsKepGenerali::ProtocolloPercorsoI() {
  return Nota(this, "ProtocolloPercorsoI")();
}

void clsKepGenerali::ProtocolloPercorsoI(const std::string& percorso) {
  ScriviByNome("ProtocolloPercorsoI", ".", percorso);
}

std::string clsKepGenerali::Curriculum() {
  LeggiByNome("Curriculum");
  if (!note.empty()) return note;
  return ValoreBool() ? "1" : "";
}

std::string clsKepGenerali::ProtocolloCampoPersonalizzato(std::int16_t& lunghezza) {
  if (!LeggiByNome("ProtocolloCampoPersonalizzato")) return {};
  lunghezza = runtime::Variant(runtime::val(note)).toInteger();
  return common::SenzaSpazi(Valore());
}

std::int32_t clsKepGenerali::PubblicazioneDisciplina() {
  const std::int32_t valore = Ammesso(this, "PubblicazioneDisciplina", 0, 5)();
  if (valore == 4) DataFinePubblicazione(-1);
  return valore;
}

void clsKepGenerali::PubblicazioneDisciplina(std::int32_t valore) {
  const Scrivibile<Ammesso> proprieta(this, "PubblicazioneDisciplina", 0, 5);
  if (proprieta.ammette(valore)) proprieta(valore);
}

std::int32_t clsKepGenerali::ProtocolloInformatico() {
  return Ammesso(this, "ProtocolloInformatico", 0, 2)();
}

void clsKepGenerali::ProtocolloInformatico(std::int32_t valore) {
  conNotaDellaRiga("ProtocolloInformatico", valore);
}

std::int32_t clsKepGenerali::ProtocolloScanner() {
  return Ammesso(this, "ProtocolloScanner", 0, 2)();
}

void clsKepGenerali::ProtocolloScanner(std::int32_t valore) {
  conNotaDellaRiga("ProtocolloScanner", valore);
}

void clsKepGenerali::conNotaDellaRiga(const char* chiave, std::int32_t valore) {
  LeggiByNome(chiave);
  ScriviByNome(chiave, valore, note);
}

std::int32_t clsKepGenerali::SospensioniChiudiTerminate() {
  return chiudiTerminate("SospensioniChiudiTerminate", NoteSospensioniChiudiTerminate);
}

std::int32_t clsKepGenerali::RadiazioniChiudiTerminate() {
  return chiudiTerminate("RadiazioniChiudiTerminate", NoteRadiazioniChiudiTerminate);
}

std::int32_t clsKepGenerali::chiudiTerminate(const char* chiave, std::string& nota) {
  nota.clear();
  const std::int32_t valore = Ammesso(this, chiave, 1, 2)();
  if (valore != 0) nota = note;
  return valore;
}

runtime::Variant clsKepGenerali::dataInNota(const char* chiave) {
  LeggiByNome(chiave);
  const runtime::Variant nota(note);
  return runtime::isDate(nota) ? runtime::Variant(nota.toDate()) : runtime::Variant(runtime::Null{});
}

runtime::Variant clsKepGenerali::DataProtocolloInformatico() {
  return dataInNota("ProtocolloInformatico");
}

void clsKepGenerali::DataProtocolloInformatico(const runtime::Variant& data) {
  LeggiByNome("ProtocolloInformatico");
  ScriviByNome("ProtocolloInformatico", Valore(), data);
}

runtime::Variant clsKepGenerali::DataControlloComuniVariati() {
  return dataInNota("DataControlloComuniVariati");
}

void clsKepGenerali::DataControlloComuniVariati(const runtime::Variant& data) {
  ScriviByNome("DataControlloComuniVariati", "", data);
}

void clsKepGenerali::ControllaCongruenzaDatabase(const std::string& testo) {
  ScriviByNome("ControllaCongruenzaDatabase", "", testo);
}

runtime::Variant clsKepGenerali::valoreONull(const char* chiave) {
  return LeggiByNome(chiave) ? runtime::Variant(Valore()) : runtime::Variant(runtime::Null{});
}

runtime::Variant clsKepGenerali::ProtocolloUnitaOrganizzative() {
  return valoreONull("ProtocolloUnitaOrganizzative");
}

void clsKepGenerali::ProtocolloUnitaOrganizzative(const runtime::Variant& valore) {
  ScriviByNome("ProtocolloUnitaOrganizzative", valore, "Data di partenza");
}

runtime::Variant clsKepGenerali::ProtocolloDataTmpBypass() {
  return valoreONull("ProtocolloDataTmpBypass");
}

void clsKepGenerali::ProtocolloDataTmpBypass(const runtime::Variant& valore) {
  ScriviByNome("ProtocolloDataTmpBypass", valore, "Data di bypass temporaneo invio registro");
}

std::int16_t clsKepGenerali::SospensioniNumeroProgressivo() {
  // The suite's programs count the suspensions without a number here, and answer -1 where there are some.
  // This program has no such count: it takes their number as 0.
  return LeggiByNome("SospensioniNumeroProgressivo") ? 1 : 0;
}

}  // namespace parameters
