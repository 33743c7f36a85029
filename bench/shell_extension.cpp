// Loaded by the shell of SQLite: the text order and the functions that translated statements call.
#include <sqlite3.h>

#include "jet/image/connection.h"
#include "jet/sql/functions.h"

extern "C" int sqlite3_jetshell_init(sqlite3* connection, char**, const void*) {
  jet::image::registerOrders(connection);
  jet::sql::registerFunctions(connection);
  return SQLITE_OK;
}
