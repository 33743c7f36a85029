#include "runtime/random.h"

#include <gtest/gtest.h>

namespace runtime {
namespace {

TEST(Random, GivesTheLanguagesRow) {
  Random random;
  EXPECT_FLOAT_EQ(random.next(), 0.7055475F);
  EXPECT_FLOAT_EQ(random.next(), 0.533424F);
  EXPECT_FLOAT_EQ(random.next(0), 0.533424F);
  EXPECT_FLOAT_EQ(random.next(-1), 0.224007F);
  EXPECT_NE(random.next(), random.next());
}

}  // namespace
}  // namespace runtime
