// How each shape turns a row's texts into its value and back.
#include "parameters/proprieta.h"

#include "controls/desktop.h"
#include "runtime/error.h"
#include "runtime/inspection.h"
#include "runtime/numbers.h"

namespace parameters {
namespace {

template <class Numero>
Numero convertito(const runtime::Variant& valore) {
  if constexpr (sizeof(Numero) == sizeof(std::int16_t))
    return valore.toInteger();
  else
    return valore.toLong();
}

}  // namespace

Flag::Tipo Flag::operator()() const {
  if (legge()) return riga_->ValoreBool();
  return predefinito_ ? -1 : 0;
}

std::string Testo::operator()() const {
  legge();
  return riga_->Valore();
}

std::string Nota::operator()() const {
  legge();
  return riga_->note;
}

template <class Numero, bool Trappola, class Consegnato>
Numero NumeroIntero<Numero, Trappola, Consegnato>::letto() const {
  legge();
  const runtime::Variant valore(riga_->Valore());
  if (riga_->Valore().empty() || !runtime::isNumeric(valore)) return predefinito_;
  const auto numero = convertito<Numero>(valore);
  return numero < minimo_ || numero > massimo_ ? predefinito_ : numero;
}

template <class Numero, bool Trappola, class Consegnato>
Consegnato NumeroIntero<Numero, Trappola, Consegnato>::operator()() const {
  try {
    return letto();
  } catch (const runtime::Error&) {
    if (!Trappola) throw;
    return predefinito_;
  }
}

template <class Numero>
Numero NumeroIniziale<Numero>::operator()() const {
  return legge() ? convertito<Numero>(runtime::Variant(runtime::val(riga_->Valore()))) : predefinito_;
}

template class NumeroIntero<std::int16_t>;
template class NumeroIntero<std::int16_t, false>;
template class NumeroIntero<std::int16_t, true, std::int32_t>;
template class NumeroIntero<std::int32_t>;
template class NumeroIniziale<std::int16_t>;
template class NumeroIniziale<std::int32_t>;

bool Ammesso::ammette(double numero) const {
  for (Tipo ammesso = primo_; ammesso <= ultimo_; ++ammesso)
    if (numero == ammesso) return true;
  controls::desktop().msgBox(std::string("Parametro '") + chiave_ + "' errato!");
  return false;
}

Ammesso::Tipo Ammesso::operator()() const {
  if (!legge()) return 0;
  const double numero = runtime::val(riga_->Valore());
  return ammette(numero) ? static_cast<Tipo>(numero) : 0;
}

float Misura::operator()() const {
  legge();
  return riga_->Valore().empty() ? predefinito_ : RigaKepGenerali::TrasformaInTwips(riga_->Valore());
}

void scrivi(RigaKepGenerali& riga, const char* chiave, const runtime::Variant& valore, Scrittura come) {
  switch (come) {
    case Scrittura::Vuote:
      riga.ScriviByNome(chiave, valore, "");
      break;
    case Scrittura::NotaCorrente:
      riga.ScriviByNome(chiave, valore, riga.note);
      break;
    case Scrittura::NotaEDatiCorrenti:
      riga.ScriviByNome(chiave, valore, riga.note, riga.dati);
      break;
    case Scrittura::NotaNull:
      riga.ScriviByNome(chiave, valore, runtime::Null{});
      break;
    case Scrittura::NotaModificabile:
      riga.ScriviByNome(chiave, valore, "0=Automatico 1=Modificabile");
      break;
  }
}

}  // namespace parameters
