// The numbered errors of the database engine, by name.
#pragma once

#include <string>

#include "platform/disk.h"
#include "runtime/error.h"

namespace jet {

/// The errors that the engine raises, with the numbers that DAO publishes; errors.cpp has their descriptions.
enum ErrorNumber : int {
  ReservedError = 3000,
  InvalidArgument = 3001,
  TooManyTransactions = 3003,
  TableExists = 3010,
  ObjectNotFound = 3011,
  ObjectExists = 3012,
  UnknownIndex = 3015,
  NoCurrentIndex = 3019,
  UpdateWithoutEdit = 3020,
  NoCurrentRecord = 3021,
  DuplicateKey = 3022,
  DatabaseNotFound = 3024,
  NotEnoughSpace = 3026,
  ReadOnly = 3027,
  WrongPassword = 3031,
  NoTransaction = 3034,
  OldFormat = 3041,
  DiskFailure = 3043,
  InvalidPath = 3044,
  RecordTooLarge = 3047,
  CannotOpen = 3051,
  NotForLinkedTables = 3057,
  NullInIndex = 3058,
  TooFewParameters = 3061,
  SelectNotExecutable = 3065,
  UnknownName = 3070,
  UpdateImpossible = 3073,
  ExpressionSyntax = 3075,
  CriteriaSyntax = 3077,
  UnknownTable = 3078,
  AmbiguousColumn = 3079,
  UnknownFunction = 3085,
  SecondAutoNumber = 3090,
  OrderConflictsWithDistinct = 3093,
  AggregateInClause = 3096,
  SystemTable = 3111,
  NotAggregated = 3122,
  InvalidName = 3125,
  UnknownInsertColumn = 3127,
  DeleteSyntax = 3128,
  InvalidStatement = 3129,
  FromSyntax = 3131,
  InsertSyntax = 3134,
  OrderBySyntax = 3138,
  ParametersSyntax = 3139,
  SelectSyntax = 3141,
  TextBehindStatement = 3142,
  TransformSyntax = 3143,
  UpdateSyntax = 3144,
  InvalidBookmark = 3159,
  FieldTooSmall = 3163,
  FieldNotUpdatable = 3164,
  RecordDeleted = 3167,
  ExternalDatabase = 3170,
  TemporarySpaceFull = 3183,
  TooManyFields = 3190,
  DuplicateField = 3191,
  ChangedElsewhere = 3197,
  RelatedRecordsExist = 3200,
  RelatedRecordMissing = 3201,
  DatabaseExists = 3204,
  TableInUse = 3211,
  InvalidOperation = 3219,
  NotSupported = 3251,
  InvalidDataType = 3259,
  NoFieldDefined = 3264,
  ItemNotFound = 3265,
  PropertyNotFound = 3270,
  FieldInIndex = 3280,
  IndexInRelation = 3281,
  SecondPrimaryKey = 3283,
  IndexExists = 3284,
  ConstraintSyntax = 3289,
  CreateTableSyntax = 3290,
  CreateIndexSyntax = 3291,
  ColumnDefinitionSyntax = 3292,
  AlterTableSyntax = 3293,
  DropSyntax = 3295,
  FieldInRelation = 3303,
  SubqueryColumns = 3306,
  UnionColumnsDiffer = 3307,
  ValueRequired = 3314,
  EmptyTextRefused = 3315,
  TableRuleBroken = 3316,
  FieldRuleBroken = 3317,
  RuleUnreadable = 3320,
  UnrecognizedFormat = 3343,
  InsertCountDiffers = 3346,
  NumericOverflow = 3349,
  SubqueryRows = 3354,
  OpenedElsewhere = 3356,
  TooComplex = 3360,
  RelationWithoutFields = 3366,
  PropertyExists = 3367,
  RelationTypesDiffer = 3368,
  NoSuchIndex = 3372,
  NoSuchTable = 3376,
  NoSuchReferencedField = 3381,
  BuiltInProperty = 3384,
  UnknownReference = 3387,
  CascadeDeleteRefused = 3396,
  CascadeUpdateRefused = 3397,
  CascadeRefused = 3399,
  UnknownIndexField = 3409,
  ObjectInvalid = 3420,
  ConversionFailed = 3421,
  TypesDiffer = 3464,
  NoUniqueIndex = 3609,
  TooManyIndexes = 3626,
};

/// Who raises them: classes of the data access objects, as the sources of errors.
namespace source {
inline constexpr char Database[] = "DAO.Database";
inline constexpr char Field[] = "DAO.Field";
inline constexpr char Fields[] = "DAO.Fields";
inline constexpr char Index[] = "DAO.Index";
inline constexpr char Parameter[] = "DAO.Parameter";
inline constexpr char Properties[] = "DAO.Properties";
inline constexpr char Property[] = "DAO.Property";
inline constexpr char QueryDef[] = "DAO.QueryDef";
inline constexpr char Recordset[] = "DAO.Recordset";
inline constexpr char Relation[] = "DAO.Relation";
inline constexpr char Relations[] = "DAO.Relations";
inline constexpr char TableDef[] = "DAO.TableDef";
inline constexpr char TableDefs[] = "DAO.TableDefs";
inline constexpr char Workspace[] = "DAO.Workspace";
inline constexpr char Workspaces[] = "DAO.Workspaces";
}  // namespace source

/// The description of `number`.
const char* description(ErrorNumber number);

/// Error `number` with its description; `about` names the object concerned. `source`: the class of the data
/// access objects that raises it ("DAO.Field").
runtime::Error errorOf(ErrorNumber number, const std::string& source, const std::string& about = {});

}  // namespace jet

namespace jet::file {

/// An error of the file, with a description of its own.
runtime::Error jetError(ErrorNumber number, const std::string& description);

/// Error 3343 for damage: `what` says where and what.
runtime::Error damagedFile(const std::string& what);

/// The engine's error for a failed disk call; names the path of that call.
runtime::Error fromDisk(const platform::DiskError& error);

/// Error 3356 for a file that another process holds; names the holder where the system tells.
runtime::Error heldElsewhere(const std::string& path);

}  // namespace jet::file
