#pragma once

#include "runtime/error.h"

struct sqlite3;

namespace jet::sql {

/// Registers on a connection the SQLite functions that translated statements call, all of them named jet_...,
/// and the collation JETDECIMAL. The collation JET is the image's.
void registerFunctions(sqlite3* connection);

/// The error of the last call on `connection`, which failed: a numbered error of a function as it was, 3360
/// for a statement beyond SQLite's limits, 6 for an overflow; any other as 3000 with SQLite's own words.
runtime::Error errorFromSqlite(sqlite3* connection);

}  // namespace jet::sql
