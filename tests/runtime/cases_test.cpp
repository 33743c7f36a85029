#include <gtest/gtest.h>

#include "call.h"
#include "runtime/date.h"
#include "support/case_file.h"

namespace runtime {
namespace {

/// Each file holds calls and what they give.
TEST(Cases, GiveWhatTheLanguageGives) {
  setYearSource([] { return 2026; });
  for (const char* file : {"conversions", "dates", "formats", "numbers", "texts"})
    support::CaseFile(CASES "/" + std::string(file) + ".cases").expectResults([](const support::Case& each) {
      return resultOf(each.statement);
    });
}

}  // namespace
}  // namespace runtime
