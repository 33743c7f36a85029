// Whom a new file lets in: as the one whose place it takes, or never more than the one it copies.
#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <functional>

#include "platform/files.h"
#include "support/child_process.h"
#include "support/command.h"
#include "support/errors.h"
#include "support/temp_folder.h"

namespace platform {
namespace {

constexpr uid_t named = 1234, stranger = 65534;
constexpr gid_t office = 4321;

struct Entry {
  std::uint16_t tag, rights;
  std::uint32_t id = 0xffffffff;
};
constexpr std::uint16_t Owner = 1, User = 2, Group = 4, Mask = 16, Other = 32;

/// An access list as the system keeps it.
std::string list(const std::vector<Entry>& entries) {
  std::string bytes("\2\0\0\0", 4);
  for (const auto& [tag, rights, id] : entries)
    for (int byte = 0; byte < 8; ++byte)
      bytes += static_cast<char>(byte < 2   ? tag >> 8 * byte
                                 : byte < 4 ? rights >> 8 * (byte - 2)
                                            : id >> 8 * (byte - 4));
  return bytes;
}

/// Everything that a save must keep, in one text.
std::string rightsOf(const std::string& path) {
  struct stat info {};
  ::stat(path.c_str(), &info);
  std::string text =
      std::to_string(info.st_uid) + ":" + std::to_string(info.st_gid) + ":" + std::to_string(info.st_mode);
  for (const char* name : {"system.posix_acl_access", "user.nota", "user.vuoto"}) {
    char value[200];
    const ssize_t length = ::getxattr(path.c_str(), name, value, sizeof value);
    text += "|" + (length < 0 ? "none" : std::string(value, static_cast<std::size_t>(length)));
  }
  return text;
}

bool readable(const std::string& path, uid_t user, gid_t group) {
  return support::runInChild([&] {
           if (::setgroups(0, nullptr) != 0 || ::setgid(group) != 0 || ::setuid(user) != 0) return 2;
           return ::open(path.c_str(), O_RDONLY) >= 0 ? 1 : 0;
         }) == 1;
}

class Rights : public testing::Test {
 protected:
  void SetUp() override {
    if (::geteuid() != 0) GTEST_SKIP() << "needs the superuser, to give files to others";
    ASSERT_EQ(::chmod(folder_.systemPath().c_str(), 0777), 0);
    writeWholeFile(folder_.path("nuovo"), "nuovo");
    writeWholeFile(folder_.path("vecchio"), "vecchio");
    if (!give(new_, "user.nota", "x") || !give(new_, "system.posix_acl_access", minimal))
      GTEST_SKIP() << "the file system of " << folder_.systemPath() << " keeps no attributes or access lists";
    ASSERT_EQ(::removexattr(new_.c_str(), "user.nota"), 0);
    ASSERT_EQ(::removexattr(new_.c_str(), "system.posix_acl_access"), 0);
  }
  static bool give(const std::string& path, const char* name, const std::string& value) {
    return ::setxattr(path.c_str(), name, value.data(), value.size(), 0) == 0;
  }

