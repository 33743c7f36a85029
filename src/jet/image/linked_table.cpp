// Tables of other files: found, and seen to be unchanged.
#include "jet/image/linked_table.h"

#include "jet/file/errors.h"
#include "jet/file/read/catalogue.h"
#include "jet/file/read/definition_reader.h"
#include "jet/file/read/table_reader.h"
#include "platform/disk.h"

namespace jet::image {

file::PageFile openLinked(const std::string& path) {
  return file::PageFile(path, file::Sharing::Shared, true);
}

LinkedTable findLinked(const std::string& path, const std::string& table) try {
  LinkedTable found;
  found.path = path;
  // Looked at before the file is read: a change in between is then seen the next time.
  const auto info = platform::inspectFile(path);
  const file::PageFile pages = openLinked(path);
  if (info) {
    found.size = info->size;
    found.modified = info->modifiedUnixNanoseconds;
  }
  for (const auto& object : file::readCatalogue(pages)) {
    if (object.type != file::ObjectType::Table || !file::sameName(object.name, table)) continue;
    found.source = file::readDefinition(pages, object.id, object.name);
    return found;
  }
  throw runtime::Error(ObjectNotFound, source::TableDef,
                       "Tabella \"" + table + "\" inesistente nel database " + path);
} catch (const platform::DiskError& error) {
  throw file::fromDisk(error);
}

bool unchanged(const LinkedTable& known) try {
  const auto info = platform::inspectFile(known.path);
  return info && info->size == known.size && info->modifiedUnixNanoseconds == known.modified;
} catch (const platform::DiskError&) {
  return false;  // opening it anew tells what is wrong
}

}  // namespace jet::image
