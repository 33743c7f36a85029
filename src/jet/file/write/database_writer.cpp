// The file that an open one becomes: changed tables written, all other pages carried over.
#include "jet/file/write/database_writer.h"

#include <algorithm>
#include <map>
#include <set>

#include "jet/file/errors.h"
#include "jet/file/page/data_page.h"
#include "jet/file/page/global_map.h"
#include "jet/file/page/map_pages.h"
#include "jet/file/read/page_use.h"
#include "jet/file/write/carried_rows.h"
#include "jet/file/write/definition_writer.h"
#include "jet/file/write/table_writer.h"

namespace jet::file {

namespace {

constexpr std::uint32_t CopyPages = 512;  // at once
constexpr std::uint32_t CopyGap = 16;     // unused pages that are copied along rather than begin a new read

bool sameKeys(const RealIndex& a, const RealIndex& b) {
  return a.flags == b.flags &&
         std::ranges::equal(a.columns, b.columns, [](const IndexColumn& x, const IndexColumn& y) {
           return x.column == y.column && x.ascending == y.ascending;
         });
}

/// Takes the places of what lies in the file over from the definition before. False if an index is new.
bool takeOverPlaces(TableDefinition& after, const TableDefinition& before) {
  after.rows = before.rows;
  after.ownedMap = before.ownedMap;
  after.freeMap = before.freeMap;
  for (Column& column : after.columns) {
    const auto old = before.findNumber(column.number);
    const bool kept = old && isLongValue(column.type);
    column.ownedMap = kept ? before.columns[*old].ownedMap : RowPointer{};
    column.freeMap = kept ? before.columns[*old].freeMap : RowPointer{};
  }
  std::vector<RealIndex> left = before.realIndexes;
  for (RealIndex& index : after.realIndexes) {
    // Of several alike, the one that lies where this one lay.
    const auto matches = [&](const RealIndex& old) { return sameKeys(old, index); };
    auto found = std::ranges::find_if(
        left, [&](const RealIndex& old) { return matches(old) && old.root == index.root; });
    if (found == left.end()) found = std::ranges::find_if(left, matches);
    if (found == left.end()) return false;
    index = *found;
    left.erase(found);
  }
  return true;
}

/// One table of the old file, the new one, or both.
struct TablePlan {
  TableDefinition before;  // page 0: the table is new
  TablePages pages;        // of `before`
  TableChange* change = nullptr;
  bool dropped = false;

  bool isNew() const { return before.page == 0; }
  bool isKept() const { return change == nullptr && !dropped; }
  bool isRewritten() const { return change != nullptr && change->rows != nullptr; }
  bool keepsContent() const { return change != nullptr && change->rows == nullptr; }
};

class ChangedDatabase {
 public:
  ChangedDatabase(const PageFile& source, Changes changes, platform::File& file)
      : source_(source), changes_(std::move(changes)), out_(file), keptMaps_(source) {}

  void write() {
    planTables();
    planSpace();
    copyPages();
    for (auto& [page, plan] : plans_)
      if (plan.keepsContent()) writeDefinitionOf(plan);
    for (auto& [page, plan] : plans_)
      if (plan.isRewritten()) rewrite(plan);
    keptMaps_.write(out_);
    // A table that was written anew may have had use for fewer maps.
    for (const std::uint32_t page : keptMaps_.emptied()) space_.release(page);
    writeGlobalMap(space_, secondGlobalMap(), out_);
    out_.finish(space_.pageCount());
  }

 private:
  void planTables();
  void planSpace();
  void giveUp(const std::vector<RowPointer>& maps, const std::set<std::uint32_t>& keptPages);
  void copyPages();
  void copyRun(std::uint32_t first, std::uint32_t end);
  std::vector<std::uint32_t> definitionPagesFor(const TablePlan& plan, std::size_t count);
  void writeDefinitionOf(TablePlan& plan);
  void rewrite(TablePlan& plan);
  std::vector<std::byte> secondGlobalMap() const;
  TakePage take() {
    return [this] { return space_.take(); };
  }

