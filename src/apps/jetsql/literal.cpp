// A parameter's answer, read as Jet SQL reads a literal.
#include "apps/jetsql/literal.h"

#include "jet/dao/database.h"
#include "runtime/error.h"

namespace jetsql {

ParameterAnswer readAnswer(const std::string& text, jet::dao::Database& database) {
  const auto equals = text.find('=');
  if (equals == 0 || equals == std::string::npos) {
    throw runtime::Error(5, "jetsql", "Parametro senza nome o senza valore: " + text);
  }
  const std::string literal = text.substr(equals + 1);
  try {
    // Brackets keep the literal an expression, so that nothing can follow it.
    const auto rows = database.OpenRecordset("SELECT (" + literal + ")", jet::dao::dbOpenForwardOnly);
    return {text.substr(0, equals), rows->Fields(0).Value()};
  } catch (const runtime::Error& error) {
    throw runtime::Error(5, "jetsql",
                         "Valore non valido per il parametro " + text.substr(0, equals) + ": " + literal +
                             " (" + error.description() + ")");
  }
}

}  // namespace jetsql
