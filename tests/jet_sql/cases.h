#pragma once

#include <gtest/gtest.h>

#include <initializer_list>

#include "small_image.h"

namespace jet::sql::test {

struct Case {
  const char* expression;
  const char* value;
};

/// Each expression is the only column of a SELECT without FROM.
inline void expectValues(std::initializer_list<Case> cases) {
  SmallImage image;
  for (const Case& row : cases) {
    EXPECT_EQ(image.rows("SELECT " + std::string(row.expression)), row.value) << row.expression;
  }
}

inline std::string typeOfExpression(const SmallImage& image, const std::string& expression) {
  return typeName(
      image.compileRows("SELECT " + expression + " FROM soci, pagamenti, tipi").columns.front().type);
}

}  // namespace jet::sql::test
