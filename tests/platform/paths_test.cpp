#include "platform/paths.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files.h"
#include "support/command.h"
#include "support/temp_folder.h"

namespace platform {
namespace {

/// Two databases of one name, one of them behind a link.
TEST(Paths, NameTheFileThatTheSystemFinds) {
  const support::TempFolder folder;
  const std::string root = folder.systemPath();
  for (const char* made : {"vero", "vero/sotto", "qui", "chiuso"})
    ASSERT_EQ(::mkdir((root + "/" + made).c_str(), 0777), 0);
  for (const char* file : {"a.mdb", "vero\\a.mdb", "qui\\a.mdb"}) writeWholeFile(folder.path(file), file);
  ASSERT_EQ(::symlink("../vero/sotto", (root + "/qui/rinvio").c_str()), 0);
  ASSERT_EQ(::symlink("rinvio", (root + "/qui/doppio").c_str()), 0);
  ASSERT_EQ(::symlink("manca", (root + "/qui/perso").c_str()), 0);
  const struct {
    const char *given, *content;  // nullptr: there is none
  } cases[] = {
      {"a.mdb", "a.mdb"},
      {"qui/../a.mdb", "a.mdb"},
      {"qui/./sopra/../a.mdb", nullptr},
      {"qui//../qui/a.mdb", "qui\\a.mdb"},
      {"qui/rinvio/../a.mdb", "vero\\a.mdb"},
      {"qui/doppio/../a.mdb", "vero\\a.mdb"},
      {"qui/rinvio/../../a.mdb", "a.mdb"},
      {"qui/rinvio/../sotto/../a.mdb", "vero\\a.mdb"},
      {"qui/rinvio/.././../qui/a.mdb", "qui\\a.mdb"},
      {"qui/perso/../a.mdb", nullptr},
      {"a.mdb/../a.mdb", nullptr},
      {"qui/manca/../../a.mdb", nullptr},
  };
  for (const auto& test : cases) {
    const std::string given = root + "/" + test.given, kept = fromSystemPath(given);
    EXPECT_EQ(support::contentOf(given), test.content ? test.content : "") << "the case itself: " << given;
    EXPECT_EQ(fileExists(kept), test.content != nullptr) << given << " -> " << kept;
    if (test.content) {
      EXPECT_EQ(readWholeFile(kept), test.content) << given << " -> " << kept;
      EXPECT_EQ(kept.find(".."), std::string::npos);
    }
  }
  EXPECT_EQ(fromSystemPath("/../.."), "\\");
  EXPECT_EQ(fromSystemPath("/tmp/../"), "\\");
}

}  // namespace
}  // namespace platform
