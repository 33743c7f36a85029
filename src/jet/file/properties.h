#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "jet/file/definition.h"
#include "jet/file/page/format.h"

namespace jet::file {

struct PropertyItem {
  std::string name;
  ColumnType type = ColumnType::Text;
  std::uint8_t flag = 1;        // 1 part of the design, 0 not
  std::vector<std::byte> data;  // file form; Text and Memo plain, never compressed
  bool operator==(const PropertyItem&) const = default;
};

/// Properties of one owner: the object itself (empty owner) or one of its columns.
struct PropertyGroup {
  static constexpr std::uint16_t Object = 0,
                                 OfColumn = 1;  // other kinds are unknown and kept in `rest` whole

  std::uint16_t kind = Object;
  std::string owner;
  std::vector<std::byte> rest;  // what stands behind the owner's name, and isn't understood
  std::vector<PropertyItem> items;
  bool operator==(const PropertyGroup&) const = default;
};

/// The content of a LvProp value. Reading and writing back loses nothing, unknown items included. Owners and
/// property names compare as names do; an empty owner is the object itself.
class PropertyBlock {
 public:
  PropertyBlock() = default;
  /// Error 3343 if the block is damaged. `codePage` is the header's, for Jet 3.
  PropertyBlock(const Format& format, std::span<const std::byte> block, std::uint16_t codePage = 1252);
  /// As Jet 4 keeps it. Error 3001 for a value over 65527 bytes.
  std::vector<std::byte> encode() const;

  const PropertyItem* find(std::string_view owner, std::string_view name) const;
  /// Adds or replaces.
  void set(std::string_view owner, PropertyItem item);
  void remove(std::string_view owner, std::string_view name);
  void renameOwner(std::string_view owner, std::string_view newName);
  void removeOwner(std::string_view owner);
  const std::vector<PropertyGroup>& groups() const { return groups_; }
  bool empty() const { return groups_.empty(); }

 private:
  std::vector<std::string> names_;  // in the order in which the block read had them, unused ones included
  std::vector<PropertyGroup> groups_;
};

}  // namespace jet::file