  const PageFile& source_;
  Changes changes_;
  PageOutput out_;
  KeptMapPages keptMaps_;
  PageSpace space_;
  std::map<std::uint32_t, TablePlan> plans_;  // by first definition page
};

void ChangedDatabase::planTables() {
  std::set<std::pair<std::uint32_t, std::uint8_t>> maps;
  for (TableDefinition& table : readTables(source_)) {
    TablePlan& plan = plans_[table.page];
    plan.before = std::move(table);
    plan.pages = findPages(source_, plan.before);
    for (const RowPointer map : plan.pages.maps)
      if (!maps.insert({map.page, map.row}).second)
        throw damagedFile("tabella " + plan.before.name + ": una mappa è anche di un'altra tabella");
  }
  for (const std::uint32_t page : changes_.dropped) plans_[page].dropped = true;
  for (TableChange& change : changes_.tables) {
    TablePlan& plan = plans_[change.definition.page];
    plan.change = &change;
    plan.dropped = false;
    if (change.rows) continue;
    if (plan.isNew())
      throw jetError(InvalidArgument, "La tabella nuova \"" + change.definition.name + "\" non ha righe");
    if (!takeOverPlaces(change.definition, plan.before))
      change.rows = std::make_unique<CarriedRows>(source_, plan.before, change.definition);
  }
}

/// Frees first what goes and takes then what stays, so that in a damaged file, where two tables claim one
/// page, nothing of a kept table is lost.
void ChangedDatabase::planSpace() {
  space_ = readGlobalMap(source_);
  std::map<std::uint32_t, TablePages> staying;  // of tables whose content is carried over
  std::set<std::uint32_t> keptMapPages;
  for (const auto& [page, plan] : plans_) {
    if (!plan.isKept()) {
      for (const std::uint32_t number : plan.before.pages) space_.release(number);
      for (const std::uint32_t number : plan.pages.content) space_.release(number);
    }
    if (plan.keepsContent()) staying[page] = findPages(source_, plan.change->definition);
    if (plan.dropped) continue;
    // A table that is rewritten has use for the places of all its maps.
    for (const RowPointer map : plan.keepsContent() ? staying[page].maps : plan.pages.maps)
      keptMapPages.insert(map.page);
  }
  space_.use(0);
  space_.use(GlobalMap.page);
  for (const std::uint32_t number : mapBitPages(source_, GlobalMap)) space_.release(number);
  for (const auto& [page, plan] : plans_) {
    if (plan.dropped) {
      giveUp(plan.pages.maps, keptMapPages);
      continue;
    }
    space_.use(page);
    if (plan.isKept())
      for (const std::uint32_t number : plan.before.pages) space_.use(number);
    if (plan.isRewritten()) continue;
    const TablePages& stay = plan.isKept() ? plan.pages : staying[page];
    for (const std::uint32_t number : stay.content) space_.use(number);
    std::vector<RowPointer> gone = plan.pages.maps;
    std::erase_if(gone, [&](RowPointer map) { return std::ranges::find(stay.maps, map) != stay.maps.end(); });
    giveUp(gone, keptMapPages);
  }
  for (const std::uint32_t number : keptMapPages) space_.use(number);
}

/// Usage maps that nothing needs any more: their page goes with the last of them.
void ChangedDatabase::giveUp(const std::vector<RowPointer>& maps, const std::set<std::uint32_t>& keptPages) {
  for (const RowPointer map : maps) {
    if (keptPages.contains(map.page))
      keptMaps_.markDeleted(map);
    else
      space_.release(map.page);
  }
}

void ChangedDatabase::copyPages() {
  const std::uint32_t count = std::min(source_.pageCount(), space_.pageCount());
  for (std::uint32_t first = 0; first < count;) {
    if (!space_.used(first)) {
      ++first;
      continue;
    }
    std::uint32_t end = first + 1;
    for (std::uint32_t next = end; next < std::min(count, end + CopyGap); ++next)
      if (space_.used(next)) end = next + 1;
    copyRun(first, end);
    first = end;
  }
}

void ChangedDatabase::copyRun(std::uint32_t first, std::uint32_t end) {
  std::vector<std::byte> buffer(std::min(CopyPages, end - first) * Jet4.pageSize);
  for (; first < end; first += CopyPages) {
    const std::span<std::byte> part =
        std::span(buffer).first(std::min(CopyPages, end - first) * Jet4.pageSize);
    source_.read(first, part);
    out_.writeRun(first, part);
  }
}

/// The first page stays, and further old ones as far as they are needed.
std::vector<std::uint32_t> ChangedDatabase::definitionPagesFor(const TablePlan& plan, std::size_t count) {
  std::vector<std::uint32_t> pages{plan.change->definition.page};
  for (std::size_t i = 1; i < plan.before.pages.size() && pages.size() < count; ++i) {
    if (space_.used(plan.before.pages[i])) continue;
    space_.use(plan.before.pages[i]);
    pages.push_back(plan.before.pages[i]);
  }
  while (pages.size() < count) pages.push_back(space_.take());
  return pages;
}

void ChangedDatabase::writeDefinitionOf(TablePlan& plan) {
  std::vector<std::byte> encoded = encodeDefinition(plan.change->definition);
  const std::vector<std::uint32_t> pages = definitionPagesFor(plan, definitionPages(encoded.size()));
  writeDefinition(std::move(encoded), pages, out_);
}

void ChangedDatabase::rewrite(TablePlan& plan) {
  MapPages maps(out_, take());
  maps.reuse(keptMaps_, plan.pages.maps);
  TableWriter writer(plan.change->definition, out_, take());
  writer.writeRows(*plan.change->rows);
  writer.writeIndexes();
  writer.writeMaps(maps);
  writer.writeDefinitionPages();
  maps.finish();
  plan.change->rows.reset();
}

std::vector<std::byte> ChangedDatabase::secondGlobalMap() const {
  const DataPage page(source_.format(), source_.page(SecondGlobalMap.page));
  if (page.records() <= SecondGlobalMap.row) return std::vector<std::byte>(EmptyMapLength);
  const std::span<const std::byte> record = page.record(SecondGlobalMap.row);
  if (record.size() > LongestSecondMap) page.page().damaged("mappa troppo lunga");
  return {record.begin(), record.end()};
}

}  // namespace

void writeChanged(const PageFile& source, Changes changes, platform::File& out) {
  requireWritableFormat(source);
  ChangedDatabase(source, std::move(changes), out).write();
}

FreePages::FreePages(const PageFile& source) : space_(readGlobalMap(source)) {
  for (const TableDefinition& table : readTables(source)) {
    const TablePages pages = findPages(source, table);
    for (const std::uint32_t number : table.pages) space_.use(number);
    for (const std::uint32_t number : pages.content) space_.use(number);
    for (const RowPointer map : pages.maps) space_.use(map.page);
  }
}

std::uint32_t FreePages::take() {
  return space_.take();
}

}  // namespace jet::file
