// The rows of a table in the order of its pages.
#include "jet/file/read/table_reader.h"

#include <array>
#include <numeric>

#include "jet/file/errors.h"
#include "jet/file/page/data_page.h"
#include "jet/file/read/long_value.h"
#include "jet/file/read/record.h"

namespace jet::file {

namespace {

// Real files have no stub that leads to another; a circle ends here.
constexpr int MostMoves = 8;

constexpr std::array<std::byte, 2> BooleanBytes = {std::byte{0}, std::byte{1}};

std::vector<std::size_t> allColumns(const TableDefinition& definition) {
  std::vector<std::size_t> all(definition.columns.size());
  std::iota(all.begin(), all.end(), std::size_t{0});
  return all;
}

}  // namespace

struct TableReader::State {
  State(const PageFile& pageFile, const TableDefinition& table, std::vector<std::size_t> columns, bool whole)
      : file(pageFile),
        definition(table),
        wanted(std::move(columns)),
        longValues(whole),
        pages(readUsageMap(file, definition.ownedMap)),
        record(file.format(), definition),
        values(file, definition.columns.size()) {}

  bool advance();
  void fill(Row& row);
  void fillField(std::size_t position, FieldBytes& field);
  DataPage ownPage(std::uint32_t number) const;
  std::span<const std::byte> follow(std::span<const std::byte> stub);

  const PageFile& file;
  const TableDefinition& definition;
  const std::vector<std::size_t> wanted;
  const bool longValues;
  const std::vector<std::uint32_t> pages;
  Record record;
  LongValues values;

  std::size_t nextPage = 0;
  std::size_t nextRow = 0;
  DataPage page;   // of the current row or stub
  DataPage moved;  // of the record that a stub leads to
  RowPointer current;
};

DataPage TableReader::State::ownPage(std::uint32_t number) const {
  DataPage own(file.format(), file.page(number));
  if (own.owner() != definition.page) own.page().damaged("appartiene a un'altra tabella");
  return own;
}

/// To the next live row.
bool TableReader::State::advance() {
  for (;;) {
    for (; nextRow < page.records(); ++nextRow) {
      if ((page.marks(nextRow) & DataPage::Deleted) != 0) continue;
      if (nextRow > UINT8_MAX) page.page().damaged("troppe righe");
      current = {page.page().number(), static_cast<std::uint8_t>(nextRow++)};
      return true;
    }
    if (nextPage == pages.size()) return false;
    page = ownPage(pages[nextPage++]);
    nextRow = 0;
  }
}

std::span<const std::byte> TableReader::State::follow(std::span<const std::byte> stub) {
  for (int moves = 0; moves < MostMoves; ++moves) {
    if (stub.size() < 4) break;
    const std::size_t row = std::to_integer<std::size_t>(stub[0]);
    moved = ownPage(readU24(&stub[1]));
    const auto target = moved.record(row);
    const std::uint16_t marks = moved.marks(row);
    if ((marks & DataPage::Elsewhere) == 0) return target;
    if ((marks & DataPage::Deleted) != 0) break;
    stub = target;
  }
  page.page().damaged("la riga spostata " + std::to_string(current.row) + " non si trova");
}

void TableReader::State::fillField(std::size_t position, FieldBytes& field) {
  const Column& column = definition.columns[position];
  const bool present = record.present(column.number);
  if (column.type == ColumnType::Boolean) {
    field = {false, std::span(&BooleanBytes[present ? 1 : 0], 1)};
    return;
  }
  if (!present) {
    field = {};
    return;
  }
  field.null = false;
  if (!record.value(column, field.bytes)) throw damagedFile("campo \"" + column.name + "\" fuori dal record");
  if (longValues && isLongValue(column.type)) field.bytes = values.fetch(field.bytes, position);
}

void TableReader::State::fill(Row& row) {
  auto bytes = page.record(current.row);
  if ((page.marks(current.row) & DataPage::Elsewhere) != 0) bytes = follow(bytes);
  if (const char* wrong = record.set(bytes)) throw damagedFile(wrong);
  for (const std::size_t position : wanted) fillField(position, row[position]);
}

TableReader::TableReader(const PageFile& file, const TableDefinition& definition, bool longValues)
    : TableReader(file, definition, allColumns(definition), longValues) {}

TableReader::TableReader(const PageFile& file, const TableDefinition& definition,
                         const std::vector<std::size_t>& wanted, bool longValues) try
    : state_(std::make_unique<State>(file, definition, wanted, longValues)) {
} catch (runtime::Error& error) {
  error.addPlace("tabella " + definition.name);
  throw;
}

TableReader::~TableReader() = default;

bool TableReader::next(Row& row) {
  State& state = *state_;
  state.values.release();
  row.resize(state.definition.columns.size());
  try {
    if (!state.advance()) return false;
    state.fill(row);
    return true;
  } catch (runtime::Error& error) {
    const std::uint32_t page = state.page.page().number();
    if (page != 0)
      error.addPlace("pagina " + std::to_string(page) + " riga " + std::to_string(state.current.row));
    error.addPlace("tabella " + state.definition.name);
    throw;
  }
}

RowPointer TableReader::pointer() const {
  return state_->current;
}

}  // namespace jet::file
