// One table written anew, step by step.
#include "jet/file/write/table_writer.h"

#include <algorithm>

#include "jet/file/errors.h"
#include "jet/file/write/definition_writer.h"

namespace jet::file {

TableWriter::TableWriter(TableDefinition definition, PageOutput& out, TakePage take)
    : table_(std::move(definition)), out_(out), take_(std::move(take)), data_(out, take_, table_.page) {
  for (const Column& column : table_.columns)
    longValues_.push_back(isLongValue(column.type) ? std::make_unique<LongValueWriter>(out_, take_)
                                                   : nullptr);
  for (std::size_t i = 0; i < table_.realIndexes.size(); ++i)
    entries_.push_back(std::make_unique<IndexEntries>(table_, i));
}

void TableWriter::writeRows(RowSource& rows) {
  RowEncoder encoder(table_, longValues_);
  table_.rows = 0;
  for (Row row; rows.next(row); ++table_.rows) {
    if (row.size() != table_.columns.size())
      throw jetError(InvalidArgument,
                     "Righe con un altro numero di campi per la tabella \"" + table_.name + "\"");
    const RecordPages::Place place = data_.reserve(encoder.plan(row));
    encoder.encode(row, place.bytes);
    for (const auto& entries : entries_) entries->add(row, place.pointer);
  }
  data_.finish();
  for (const auto& writer : longValues_)
    if (writer) writer->finish();
}

void TableWriter::writeIndexes() {
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    entries_[i]->sort();
    IndexTree tree = writeIndexTree(*entries_[i], table_.page, out_, take_);
    table_.realIndexes[i].root = tree.root;
    table_.realIndexes[i].distinctKeys = entries_[i]->distinctKeys();
    indexPages_.push_back(std::move(tree.pages));
    entries_[i].reset();
  }
}

void TableWriter::writeMaps(MapPages& maps) {
  table_.ownedMap = maps.add(data_.pages());
  table_.freeMap = maps.add(data_.pagesWithRoom());
  std::vector<std::size_t> byNumber;
  for (std::size_t i = 0; i < longValues_.size(); ++i)
    if (longValues_[i]) byNumber.push_back(i);
  std::ranges::sort(byNumber, {}, [this](std::size_t i) { return table_.columns[i].number; });
  for (const std::size_t i : byNumber) {
    table_.columns[i].ownedMap = maps.add(longValues_[i]->pages().pages());
    table_.columns[i].freeMap = maps.add(longValues_[i]->pages().pagesWithRoom());
  }
  for (std::size_t i = 0; i < indexPages_.size(); ++i) table_.realIndexes[i].map = maps.add(indexPages_[i]);
}

void TableWriter::writeDefinitionPages() {
  std::vector<std::byte> encoded = encodeDefinition(table_);
  table_.pages.assign(1, table_.page);
  while (table_.pages.size() < definitionPages(encoded.size())) table_.pages.push_back(take_());
  writeDefinition(std::move(encoded), table_.pages, out_);
}

}  // namespace jet::file
