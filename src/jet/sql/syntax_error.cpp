#include "jet/sql/syntax_error.h"

#include "runtime/letters.h"

namespace jet::sql {

namespace {

struct Description {
  StatementError number;
  const char* text;
};

constexpr Description descriptions[] = {
    {UpdateImpossible, "L'operazione richiede una query aggiornabile"},
    {TooFewParameters, "Numero di parametri errato: attesi"},
    {UnknownName, "Nome sconosciuto in una query a campi incrociati"},
    {ExpressionSyntax, "Errore di sintassi nell'espressione"},
    {UnknownTable, "Tabella o query non trovata"},
    {AmbiguousColumn, "Il campo potrebbe riferirsi a più tabelle della proposizione FROM"},
    {UnknownFunction, "Funzione non definita nell'espressione"},
    {OrderConflictsWithDistinct, "La proposizione ORDER BY non è compatibile con DISTINCT"},
    {AggregateInClause, "Funzione di aggregazione non ammessa in questo punto"},
    {NotAggregated, "L'espressione non fa parte di una funzione di aggregazione né di GROUP BY"},
    {UnknownInsertColumn, "L'istruzione INSERT INTO contiene un nome di campo sconosciuto"},
    {DeleteSyntax, "Errore nell'istruzione DELETE: indicare la tabella di cui eliminare i record"},
    {InvalidStatement,
     "Istruzione SQL non valida: attesi SELECT, INSERT, UPDATE, DELETE, CREATE, ALTER o DROP"},
    {FromSyntax, "Errore di sintassi nella proposizione FROM"},
    {InsertSyntax, "Errore di sintassi nell'istruzione INSERT INTO"},
    {OrderBySyntax, "Errore di sintassi nella proposizione ORDER BY"},
    {ParametersSyntax, "Errore di sintassi nella proposizione PARAMETERS"},
    {SelectSyntax, "Nell'istruzione SELECT una parola riservata, un nome o la punteggiatura sono errati"},
    {TextBehindStatement, "Testo inatteso dopo la fine dell'istruzione SQL"},
    {TransformSyntax, "Errore di sintassi nell'istruzione TRANSFORM"},
    {UpdateSyntax, "Errore di sintassi nell'istruzione UPDATE"},
    {ConstraintSyntax, "Errore di sintassi nella proposizione CONSTRAINT"},
    {CreateTableSyntax, "Errore di sintassi nell'istruzione CREATE TABLE"},
    {CreateIndexSyntax, "Errore di sintassi nell'istruzione CREATE INDEX"},
    {ColumnDefinitionSyntax, "Errore di sintassi nella definizione del campo"},
    {AlterTableSyntax, "Errore di sintassi nell'istruzione ALTER TABLE"},
    {DropSyntax, "Errore di sintassi nell'istruzione DROP"},
    {UnionColumnsDiffer, "Le query unite da UNION hanno un numero diverso di colonne"},
    {SubqueryColumns, "La sottoquery deve restituire un solo campo"},
    {InsertCountDiffers, "Il numero dei valori non corrisponde a quello dei campi di destinazione"},
    {ExternalDatabase, "Le tabelle di un altro database non sono disponibili"},
    {TooManyFields, "Troppi campi"},
    {TooComplex, "Espressione troppo complessa"},
    {UnknownReference, "Riferimento sconosciuto"},
    {TypesDiffer, "Tipi di dati non corrispondenti nell'espressione criterio"},
};

/// As much of a long detail as tells which it is.
std::string shortened(const std::string& detail) {
  constexpr std::size_t most = 60;
  if (detail.size() <= most) return detail;
  return detail.substr(0, runtime::utf8Prefix(std::string_view(detail).substr(0, most))) + "...";
}

std::string describe(StatementError number, const std::string& detail) {
  std::string text;
  for (const Description& description : descriptions) {
    if (description.number == number) text = description.text;
  }
  return detail.empty() ? text : text + ": " + shortened(detail);
}

}  // namespace

SyntaxError::SyntaxError(StatementError number, const std::string& detail, std::size_t position)
    : SyntaxError(static_cast<int>(number), describe(number, detail), position) {}

}  // namespace jet::sql
