#pragma once

#include <cstdint>
#include <limits>
#include <string>

#include "parameters/riga_kep_generali.h"

/// The shapes that a property of the table KepGenerali can have: `property()` reads its row,
/// `property(value)` writes it. Each is a key, and what an absent or unfit row stands for. A read is
/// LeggiByNome, with its errors.
namespace parameters {

class Proprieta {
 protected:
  Proprieta(RigaKepGenerali* riga, const char* chiave) : riga_(riga), chiave_(chiave) {}
  bool legge() const { return riga_->LeggiByNome(chiave_); }

  RigaKepGenerali* riga_;
  const char* chiave_;
};

/// A switch: -1 or 0.
class Flag : Proprieta {
 public:
  using Tipo = std::int16_t;
  Flag(RigaKepGenerali* riga, const char* chiave, bool predefinito = false)
      : Proprieta(riga, chiave), predefinito_(predefinito) {}
  Tipo operator()() const;

 protected:
  using Proprieta::chiave_, Proprieta::riga_;
  static runtime::Variant daScrivere(Tipo valore) { return static_cast<Tipo>(valore ? -1 : 0); }

 private:
  bool predefinito_;
};

/// The column Valore, also where it is empty.
class Testo : Proprieta {
 public:
  using Tipo = std::string;
  Testo(RigaKepGenerali* riga, const char* chiave) : Proprieta(riga, chiave) {}
  Tipo operator()() const;

 protected:
  using Proprieta::chiave_, Proprieta::riga_;
  static runtime::Variant daScrivere(const Tipo& valore) { return valore; }
};

/// The column Note.
class Nota : Proprieta {
 public:
  Nota(RigaKepGenerali* riga, const char* chiave) : Proprieta(riga, chiave) {}
  std::string operator()() const;
};

/// Valore as a whole number, its halves rounded to even; the default where it is no number as Italy writes it
/// or lies outside `minimo` to `massimo`. With a trap, an error gives the default too; else one beyond the
/// type is error 6.
template <class Numero, bool Trappola = true, class Consegnato = Numero>
class NumeroIntero : Proprieta {
 public:
  using Tipo = Consegnato;
  NumeroIntero(RigaKepGenerali* riga, const char* chiave, Numero predefinito = 0,
               Numero minimo = std::numeric_limits<Numero>::min(),
               Numero massimo = std::numeric_limits<Numero>::max())
      : Proprieta(riga, chiave), predefinito_(predefinito), minimo_(minimo), massimo_(massimo) {}
  Tipo operator()() const;

 protected:
  using Proprieta::chiave_, Proprieta::riga_;
  static runtime::Variant daScrivere(Tipo valore) { return valore; }

 private:
  Numero letto() const;
  Numero predefinito_, minimo_, massimo_;
};
using Intero = NumeroIntero<std::int16_t>;
using InteroSenzaTrappola = NumeroIntero<std::int16_t, false>;
using InteroComeLungo = NumeroIntero<std::int16_t, true, std::int32_t>;
using Lungo = NumeroIntero<std::int32_t>;

/// The number at the beginning of Valore (runtime::val), rounded; 0 for a word. Error 6 beyond the type.
template <class Numero>
class NumeroIniziale : Proprieta {
 public:
  using Tipo = Numero;
  NumeroIniziale(RigaKepGenerali* riga, const char* chiave, Numero predefinito = 0)
      : Proprieta(riga, chiave), predefinito_(predefinito) {}
  Tipo operator()() const;

 protected:
  using Proprieta::chiave_, Proprieta::riga_;
  static runtime::Variant daScrivere(Tipo valore) { return valore; }

 private:
  Numero predefinito_;
};
using Iniziale = NumeroIniziale<std::int16_t>;
using InizialeLungo = NumeroIniziale<std::int32_t>;

/// The number at the beginning of Valore, which must be whole and between `primo` and `ultimo`: otherwise a
/// box says so, and it is 0. 0 without a row.
class Ammesso : Proprieta {
 public:
  using Tipo = std::int32_t;
  Ammesso(RigaKepGenerali* riga, const char* chiave, Tipo primo, Tipo ultimo)
      : Proprieta(riga, chiave), primo_(primo), ultimo_(ultimo) {}
  Tipo operator()() const;
  /// False, after the box, for a number that isn't one of them.
  bool ammette(double numero) const;

 protected:
  using Proprieta::chiave_, Proprieta::riga_;
  static runtime::Variant daScrivere(Tipo valore) { return valore; }

 private:
  Tipo primo_, ultimo_;
};

/// A length of a layout, in twips; the default where Valore is empty.
class Misura : Proprieta {
 public:
  Misura(RigaKepGenerali* riga, const char* chiave, float predefinito = 0)
      : Proprieta(riga, chiave), predefinito_(predefinito) {}
  float operator()() const;

 private:
  float predefinito_;
};

/// What a setter puts into the columns Note and Dati. "Current" is the field of the last read, whichever row
/// that was: its caller has read the same key before.
enum class Scrittura { Vuote, NotaCorrente, NotaEDatiCorrenti, NotaNull, NotaModificabile };

void scrivi(RigaKepGenerali& riga, const char* chiave, const runtime::Variant& valore, Scrittura come);

/// A property that can be written too. A write that fails changes nothing and says nothing.
template <class Lettura, Scrittura Come = Scrittura::Vuote>
class Scrivibile : public Lettura {
 public:
  using Lettura::Lettura;
  using Lettura::operator();
  void operator()(const typename Lettura::Tipo& valore) const {
    scrivi(*this->riga_, this->chiave_, this->daScrivere(valore), Come);
  }
};

}  // namespace parameters
