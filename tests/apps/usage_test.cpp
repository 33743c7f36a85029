// What the programs answer to their command lines, well meant or not.
#include "support/usage.h"

#include <gtest/gtest.h>

namespace {

const std::string cases = REPOSITORY "/tests/apps/cases/";

TEST(Usage, OfJetsqlIsToldApart) {
  support::expectUsage(JETSQL, cases + "usage.cases");
}

TEST(Usage, OfAggnorvoCatalogoIsToldApart) {
  support::expectUsage(CATALOGO, cases + "usage_catalogo.cases");
}

TEST(Usage, OfTheWindowIsToldWithoutADisplay) {
  for (const char* platform : {"xcb", "nessuna"}) {
    SCOPED_TRACE(platform);
    support::expectUsage(
        std::string("env -u DISPLAY -u WAYLAND_DISPLAY QT_QPA_PLATFORM=") + platform + " " WINDOW,
        cases + "usage_window.cases");
  }
}

}  // namespace
