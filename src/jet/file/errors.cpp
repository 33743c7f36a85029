// Descriptions of the engine's errors by number, and errors of the disk turned into them.
#include "jet/file/errors.h"

namespace jet {

namespace {

struct Description {
  ErrorNumber number;
  const char* text;
};

constexpr Description Descriptions[] = {
    {ReservedError, "Errore riservato"},
    {InvalidArgument, "Argomento non valido"},
    {TooManyTransactions, "Troppe transazioni annidate"},
    {TableExists, "Tabella già presente"},
    {ObjectNotFound, "Oggetto inesistente"},
    {ObjectExists, "Oggetto già presente"},
    {UnknownIndex, "Indice inesistente"},
    {NoCurrentIndex, "Seek senza indice corrente"},
    {UpdateWithoutEdit, "Update o CancelUpdate senza AddNew o Edit"},
    {NoCurrentRecord, "Nessun record corrente"},
    {DuplicateKey, "Valore doppio in un indice che non ammette duplicati"},
    {DatabaseNotFound, "Impossibile trovare il file"},
    {NotEnoughSpace, "Spazio su disco insufficiente"},
    {ReadOnly, "Impossibile aggiornare"},
    {WrongPassword, "Password non valida"},
    {NoTransaction, "CommitTrans o Rollback senza BeginTrans"},
    {OldFormat, "Database di un formato precedente"},
    {DiskFailure, "Errore di disco o di rete"},
    {InvalidPath, "Il percorso non è valido"},
    {RecordTooLarge, "Record troppo grande"},
    {CannotOpen, "Accesso negato al file"},
    {NotForLinkedTables, "Operazione non consentita su una tabella collegata"},
    {NullInIndex, "Valore Null in un indice che non lo ammette"},
    {TooFewParameters, "Numero di parametri errato: attesi"},
    {SelectNotExecutable, "Impossibile eseguire una query di selezione"},
    {UnknownName, "Nome sconosciuto"},
    {UpdateImpossible, "L'operazione richiede una query aggiornabile"},
    {ExpressionSyntax, "Errore di sintassi nell'espressione"},
    {CriteriaSyntax, "Errore di sintassi nel criterio"},
    {UnknownTable, "Tabella o query non trovata"},
    {AmbiguousColumn, "Il campo potrebbe riferirsi a più tabelle della proposizione FROM"},
    {UnknownFunction, "Funzione non definita nell'espressione"},
    {SecondAutoNumber, "Un solo contatore per tabella"},
    {OrderConflictsWithDistinct, "La proposizione ORDER BY non è compatibile con DISTINCT"},
    {AggregateInClause, "Funzione di aggregazione non ammessa in questo punto"},
    {SystemTable, "Impossibile modificare una tabella di sistema"},
    {NotAggregated, "L'espressione non fa parte di una funzione di aggregazione né di GROUP BY"},
    {InvalidName, "Nome non valido"},
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
    {InvalidBookmark, "Segnalibro non valido"},
    {FieldTooSmall, "Il testo è troppo lungo per il campo"},
    {FieldNotUpdatable, "Impossibile aggiornare il campo"},
    {RecordDeleted, "Il record è stato eliminato"},
    {ExternalDatabase, "Le tabelle di un altro database non sono disponibili"},
    {TemporarySpaceFull, "Spazio insufficiente sul disco temporaneo"},
    {TooManyFields, "Troppi campi"},
    {DuplicateField, "Campo definito più di una volta"},
    {ChangedElsewhere, "Il database è stato modificato da un altro utente"},
    {RelatedRecordsExist, "Righe corrispondenti in un'altra tabella"},
    {RelatedRecordMissing, "Serve una riga corrispondente in un'altra tabella"},
    {DatabaseExists, "Il database esiste già"},
    {TableInUse, "Tabella in uso"},
    {InvalidOperation, "Operazione non valida"},
    {NotSupported, "Operazione non ammessa per questo tipo di recordset"},
    {InvalidDataType, "Tipo di dati non valido"},
    {NoFieldDefined, "Nessun campo definito"},
    {ItemNotFound, "Elemento inesistente nell'insieme"},
    {PropertyNotFound, "Proprietà inesistente"},
    {FieldInIndex, "Il campo fa parte di un indice"},
    {IndexInRelation, "L'indice è usato da una relazione"},
    {SecondPrimaryKey, "Chiave primaria già presente"},
    {IndexExists, "Indice già presente"},
    {ConstraintSyntax, "Errore di sintassi nella proposizione CONSTRAINT"},
    {CreateTableSyntax, "Errore di sintassi nell'istruzione CREATE TABLE"},
    {CreateIndexSyntax, "Errore di sintassi nell'istruzione CREATE INDEX"},
    {ColumnDefinitionSyntax, "Errore di sintassi nella definizione del campo"},
    {AlterTableSyntax, "Errore di sintassi nell'istruzione ALTER TABLE"},
    {DropSyntax, "Errore di sintassi nell'istruzione DROP"},
    {FieldInRelation, "Il campo fa parte di una relazione"},
    {SubqueryColumns, "La sottoquery deve restituire un solo campo"},
    {UnionColumnsDiffer, "Le query unite da UNION hanno un numero diverso di colonne"},
    {ValueRequired, "Il campo è richiesto"},
    {EmptyTextRefused, "Il campo non ammette un testo vuoto"},
    {TableRuleBroken, "La regola di convalida della tabella non è rispettata"},
    {FieldRuleBroken, "La regola di convalida del campo non è rispettata"},
    {RuleUnreadable, "Espressione di convalida non valida"},
    {UnrecognizedFormat, "Formato di database non riconosciuto"},
    {InsertCountDiffers, "Il numero dei valori non corrisponde a quello dei campi di destinazione"},
    {NumericOverflow, "Overflow di un campo numerico"},
    {SubqueryRows, "La sottoquery restituisce più di un record"},
    {OpenedElsewhere, "Il database è aperto in un altro programma"},
    {TooComplex, "Espressione troppo complessa"},
    {RelationWithoutFields, "Relazione senza campi"},
    {PropertyExists, "Proprietà già presente"},
    {RelationTypesDiffer, "La relazione lega campi diversi"},
    {NoSuchIndex, "Indice inesistente nella tabella"},
    {NoSuchTable, "Tabella inesistente"},
    {NoSuchReferencedField, "Campo inesistente nella tabella di riferimento"},
    {BuiltInProperty, "Proprietà predefinita"},
    {UnknownReference, "Riferimento sconosciuto"},
    {CascadeDeleteRefused, "Eliminazione a catena impossibile"},
    {CascadeUpdateRefused, "Aggiornamento a catena impossibile"},
    {CascadeRefused, "Operazione a catena impossibile"},
    {UnknownIndexField, "Campo inesistente nell'indice"},
    {ObjectInvalid, "Oggetto non valido"},
    {ConversionFailed, "Errore di conversione del tipo di dati"},
    {TypesDiffer, "Tipi di dati non corrispondenti nell'espressione criterio"},
    {NoUniqueIndex, "Nessun indice univoco sui campi di riferimento"},
    {TooManyIndexes, "Troppi indici"},
};

}  // namespace

const char* description(ErrorNumber number) {
  for (const Description& each : Descriptions)
    if (each.number == number) return each.text;
  return "Errore riservato";
}

runtime::Error errorOf(ErrorNumber number, const std::string& source, const std::string& about) {
  return runtime::Error(number, source,
                        about.empty() ? description(number) : description(number) + (": " + about));
}

}  // namespace jet

