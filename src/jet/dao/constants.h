#pragma once

/// Constants of the data access objects, with their published names and values.
namespace jet::dao {

/// 0 where a kind may be given: a table for a table's name, a dynaset for anything else.
enum RecordsetType : int { dbOpenTable = 1, dbOpenDynaset = 2, dbOpenSnapshot = 4, dbOpenForwardOnly = 8 };

enum RecordsetOption : int { dbReadOnly = 4 };
enum EditModeType : int { dbEditNone = 0, dbEditInProgress = 1, dbEditAdd = 2 };
enum ExecuteOption : int { dbFailOnError = 128 };

enum DataType : int {
  dbBoolean = 1,
  dbByte = 2,
  dbInteger = 3,
  dbLong = 4,
  dbCurrency = 5,
  dbSingle = 6,
  dbDouble = 7,
  dbDate = 8,
  dbBinary = 9,
  dbText = 10,
  dbLongBinary = 11,
  dbMemo = 12,
  dbGUID = 15,
  dbDecimal = 20,
};

enum FieldAttribute : int {
  dbDescending = 1,
  dbFixedField = 1,
  dbVariableField = 2,
  dbAutoIncrField = 16,
  dbUpdatableField = 32,
  dbSystemField = 8192,
  dbHyperlinkField = 32768,
};

enum TableAttribute : int {
  dbHiddenObject = 1,
  dbSystemObject = -2147483646,
  dbAttachedTable = 1073741824,
};

enum QueryDefType : int {
  dbQSelect = 0,
  dbQCrosstab = 16,
  dbQDelete = 32,
  dbQUpdate = 48,
  dbQAppend = 64,
  dbQMakeTable = 80,
  dbQDDL = 96,
  dbQSQLPassThrough = 112,
  dbQSetOperation = 128,
};

enum RelationAttribute : int {
  dbRelationUnique = 1,
  dbRelationDontEnforce = 2,
  dbRelationInherited = 4,
  dbRelationUpdateCascade = 256,
  dbRelationDeleteCascade = 4096,
  dbRelationLeft = 16777216,
  dbRelationRight = 33554432,
};

}  // namespace jet::dao
