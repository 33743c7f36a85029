#pragma once

struct sqlite3;

namespace jet::sql {

/// Registers on a connection the SQLite functions that translated statements call, all of them named jet_....
/// The collations JET and JETDECIMAL are the image's.
void registerFunctions(sqlite3* connection);

}  // namespace jet::sql
