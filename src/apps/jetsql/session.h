#pragma once

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace jet::dao {
class Database;
class Workspace;
}  // namespace jet::dao

namespace jetsql {

/// What the command line asks for.
struct Request {
  std::string file;                     // as the system writes paths
  std::vector<std::string> statements;  // none: they come from the script
  std::vector<std::string> answers;     // NAME=LITERAL
  bool create = false;
  bool readOnly = false;
  bool json = false;
};

/// Opens or makes the database that is asked for; exclusively, unless it is only read.
std::shared_ptr<jet::dao::Database> openDatabase(jet::dao::Workspace& workspace, const Request& request);

/// Runs all statements in one transaction and saves at the end; at the first error nothing is saved, a file
/// that was made is removed, and the error is told on `errors` with its place. Returns the exit status, 0
/// or 1.
int runSession(const Request& request, std::istream& script, std::ostream& rows, std::ostream& errors);

}  // namespace jetsql
