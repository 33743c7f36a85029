// Links: tables that lie in other files, read from there when a statement needs them.
#include "jet/file/errors.h"
#include "jet/image/catalogue_rows.h"
#include "jet/image/image.h"
#include "jet/image/linked_table.h"

namespace jet::image {

namespace {

constexpr std::uint32_t LinkFlags = 0x200000;
// Columns of MSysObjects (t2): c8 Database, c9 Connect, c10 ForeignName.
constexpr char ReadLink[] = "SELECT c8, c10, c9 FROM t2 WHERE c0 = ?1";
constexpr char WriteLink[] = "UPDATE t2 SET c8 = ?2, c10 = ?3, c9 = ?4 WHERE c0 = ?1";

}  // namespace

void Image::linkTable(const std::string& name, const Link& link) {
  Transaction whole(*this);
  const auto id = createObject(name, file::ObjectType::LinkedTable, LinkFlags);
  auto update = connection_.prepare(WriteLink);
  update.bind(1, signedId(id));
  update.bind(2, std::string_view(link.path));
  update.bind(3, std::string_view(link.sourceTable));
  if (link.connect.empty())
    update.bindNull(4);
  else
    update.bind(4, std::string_view(link.connect));
  update.run();
  Table added;
  added.name = name;
  added.page = id;
  added.flags = LinkFlags;
  added.link = true;
  state_.tables.push_back(std::move(added));
  indexNames();
  whole.keep();
}

std::optional<Link> Image::link(std::uint32_t page) {
  if (!table(page).link) return std::nullopt;
  load(table(file::CatalogueTable));
  auto query = connection_.prepare(ReadLink);
  query.bind(1, signedId(page));
  if (!query.step()) return std::nullopt;
  return Link{query.text(0), query.text(1), query.text(2)};
}

const file::TableDefinition& Image::linkedDefinition(Table& wanted) {
  if (wanted.linked && unchanged(*wanted.linked)) return *wanted.definition;
  const auto target = link(wanted.page);
  if (!target || !target->connect.empty())
    throw runtime::Error(ExternalDatabase, source::TableDef,
                         "Tabella collegata a un'origine non disponibile: " + wanted.name);
  auto found = findLinked(target->path, target->sourceTable);
  // The rows of the file as it was are of no use any more.
  dropRows(wanted);
  auto design = found.source;
  design.page = wanted.page;
  design.name = wanted.name;
  std::erase_if(design.logicalIndexes, [](const file::LogicalIndex& index) {
    return index.kind == file::LogicalIndex::Kind::Relation;
  });
  wanted.linked = std::make_shared<const LinkedTable>(std::move(found));
  wanted.definition = std::make_shared<const file::TableDefinition>(std::move(design));
  return *wanted.definition;
}

}  // namespace jet::image
