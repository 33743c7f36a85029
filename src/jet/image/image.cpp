// The rooms of the image joined, and the file written from them.
#include "jet/image/image.h"

#include "jet/image/row_codec.h"

namespace jet::image {

Image::Image(std::unique_ptr<file::PageFile> source)
    : tables_(std::move(source)),
      rows_(tables_),
      catalogue_(tables_, rows_),
      autoNumbers_(tables_),
      constraints_(tables_, rows_, catalogue_, autoNumbers_),
      tableChanges_(tables_, rows_, catalogue_),
      columnChanges_(tables_, rows_, catalogue_, autoNumbers_, tableChanges_),
      relationChanges_(tables_, rows_, catalogue_, tableChanges_) {}

const file::TableDefinition* Image::definition(std::string_view name) {
  const Table* found = find(name);
  return found ? &definition(found->page) : nullptr;
}

void Image::prepareToRead(std::uint32_t page, const std::vector<std::uint16_t>& compared) {
  auto& wanted = tables_.at(page);
  rows_.load(wanted);
  rows_.makeIndexes(*wanted.definition, compared, false);
}

void Image::write(platform::File& out) {
  file::Changes changes;
  changes.dropped = tables_.dropped();
  for (auto& table : tables_.all()) {
    if (table.unsaved == Unsaved::Nothing) continue;
    file::TableChange change{rows_.definition(table), nullptr};
    const auto number = tables_.autoNumbers().find(table.page);
    if (number != tables_.autoNumbers().end()) change.definition.autoNumber = number->second;
    if (table.unsaved >= Unsaved::Rows)
      change.rows = std::make_unique<ImageRows>(connection(), change.definition);
    changes.tables.push_back(std::move(change));
  }
  file::writeChanged(source(), std::move(changes), out);
}

}  // namespace jet::image