  const std::string minimal = list({{Owner, 6}, {User, 4, named}, {Group, 0}, {Mask, 4}, {Other, 0}});
  support::TempFolder folder_;
  const std::string new_ = folder_.systemPath("nuovo"), old_ = folder_.systemPath("vecchio");
};

/// What can be said of a file's rights, alone and together.
const struct {
  const char* name;
  std::function<int(const std::string&)> set;
} kinds[] = {
    {"owner", [](const std::string& path) { return ::chown(path.c_str(), named, static_cast<gid_t>(-1)); }},
    {"group", [](const std::string& path) { return ::chown(path.c_str(), static_cast<uid_t>(-1), office); }},
    {"mode", [](const std::string& path) { return ::chmod(path.c_str(), 0640); }},
    {"readable by nobody", [](const std::string& path) { return ::chmod(path.c_str(), 0200); }},
    {"list that locks the group out",
     [](const std::string& path) {
       const auto value = list({{Owner, 6}, {User, 6, named}, {Group, 0}, {Mask, 6}, {Other, 0}});
       return ::setxattr(path.c_str(), "system.posix_acl_access", value.data(), value.size(), 0);
     }},
    {"list that locks the owner out",
     [](const std::string& path) {
       const auto value = list({{Owner, 0}, {User, 6, stranger}, {Group, 4}, {Mask, 6}, {Other, 0}});
       return ::setxattr(path.c_str(), "system.posix_acl_access", value.data(), value.size(), 0);
     }},
    {"attributes",
     [](const std::string& path) {
       return ::setxattr(path.c_str(), "user.nota", "a\0b", 3, 0) |
              ::setxattr(path.c_str(), "user.vuoto", "", 0, 0);
     }},
};

TEST_F(Rights, OfTheOldFileAreThoseOfTheNewOne) {
  // What the folder hands down to new files must not be added to them.
  for (const bool handedDown : {false, true}) {
    if (handedDown) {
      ASSERT_TRUE(give(folder_.systemPath(), "system.posix_acl_default",
                       list({{Owner, 7}, {User, 7, named}, {Group, 7}, {Mask, 7}, {Other, 7}})));
    }
    for (const auto& kind : kinds) {
      SCOPED_TRACE(std::string(kind.name) + (handedDown ? ", handed down" : ""));
      ASSERT_EQ(::unlink(old_.c_str()), 0);
      writeWholeFile(folder_.path("vecchio"), "vecchio");
      ASSERT_EQ(kind.set(old_), 0);
      const std::string before = rightsOf(old_);
      copyFile(folder_.path("nuovo"), folder_.path("vecchio"));
      EXPECT_EQ(support::contentOf(old_), "nuovo");
      EXPECT_EQ(rightsOf(old_), before);
    }
  }
}

TEST_F(Rights, ThatCantBeKeptAreARefusalAndNothingIsWritten) {
  ASSERT_EQ(::chmod(new_.c_str(), 0666), 0);
  const struct {
    const char* name;
    uid_t owner;
    gid_t group;
  } cases[] = {{"another's file", named, stranger}, {"another group's file", stranger, office}};
  for (const auto& test : cases) {
    ASSERT_EQ(::chown(old_.c_str(), test.owner, test.group), 0);
    ASSERT_EQ(::chmod(old_.c_str(), 0666), 0);
    const int status = support::runInChild([&] {
      if (::setgroups(0, nullptr) != 0 || ::setgid(stranger) != 0 || ::setuid(stranger) != 0) return 1;
      try {
        copyFile(folder_.path("nuovo"), folder_.path("vecchio"));
        return 2;
      } catch (const DiskError& error) {
        if (error.number() != 75 || !error.description().ends_with(": " + folder_.path("vecchio"))) return 3;
      }
      return 0;
    });
    EXPECT_EQ(status, 0) << test.name;
    EXPECT_EQ(support::contentOf(old_), "vecchio") << test.name;
    EXPECT_EQ(folder_.names(), (std::vector<std::string>{"nuovo", "vecchio"})) << test.name;
  }
}

TEST_F(Rights, OfACopyUnderANewNameAreNeverMoreThanTheSources) {
  const std::string all = list({{Owner, 7}, {User, 7, named}, {Group, 7}, {Mask, 7}, {Other, 7}});
  const struct {
    const char* name;
    std::string ofSource, handedDown;
    mode_t mode;
    gid_t group, folderGroup;
  } cases[] = {
      {"closed", "", "", 0600, 0, 0},
      {"of a group, in another's folder", "", "", 0660, 0, office},
      {"of a group and everyone, in another's folder", "", "", 0664, 0, office},
      {"with a list", minimal, "", 0, 0, 0},
      {"with a list, in another's folder", minimal, "", 0, 0, office},
      {"in a folder that hands down", "", all, 0640, 0, 0},
      {"with a list, in a folder that hands down", minimal, all, 0, 0, office},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.name);
    const std::string inside = folder_.systemPath("dentro"), copy = inside + "/copia";
    std::filesystem::remove_all(inside);
    ASSERT_EQ(::mkdir(inside.c_str(), 0777), 0);
    ASSERT_EQ(::chown(inside.c_str(), 0, test.folderGroup), 0);
    ASSERT_EQ(::chmod(inside.c_str(), 02777), 0);
    if (!test.handedDown.empty()) {
      ASSERT_TRUE(give(inside, "system.posix_acl_default", test.handedDown));
    }
    ASSERT_EQ(::unlink(new_.c_str()), 0);
    writeWholeFile(folder_.path("nuovo"), "nuovo");
    ASSERT_EQ(::chown(new_.c_str(), 0, test.group), 0);
    ASSERT_EQ(::chmod(new_.c_str(), test.mode), 0);
    if (!test.ofSource.empty()) {
      ASSERT_TRUE(give(new_, "system.posix_acl_access", test.ofSource));
    }
    copyFile(folder_.path("nuovo"), fromSystemPath(copy));
    for (const uid_t user : {named, stranger})
      for (const gid_t group : {gid_t{0}, office, gid_t{stranger}})
        EXPECT_LE(readable(copy, user, group), readable(new_, user, group)) << user << ":" << group;
  }
}

}  // namespace
}  // namespace platform
