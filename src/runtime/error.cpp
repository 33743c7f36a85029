// The descriptions of the language's errors.
#include "runtime/error.h"

namespace runtime {

namespace {

struct Description {
  ErrorNumber number;
  const char* text;
};

constexpr Description Descriptions[] = {
    {InvalidCall, "Argomento non ammesso"},
    {Overflow, "Valore troppo grande o troppo piccolo per il suo tipo"},
    {SubscriptOutOfRange, "Riga o elemento oltre i limiti della tabella"},
    {DivisionByZero, "Divisione per zero"},
    {TypeMismatch, "Valore di tipo diverso da quello richiesto"},
    {FileNotFound, "File inesistente"},
    {DeviceIoError, "Errore di lettura o scrittura"},
    {FileAlreadyExists, "File già esistente"},
    {DiskFull, "Spazio su disco esaurito"},
    {PermissionDenied, "File in uso"},
    {PathFileAccess, "Accesso al file negato"},
    {PathNotFound, "Cartella inesistente"},
    {InvalidUseOfNull, "Uso non valido di Null"},
};

}  // namespace

Error languageError(ErrorNumber number) {
  for (const Description& description : Descriptions)
    if (description.number == number) return Error(number, "AggNorvo", description.text);
  return Error(number, "AggNorvo", "Errore " + std::to_string(number));
}

}  // namespace runtime
