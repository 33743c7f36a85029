#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "corpus.h"
#include "jet/file/catalogue.h"
#include "jet/file/page_file.h"
#include "runtime/error.h"

namespace jet::file {
namespace {

using Content = std::vector<std::byte>;

constexpr bool ReadOnly = true, Writable = false;

/// Number of the error that opening gives, 0 if it opens.
int errorOfOpening(const std::string& path, Sharing sharing, bool readOnly,
                   std::string* description = nullptr) {
  try {
    const PageFile file(path, sharing, readOnly);
    readCatalogue(file);
    return 0;
  } catch (const runtime::Error& error) {
    if (description != nullptr) *description = error.description();
    return error.number();
  }
}

Content jet4() {
  return corpus::load(corpus::file("jet4\\emptyJet4.mdb"));
}
Content jet3() {
  return corpus::load(corpus::file("jet3\\testV1997.mdb"));
}

/// The file with a change to its header.
Content withHeader(const Format& format, Content content, const std::function<void(Content&)>& change) {
  maskHeader(format, content);
  maskPassword(format, content);
  change(content);
  maskPassword(format, content);
  maskHeader(format, content);
  return content;
}

Content cut(Content content, std::size_t size) {
  content.resize(size);
  return content;
}

TEST(Opening, BadFilesGetTheirNumberAndAreNamed) {
  REQUIRE_CORPUS();
  const auto password = [](Content& c) { c[0x42] = std::byte{'x'}; };
  const struct {
    const char* what;
    Content content;
    bool readOnly;
    int number;
  } cases[] = {
      {"whole", jet4(), Writable, 0},
      {"empty", {}, ReadOnly, 3343},
      {"no database", Content(100000, std::byte{'a'}), ReadOnly, 3343},
      {"cut in a page", cut(jet4(), 60000), ReadOnly, 3343},
      {"cut before the catalogue ends", cut(jet4(), 10 * 4096), ReadOnly, 3343},
      {"cut in the header", cut(jet4(), 100), ReadOnly, 3343},
      {"too few pages", cut(jet4(), 5 * 4096), ReadOnly, 3343},
      {"later version",
       [] {
         Content c = jet4();
         c[0x14] = std::byte{2};
         return c;
       }(),
       ReadOnly, 3343},
      {"encoded", withHeader(Jet4, jet4(), [](Content& c) { c[0x3E] = std::byte{1}; }), ReadOnly, 3343},
      {"password", withHeader(Jet4, jet4(), password), ReadOnly, 3031},
      {"password, Jet 3", withHeader(Jet3, jet3(), password), ReadOnly, 3031},
      {"Jet 3", jet3(), ReadOnly, 0},
      {"Jet 3 for writing", jet3(), Writable, 3041},
  };
  const std::string path = corpus::scratch("L'albo \"degli\" 50% àèì.mdb");
  for (const auto& c : cases) {
    corpus::store(path, c.content);
    std::string description;
    EXPECT_EQ(errorOfOpening(path, Sharing::Exclusive, c.readOnly, &description), c.number)
        << c.what << description;
  }
}

TEST(Opening, PathsThatLeadToNoFile) {
  const std::string folder = corpus::scratch("cartella");
  std::filesystem::create_directories(corpus::systemPath(folder));
  const struct {
    std::string path;
    int number;
  } cases[] = {
      {corpus::scratch("manca.mdb"), 3024},
      {folder, 3051},
      {folder + "\\manca\\a.mdb", 3044},
  };
  for (const auto& c : cases) {
    std::string description;
    EXPECT_EQ(errorOfOpening(c.path, Sharing::Shared, ReadOnly, &description), c.number) << c.path;
    EXPECT_NE(description.find(c.path), std::string::npos) << description;
  }
}

TEST(Opening, SharesWithReadersAndExcludesOthers) {
  REQUIRE_CORPUS();
  const std::string path = corpus::scratch("condiviso.mdb");
  corpus::store(path, jet4());
  {
    const PageFile first(path, Sharing::Shared, ReadOnly);
    EXPECT_EQ(errorOfOpening(path, Sharing::Shared, Writable), 0);
    EXPECT_EQ(errorOfOpening(path, Sharing::Exclusive, Writable), 3356);
  }
  {
    const PageFile first(path, Sharing::Exclusive, Writable);
    EXPECT_EQ(errorOfOpening(path, Sharing::Shared, ReadOnly), 3356);
  }
  EXPECT_EQ(errorOfOpening(path, Sharing::Exclusive, Writable), 0);
}

}  // namespace
}  // namespace jet::file
