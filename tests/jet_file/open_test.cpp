#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "corpus.h"
#include "jet/file/page/page_file.h"
#include "jet/file/read/catalogue.h"
#include "runtime/error.h"
#include "writing.h"

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
  return corpus::load(writing::emptyDatabase("vuoto.mdb"));
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

struct Case {
  const char* what;
  Content content;
  bool readOnly;
  int number;
};

void expectNumbers(const std::vector<Case>& cases) {
  const std::string path = corpus::scratch("L'albo \"degli\" 50% àèì.mdb");
  for (const auto& [what, content, readOnly, number] : cases) {
    corpus::store(path, content);
    std::string description;
    EXPECT_EQ(errorOfOpening(path, Sharing::Exclusive, readOnly, &description), number)
        << what << description;
  }
}

void setPassword(Content& header) {
  header[Jet4.passwordAt] = std::byte{'x'};
}
void setCipherKey(Content& header) {
  header[Jet4.cipherKeyAt] = std::byte{1};
}

TEST(Opening, BadFilesGetTheirNumber) {
  Content later = jet4();
  later[0x14] = std::byte{2};
  expectNumbers({
      {"whole", jet4(), Writable, 0},
      {"empty", {}, ReadOnly, 3343},
      {"no database", Content(100000, std::byte{'a'}), ReadOnly, 3343},
      {"cut in a page", cut(jet4(), 60000), ReadOnly, 3343},
      {"cut before the catalogue's rows", cut(jet4(), 10 * 4096), ReadOnly, 3343},
      {"cut in the header", cut(jet4(), 100), ReadOnly, 3343},
      {"too few pages", cut(jet4(), 5 * 4096), ReadOnly, 3343},
      {"later version", later, ReadOnly, 3343},
      {"encoded", withHeader(Jet4, jet4(), setCipherKey), ReadOnly, 3343},
      {"password", withHeader(Jet4, jet4(), setPassword), ReadOnly, 3031},
  });
}

TEST(Opening, TheOldFormatIsForReadingOnly) {
  REQUIRE_CORPUS();
  const Content jet3 = corpus::load(corpus::file("jet3\\testV1997.mdb"));
  expectNumbers({
      {"reading", jet3, ReadOnly, 0},
      {"writing", jet3, Writable, 3041},
      {"password", withHeader(Jet3, jet3, setPassword), ReadOnly, 3031},
  });
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
