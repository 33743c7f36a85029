// Any bytes as a database: read whole, changed and saved, compacted. Each step ends well or in a numbered
// error, and what the engine could read it writes again: rows, relations and stored queries.
#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <optional>

#include "jet/dao/query/stored_queries.h"
#include "jet/dao/session/session.h"
#include "jet/file/properties.h"
#include "jet/file/read/page_use.h"
#include "jet/file/read/table_reader.h"
#include "jet/file/values.h"
#include "jet/file/write/compaction.h"

namespace {

using namespace jet;

[[noreturn]] void broken(const char* what, const std::string& detail) {
  std::fprintf(stderr, "%s: %s\n", what, detail.c_str());
  std::abort();
}

/// A file in memory under a path.
class MemoryFile {
 public:
  explicit MemoryFile(const char* name) : descriptor_(::memfd_create(name, 0)) {}
  std::string path() const { return "\\proc\\self\\fd\\" + std::to_string(descriptor_); }
  void set(const std::uint8_t* data, std::size_t size) {
    if (::ftruncate(descriptor_, 0) != 0 ||
        ::pwrite(descriptor_, data, size, 0) != static_cast<ssize_t>(size))
      broken("memory file", path());
  }

 private:
  int descriptor_;
};

/// Runs `work`; false if it ends in a numbered error.
template <typename Work>
bool passes(const Work& work) {
  try {
    work();
    return true;
  } catch (const runtime::Error& error) {
    if (error.number() == 0 || error.description().empty())
      broken("error without number or text", error.what());
    return false;
  }
}

std::unique_ptr<file::PageFile> open(const MemoryFile& file, bool readOnly) {
  return std::make_unique<file::PageFile>(file.path(), file::Sharing::Shared, readOnly);
}

/// All values of a table as text, and its properties on the way.
std::string content(const file::PageFile& file, const file::TableDefinition& table) {
  std::string result;
  file::TableReader reader(file, table);
  for (file::Row row; reader.next(row);) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      const auto value = file::toVariant(file.format(), file.header().codePage, table.columns[i], row[i]);
      if (!row[i].null)
        result.append(reinterpret_cast<const char*>(row[i].bytes.data()), row[i].bytes.size());
      result += value.isNull() ? "~" : "|";
      if (!row[i].null && table.columns[i].name == "LvProp")
        passes([&] { file::PropertyBlock(file.format(), row[i].bytes, file.header().codePage).encode(); });
    }
    result += '\n';
  }
  return result;
}

/// The content of a file, table by table, behind it relations and stored queries.
using Contents = std::vector<std::string>;

void addObjects(dao::Session& session, Contents& contents) {
  auto& image = session.image();
  for (const auto& relation : image.relations()) {
    contents.push_back(relation.name + " " + relation.table + " " + relation.foreignTable + " " +
                       std::to_string(relation.attributes));
    for (const auto& pair : relation.pairs) contents.back() += " " + pair.column + "=" + pair.foreignColumn;
  }
  for (const auto& query : dao::queryObjects(image)) {
    contents.push_back(query.name);
    passes([&] { contents.back() += "\n" + dao::queryText(image, query); });
    passes([&] { session.runner().compile(contents.back().substr(query.name.size())); });
  }
  for (const auto& table : image.tables())
    passes([&] { contents.push_back(image.link(table.page) ? image.link(table.page)->path : table.name); });
}

Contents contents(const file::PageFile& file) {
  Contents result;
  for (const auto& table : file::readTables(file)) {
    file::findPages(file, table);
    result.push_back(content(file, table));
  }
  return result;
}

Contents contentsAndObjects(std::unique_ptr<file::PageFile> file) {
  Contents result = contents(*file);
  dao::Session session(std::move(file));
  addObjects(session, result);
  return result;
}

/// Has `write` make a file, whose content is given back. An error of the writing is none of the test's; but
/// what was made of a file without damage can be read again.
template <typename Write>
std::optional<Contents> writtenBy(const MemoryFile& out, bool fromDamaged, const Write& write) {
  const bool done = passes([&] {
    platform::File file = platform::openFile(out.path(), platform::OpenMode::Create);
    write(file);
  });
  if (!done || fromDamaged) return std::nullopt;
  try {
    return contentsAndObjects(open(out, true));
  } catch (const runtime::Error& error) {
    broken("a written file can't be read", error.description());
  }
}

/// Compacts a file with this content; nothing if it is damaged.
void compact(const MemoryFile& from, const MemoryFile& to, const std::optional<Contents>& before) {
  const auto file = open(from, true);
  const auto after = writtenBy(to, !before, [&](platform::File& out) { file::writeCompacted(*file, out); });
  if (after && after != before) broken("a compacted file", "has another content");
}

/// Loads every table into the image and changes what a run would change.
void change(dao::Session& session) {
  const auto names = [&] {
    std::vector<std::string> list;
    for (const auto& table : session.image().tables())
      if (!table.name.starts_with("MSys")) list.push_back(table.name);
    return list;
  }();
  const auto execute = [&](const std::string& sql) {
    passes([&] { session.runner().execute(session.runner().compile(sql), {}, true); });
  };
  auto& image = session.image();
  for (const auto& table : image.tables()) {
    passes([&] { image.prepareToRead(table.page, {}); });
    passes([&] { image.properties(table.page); });
  }
  execute("CREATE TABLE nuova (id COUNTER CONSTRAINT k PRIMARY KEY, testo TEXT(50), nota MEMO)");
  execute("INSERT INTO nuova (testo, nota) VALUES ('à', 'b')");
  execute("CREATE TABLE figlia (id LONG CONSTRAINT r REFERENCES nuova (id), altro TEXT(9))");
  execute("INSERT INTO figlia SELECT id, 'c' FROM nuova");
  passes([&] {
    dao::createQuery(image, "nuova query", "SELECT * FROM figlia, nuova WHERE figlia.id = nuova.id");
  });
  passes([&] {
    for (const auto& query : dao::queryObjects(image))
      dao::rewriteQuery(image, query, dao::queryText(image, query));
  });
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i % 3 == 2) {
      execute("DROP TABLE [" + names[i] + "]");
      continue;
    }
    execute("INSERT INTO [" + names[i] + "] SELECT TOP 1 * FROM [" + names[i] + "]");
    if (i % 3 == 1) execute("DELETE FROM [" + names[i] + "]");
    if (i % 3 == 0) execute("ALTER TABLE [" + names[i] + "] ADD COLUMN aggiunta TEXT(20)");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static MemoryFile input("input"), output("output"), compacted("compacted");
  input.set(data, size);
  std::optional<Contents> before;
  passes([&] { before = contentsAndObjects(open(input, true)); });
  passes([&] {
    dao::Session session(open(input, false));
    change(session);
    const auto written = writtenBy(output, !before, [&](platform::File& out) { session.image().write(out); });
    if (written) compact(output, compacted, written);
  });
  passes([&] { compact(input, compacted, before); });
  return 0;
}
