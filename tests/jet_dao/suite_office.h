#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "office.h"

/// A register office in small: the tables that the suite's statements name, with a few rows each.
namespace office {

/// A statement of the suite with the values of its parameters.
struct SuiteCase {
  const char* sql;
  std::vector<std::pair<const char*, runtime::Variant>> answers;
  /// Of a SELECT the columns to show (all of them if empty), of a change the SELECT that looks at its result.
  const char* look;
  /// Rows as office::rows gives them; of a change behind the number of rows and a colon; "error <number>".
  const char* result;
};

void PrintTo(const SuiteCase& value, std::ostream* out);

/// Runs each statement on the same office; what one changes the next one does not see.
class SuiteOffice : public testing::TestWithParam<SuiteCase> {
 protected:
  static void SetUpTestSuite();
  static void TearDownTestSuite();

  std::string selected() const;
  std::string changed() const;

 private:
  jet::dao::QueryDefPtr query() const;

  struct Files;
  static Files* files_;
};

}  // namespace office
