#include <gtest/gtest.h>

#include <numeric>
#include <set>

#include "../support/disk_faults.h"
#include "corpus.h"
#include "jet/file/read/catalogue.h"
#include "jet/file/read/page_use.h"
#include "jet/file/write/compaction.h"
#include "jet/file/write/database_writer.h"
#include "jet/file/write/empty_database.h"
#include "support/errors.h"
#include "writing.h"

/// Databases made from nothing, changed and compacted.
namespace jet::file {
namespace {

using namespace writing;
using enum ColumnType;

const ColumnPlan Id{"Id", Long}, Name{"Nome", Text, 100};
const IndexPlan PrimaryKey{"PrimaryKey", {{0}}, 0, true};

TEST(EmptyDatabase, IsTheOneThatTheEngineMakes) {
  const std::string path = emptyDatabase("empty.mdb");
  EXPECT_EQ(objections({path}), "");
  EXPECT_EQ(contentOf(path).size(), 24u);
  REQUIRE_CORPUS();
  const std::vector<std::byte> ours = corpus::load(path),
                               theirs = corpus::load(corpus::file("jet4\\adox_jet4.mdb"));
  ASSERT_EQ(ours.size(), theirs.size());
  std::set<std::size_t> pages;
  std::size_t different = 0;
  for (std::size_t i = 0; i < ours.size(); ++i)
    if (ours[i] != theirs[i]) ++different, pages.insert(i / 4096);
  // What the engine leaves uninitialised in its definitions.
  EXPECT_EQ(different, 26u);
  EXPECT_EQ(pages, (std::set<std::size_t>{2, 3, 4}));
}

Values everyType(std::size_t i) {
  const auto number = static_cast<std::int32_t>(i);
  if (i % 7 == 3) {
    Values nulls(16);
    nulls[0] = raw(number);
    nulls[5] = bytes({0});
    return nulls;
  }
  Bytes guid = raw(std::uint64_t{i} * 0x9E3779B97F4A7C15), numeric(17),
        picture(i % 5 == 0 ? 20000 + i : i % 90);
  guid.resize(16);
  numeric[0] = std::byte(i % 2 * 0x80);
  numeric[13] = std::byte(i % 256);
  for (std::size_t k = 0; k < picture.size(); ++k) picture[k] = static_cast<std::byte>(k * i);
  const std::string word = "Riga n° " + std::to_string(i * 7919 % 1000) + (i % 3 == 0 ? " perché è" : " x-y");
  return {raw(number),
          text(word),
          text(std::string(i % 11 == 0 ? 9000 : i % 60, 'm'), false),
          picture,
          raw(static_cast<std::int16_t>(number)),
          bytes({static_cast<int>(i % 2)}),
          bytes({static_cast<int>(i % 256)}),
          raw(std::int64_t{number} * -10000),
          raw(static_cast<float>(number) / 3),
          raw(static_cast<double>(number) / -7),
          raw(40000.0 + number),
          Bytes(i % 40, std::byte(i % 256)),
          guid,
          numeric,
          text(std::string(1 + i % 5, 'f'), false),
          raw(number)};
}

TableDefinition everyTypeTable() {
  const std::vector<ColumnPlan> columns = {Id,
                                           Name,
                                           {"Note", Memo},
                                           {"Immagine", Ole},
                                           {"Breve", Integer},
                                           {"Attivo", Boolean},
                                           {"Ottetto", Byte},
                                           {"Importo", Currency},
                                           {"Singola", Single},
                                           {"Doppia", Double},
                                           {"Giorno", Date},
                                           {"Binario", Binary, 100},
                                           {"Chiave", Guid},
                                           {"Decimale", Numeric},
                                           {"Fisso", Text, 10, true},
                                           {"LungoVariabile", Long, 0, true}};
  return table("Tutti i tipi", columns,
               {PrimaryKey,
                {"PerNome", {{1, false}}},
                {"PerNota", {{2}}, RealIndex::IgnoreNulls},
                {"Misto", {{5}, {9, false}, {12}}},
                {"Unico", {{7}, {0}}, RealIndex::Unique},
                {"PerDecimale", {{13, false}, {11, false}}}});
}

TEST(Writer, HoldsEveryTypeThroughChangesAndCompaction) {
  const std::size_t count = 1500;
  const std::string made0 =
      withTable(emptyDatabase("empty.mdb"), everyTypeTable(), made(count, everyType), "types.mdb");
  const std::string again = withTable(made0, table("Altra", {Id}, {}), made({{raw(5)}}), "types2.mdb");
  const std::string compact = compacted(again, "types3.mdb");
  EXPECT_EQ(objections({made0, again, compact}), "");

  for (const std::string& path : {made0, again, compact}) {
    const PageFile file(path, Sharing::Shared, true);
    const TableDefinition definition = definitionOf(file, "Tutti i tipi");
    EXPECT_EQ(definition.rows, count);
    TableReader reader(file, definition);
    std::size_t i = 0;
    for (Row row; reader.next(row); ++i) {
      Values expected = everyType(i);
      Bytes& fixedText = expected[14] ? *expected[14] : expected[14].emplace();
      while (!row[14].null && fixedText.size() < 10)
        fixedText.insert(fixedText.end(), {std::byte{' '}, std::byte{0}});
      for (std::size_t k = 0; k < row.size(); ++k) {
        ASSERT_EQ(row[k].null, k == 14 ? fixedText.empty() : !expected[k].has_value()) << i << " " << k;
        if (!row[k].null) {
          ASSERT_EQ(toHex(row[k].bytes), toHex(*expected[k])) << i << " " << k;
        }
      }
    }
    EXPECT_EQ(i, count);
  }
}

TEST(Writer, BuildsTreesOfManyLevels) {
  // Long keys make many pages: leaves of a few dozen entries, three levels of nodes.
  const auto rows = [](std::size_t i) -> Values {
    const std::size_t mixed = i * 7919 % 6007;
    return {raw(static_cast<std::int32_t>(mixed)),
            text(std::to_string(mixed) + std::string(245, "zyx"[mixed % 3]))};
  };
  const std::string path = withTable(
      emptyDatabase("empty.mdb"),
      table("Lunga", {Id, {"Testo", Text, 510}}, {PrimaryKey, {"Su", {{1}}}, {"Giu", {{1, false}, {0}}}}),
      made(6000, rows), "levels.mdb");
  EXPECT_EQ(objections({path}), "");
  const PageFile file(path, Sharing::Shared, true);
  const TableDefinition definition = definitionOf(file, "Lunga");
  EXPECT_EQ(file.page(definition.realIndexes[1].root).u8(Jet4.indexLevelAt), 3);
  EXPECT_EQ(definition.realIndexes[1].distinctKeys, 6000u);
}

TEST(Writer, CoversFilesThatNeedMapsByReference) {
  const auto rows = [](std::size_t i) -> Values {
    return {raw(static_cast<std::int32_t>(i)), Bytes(4076, std::byte(i % 256))};
  };
  const std::string path =
      withTable(emptyDatabase("empty.mdb"), table("Grande", {Id, {"Dati", Ole}}, {PrimaryKey}),
                made(33500, rows), "large.mdb");
  const std::string grown =
      withTable(path, table("Dopo", {Id}, {PrimaryKey}), made({{raw(1)}}), "large2.mdb");
  EXPECT_EQ(objections({grown}), "");
  const PageFile file(compacted(grown, "large3.mdb"), Sharing::Shared, true);
  EXPECT_GT(file.pageCount(), Jet4.mapPageBits);
  const TableDefinition definition = definitionOf(file, "Grande");
  EXPECT_EQ(readUsageMap(file, definition.columns[1].ownedMap).size(), 33500u);
  FreePages free(file);
  EXPECT_EQ(free.take(), file.pageCount());
}

TEST(Writer, RefusesWhatBreaksARule) {
  struct Case {
    const char* name;
    IndexPlan index;
    std::vector<Values> rows;
    int number;
  };
  const Bytes one = raw(std::int32_t{1});
  const Case cases[] = {
      {"unique", {"U", {{1}}, RealIndex::Unique}, {{one, text("Rosa")}, {one, text("ROSA ", false)}}, 3022},
      {"primary", {"P", {{0}}, 0, true}, {{one, {}}, {one, {}}}, 3022},
      {"required", {"R", {{1}}, RealIndex::Required}, {{one, {}}}, 3058},
      {"primary null", {"P", {{0}, {1}}, 0, true}, {{one, {}}}, 3058},
      {"too large", {"I", {{0}}}, {{one, {}, Bytes(2100), Bytes(2100)}}, 3047},
      {"too many fields", {"I", {{0}}}, {{one}}, 3001},
      {"unique, nulls", {"U", {{1}}, RealIndex::Unique}, {{one, {}}, {one, {}}}, 0},
      {"long values give way", {"I", {{0}}}, {{one, {}, Bytes(2000), Bytes(1990), Bytes(60), Bytes(60)}}, 0},
  };
  const std::string empty = emptyDatabase("empty.mdb");
  std::vector<std::string> written;
  for (const Case& c : cases) {
    std::vector<Values> rows = c.rows;
    for (Values& row : rows)
      if (row.size() > 1) row.resize(6);
    const TableDefinition definition =
        table("T", {Id, Name, {"A", Binary, 4000}, {"B", Binary, 4000}, {"M", Ole}, {"N", Ole}}, {c.index});
    int number = 0;
    try {
      written.push_back(withTable(empty, definition, made(rows), std::string(c.name) + ".mdb"));
    } catch (const runtime::Error& error) {
      number = error.number();
      EXPECT_NE(error.description().find("\"T\""), std::string::npos) << error.description();
    }
    EXPECT_EQ(number, c.number) << c.name;
  }
  EXPECT_EQ(objections(written), "");
}

class ChangedTable : public testing::Test {
 protected:
  void SetUp() override {
    base_ = withTable(
        emptyDatabase("empty.mdb"), table("T", {Id, Name, {"Note", Memo}}, {PrimaryKey, {"PerNome", {{1}}}}),
        made(3000,
             [](std::size_t i) -> Values {
               return {raw(static_cast<std::int32_t>(i)), text("Nome " + std::to_string(i % 100)),
                       text(std::string(i % 200, 'n'), false)};
             }),
        "base.mdb");
  }
  /// Writes the base with a new definition of T alone, made by `edit`.
  std::string edited(const std::function<void(TableDefinition&)>& edit, const std::string& name) {
    TableChange change;
    {
      const PageFile file(base_, Sharing::Shared, true);
      change.definition = definitionOf(file, "T");
    }
    edit(change.definition);
    Changes changes;
    changes.tables.push_back(std::move(change));
    return changed(base_, std::move(changes), name + ".mdb");
  }
  static std::uint32_t pages(const std::string& path) {
    return PageFile(path, Sharing::Shared, true).pageCount();
  }

