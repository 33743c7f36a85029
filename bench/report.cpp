#include "report.h"

#include <cstdio>
#include <string_view>

namespace bench {

void report(const char* what, double figure, const char* unit, const char* relation, double aim) {
  const std::string_view bound = relation;
  const bool held = bound == ">=" ? figure >= aim : bound == "<=" ? figure <= aim : figure < aim;
  std::printf("%-58s %9.2f %-5s", what, figure, unit);
  if (aim != 0) std::printf(" %s %-6g %s", relation, aim, held ? "ok" : "MISSED");
  std::printf("\n");
  std::fflush(stdout);
}

}  // namespace bench