namespace jet::file {

namespace {

struct Mapping {
  platform::DiskFault fault;
  ErrorNumber number;
  const char* text;
};

constexpr Mapping Mappings[] = {
    {platform::DiskFault::NotFound, DatabaseNotFound, "Impossibile trovare il file"},
    {platform::DiskFault::PathNotFound, InvalidPath, "Il percorso non è valido"},
    {platform::DiskFault::AccessDenied, CannotOpen, "Accesso negato al file"},
    {platform::DiskFault::IsFolder, CannotOpen, "È una cartella e non un file"},
    {platform::DiskFault::Sharing, OpenedElsewhere, "Il file è in uso"},
    {platform::DiskFault::NoSpace, NotEnoughSpace, "Spazio su disco insufficiente"},
    {platform::DiskFault::Exists, DatabaseExists, "Il database esiste già:"},
    {platform::DiskFault::Io, DiskFailure, "Errore di disco o di rete"},
    {platform::DiskFault::Rights, CannotOpen,
     "Proprietario, permessi o attributi non si possono conservare per il file"},
};

}  // namespace

runtime::Error jetError(ErrorNumber number, const std::string& description) {
  return runtime::Error(number, "DAO.Database", description);
}

runtime::Error damagedFile(const std::string& what) {
  return jetError(UnrecognizedFormat, "Formato di database non riconosciuto: " + what);
}

runtime::Error fromDisk(const platform::DiskError& error) {
  for (const Mapping& mapping : Mappings)
    if (mapping.fault == error.fault())
      return jetError(mapping.number, std::string(mapping.text) + " \"" + error.path() + "\"");
  return jetError(DiskFailure, error.description());
}

runtime::Error heldElsewhere(const std::string& path) {
  std::string text = "Il file \"" + path + "\" è già aperto";
  const std::string holder = platform::lockHolder(path);
  if (!holder.empty()) text += " da " + holder;
  return jetError(OpenedElsewhere, text);
}

}  // namespace jet::file
