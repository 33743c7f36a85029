#pragma once

struct sqlite3;

namespace jet::sql {

/// Registers on a connection the SQLite functions that translated statements call, all of them named jet_...,
/// and the collation JETDECIMAL. The collation JET is the image's.
void registerFunctions(sqlite3* connection);

}  // namespace jet::sql
