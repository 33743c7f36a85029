#pragma once

#include <cstddef>
#include <vector>

#include "jet/file/definition.h"
#include "jet/file/page/page_output.h"

namespace jet::file {

/// A definition as the bytes of a Jet 4 file, from its first page's start; logical indexes sorted by name.
/// Error 3001 for a name or a count that the format can't hold.
std::vector<std::byte> encodeDefinition(const TableDefinition& table);

/// Pages that an encoded definition of this length takes.
std::size_t definitionPages(std::size_t length);

/// Writes an encoded definition to `pages`, which are as many as it takes.
void writeDefinition(std::vector<std::byte> definition, const std::vector<std::uint32_t>& pages,
                     PageOutput& out);

}  // namespace jet::file