  std::string base_;
};

TEST_F(ChangedTable, TakesNewDefinitionsWithoutItsRows) {
  struct Case {
    const char* name;
    std::function<void(TableDefinition&)> edit;
  };
  const Case cases[] = {
      {"column renamed", [](TableDefinition& t) { t.columns[1].name = "Cognome"; }},
      {"columns added",
       [](TableDefinition& t) {
         const TableDefinition more =
             table("", {Id, Name, {"Note", Memo}, {"Nuovo", Memo}, {"Si", Boolean}}, {});
         t.columns = more.columns;
         t.maxColumns = more.maxColumns;
         t.variableColumns = more.variableColumns;
       }},
      {"column dropped", [](TableDefinition& t) { t.columns.pop_back(); }},
      {"index dropped",
       [](TableDefinition& t) {
         t.realIndexes.pop_back();
         std::erase_if(t.logicalIndexes, [](const LogicalIndex& index) { return index.real == 1; });
       }},
      {"index added",
       [](TableDefinition& t) {
         addIndex(t, {"Nuovo", {{1, false}, {0}}});
       }},
      {"longer than a page",
       [](TableDefinition& t) {
         for (int i = 0; i < 60; ++i) {
           LogicalIndex more = t.logicalIndexes[0];
           more.kind = LogicalIndex::Kind::Ordinary;
           more.number = 10u + static_cast<std::uint32_t>(i);
           more.name = "Indice con un nome lungo " + std::to_string(i);
           t.logicalIndexes.push_back(more);
         }
       }},
  };
  std::vector<std::string> paths;
  const auto read = [&](const std::string& path) {
    const PageFile file(path, Sharing::Shared, true);
    const TableDefinition definition = definitionOf(file, "T");
    TableReader reader(file, definition);
    std::vector<std::string> found;
    for (Row row; reader.next(row);) found.push_back(toHex(row[0].bytes) + toHex(row[1].bytes));
    return found;
  };
  for (const Case& c : cases) {
    paths.push_back(edited(c.edit, c.name));
    EXPECT_EQ(read(paths.back()), read(base_)) << c.name;
  }
  EXPECT_EQ(objections(paths), "");
}

TEST_F(ChangedTable, WrittenAgainAndAgainDoesNotGrowTheFile) {
  std::string path = base_;
  std::uint32_t most = 0;
  for (int round = 0; round < 4; ++round) {
    const PageFile file(path, Sharing::Shared, true);
    const TableDefinition definition = definitionOf(file, "T");
    Changes changes;
    changes.tables.push_back({definition, std::make_unique<TableReader>(file, definition)});
    path = changed(path, std::move(changes), "round" + std::to_string(round) + ".mdb");
    if (round == 0) most = pages(path);
    EXPECT_LE(pages(path), most);
  }
  EXPECT_EQ(objections({path}), "");
}

TEST_F(ChangedTable, DroppedLeavesItsPagesToOthers) {
  TableChange catalogue, permissions;
  Changes changes;
  const PageFile file(base_, Sharing::Shared, true);
  const std::uint32_t page = definitionOf(file, "T").page;
  changes.dropped = {page};
  for (const char* name : {"MSysObjects", "MSysACEs"}) {
    const TableDefinition definition = definitionOf(file, name);
    std::vector<Values> rows;
    TableReader reader(file, definition);
    for (Row row; reader.next(row);) {
      const FieldBytes& id = row[*definition.find(name == std::string("MSysObjects") ? "Id" : "ObjectId")];
      if (toHex(id.bytes) == toHex(raw(page))) continue;
      rows.emplace_back();
      for (const FieldBytes& field : row)
        rows.back().push_back(field.null ? Value() : Bytes(field.bytes.begin(), field.bytes.end()));
    }
    changes.tables.push_back({definition, made(std::move(rows))});
  }
  const std::string dropped = changed(base_, std::move(changes), "dropped.mdb");
  EXPECT_EQ(objections({dropped}), "");
  EXPECT_EQ(contentOf(dropped), contentOf(emptyDatabase("empty.mdb")));
  EXPECT_LE(pages(dropped), 20u);
}

TEST(FreePages, AreGivenOutOnceLowestFirst) {
  const PageFile file(emptyDatabase("empty.mdb"), Sharing::Shared, true);
  FreePages pages(file);
  EXPECT_EQ(pages.take(), 16u);
  EXPECT_EQ(pages.take(), 17u);
}

TEST_F(ChangedTable, FailingDiskCallsBecomeNumberedErrors) {
  const PageFile source(base_, Sharing::Shared, true);
  const TableDefinition definition = definitionOf(source, "T");
  struct Case {
    const char* name;
    std::function<void(platform::File&)> write;
  };
  const Case cases[] = {
      {"changed",
       [&](platform::File& out) {
         Changes changes;
         changes.tables.push_back({definition, std::make_unique<TableReader>(source, definition)});
         writeChanged(source, std::move(changes), out);
       }},
      {"compacted", [&](platform::File& out) { writeCompacted(source, out); }},
      {"empty", [&](platform::File& out) { writeEmptyDatabase(out); }},
  };
  const std::pair<platform::DiskFault, int> faults[] = {{platform::DiskFault::NoSpace, 3026},
                                                        {platform::DiskFault::Io, 3043}};
  for (const Case& c : cases)
    for (const auto& [fault, number] : faults) {
      std::uint64_t nth = 1;
      for (;; ++nth) {
        platform::File out = platform::openFile(corpus::scratch("faulty.mdb"), platform::OpenMode::Create);
        support::FailNth observer(nth, fault);
        support::ObservedDisk scope(observer);
        const int got = support::errorOf([&] { c.write(out); });
        EXPECT_EQ(got, observer.wasHit() ? number : 0) << c.name << " call " << nth;
        if (!observer.wasHit()) break;
      }
      EXPECT_GE(nth, 3u) << c.name;
    }
}

}  // namespace
}  // namespace jet::file
