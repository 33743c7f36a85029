// Names as the engine shows them.
#include "jet/sql/stored/names.h"

#include <algorithm>

#include "jet/sql/parser/token.h"
#include "jet/sql/tree/print.h"

namespace jet::sql::stored {

namespace {

constexpr std::string_view Reserved[] = {
    "ADD",   "ALL",    "ALTER",       "AND",        "ANY",     "AS",       "ASC",         "BETWEEN",
    "BY",    "COLUMN", "CREATE",      "DELETE",     "DESC",    "DISTINCT", "DISTINCTROW", "DROP",
    "EQV",   "EXISTS", "FALSE",       "FROM",       "GROUP",   "HAVING",   "IMP",         "IN",
    "INDEX", "INNER",  "INSERT",      "INTO",       "IS",      "JOIN",     "KEY",         "LEFT",
    "LIKE",  "MOD",    "NO",          "NOT",        "NULL",    "OFF",      "ON",          "OR",
    "ORDER", "OUTER",  "OWNERACCESS", "PARAMETERS", "PERCENT", "PIVOT",    "PROCEDURE",   "REFERENCES",
    "RIGHT", "SELECT", "SET",         "SOME",       "TABLE",   "TOP",      "TRANSFORM",   "TRUE",
    "UNION", "UNIQUE", "UPDATE",      "VALUE",      "VALUES",  "WHERE",    "WITH",        "XOR",
    "YES"};

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool isPlain(char c) {
  return isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}

/// True if a name of the path stands in brackets; within a name an opening bracket is a character like
/// others.
bool isWritten(std::string_view path) {
  bool atName = true;
  for (std::size_t i = 0; i < path.size(); ++i) {
    const char closing = path[i] == '[' ? ']' : path[i] == '`' ? '`' : 0;
    if (atName && closing && path.find(closing, i + 1) != std::string_view::npos) return true;
    atName = path[i] == '.' || path[i] == '!' || (atName && path[i] == ' ');
  }
  return false;
}

}  // namespace

std::string shownName(std::string_view name) {
  const bool plain = !name.empty() && !isDigit(name.front()) && std::ranges::all_of(name, isPlain) &&
                     std::ranges::none_of(Reserved, [&](auto word) { return sameWord(name, word); });
  return plain ? std::string(name) : tree::quotedName(name);
}

std::string shownPath(std::string_view path) {
  if (isWritten(path)) return std::string(path);
  std::string shown;
  while (true) {
    const std::size_t separator = path.find_first_of(".!");
    shown += shownName(path.substr(0, separator));
    if (separator == std::string_view::npos) return shown;
    shown += path[separator];
    path.remove_prefix(separator + 1);
  }
}

}  // namespace jet::sql::stored
