// The property block of an object (LvProp), read and written.
#include "jet/file/properties.h"

#include <algorithm>
#include <cstring>

#include "jet/file/errors.h"
#include "jet/file/page/bytes.h"
#include "jet/file/text/text.h"

namespace jet::file {

namespace {

using BytesView = std::span<const std::byte>;

constexpr std::size_t MarkSize = 4, ChunkHead = 6, OwnerHead = 6, ItemHead = 8;
constexpr std::uint16_t NamesChunk = 0x80;

/// Reads a block from front to back.
class Cursor {
 public:
  explicit Cursor(BytesView bytes) : bytes_(bytes) {}

  bool atEnd() const { return bytes_.empty(); }
  BytesView take(std::size_t length) {
    if (length > bytes_.size()) throw damagedFile("proprietà interrotte");
    const BytesView front = bytes_.first(length);
    bytes_ = bytes_.subspan(length);
    return front;
  }
  std::uint8_t u8() { return std::to_integer<std::uint8_t>(take(1)[0]); }
  std::uint16_t u16() { return readU16(take(2).data()); }
  std::uint32_t u32() { return readU32(take(4).data()); }
  /// A part whose length, `counted` bytes of it already taken, stands in front.
  BytesView part(std::size_t length, std::size_t counted) {
    if (length < counted) throw damagedFile("proprietà di lunghezza errata");
    return take(length - counted);
  }

 private:
  BytesView bytes_;
};

std::vector<std::byte> copy(BytesView bytes) {
  return {bytes.begin(), bytes.end()};
}

/// Parses what differs between the versions only in the text.
struct Parser {
  const Format& format;
  const std::uint16_t codePage;

  std::vector<std::string> names(BytesView body) const {
    std::vector<std::string> found;
    for (Cursor cursor(body); !cursor.atEnd();) found.push_back(text(cursor));
    return found;
  }

  PropertyGroup group(std::uint16_t kind, BytesView body, const std::vector<std::string>& names) const {
    PropertyGroup result;
    result.kind = kind;
    if (kind > PropertyGroup::OfColumn) {
      result.rest = copy(body);
      return result;
    }
    Cursor cursor(body);
    const std::uint32_t ownerLength = cursor.u32();
    const BytesView ownerPart = cursor.part(ownerLength, 4);
    Cursor owner(ownerPart);
    const BytesView name = owner.take(owner.u16());
    result.owner = nameText(format, name, codePage);
    result.rest = copy(ownerPart.subspan(2 + name.size()));
    while (!cursor.atEnd()) result.items.push_back(item(cursor, names));
    return result;
  }

 private:
  std::string text(Cursor& cursor) const { return nameText(format, cursor.take(cursor.u16()), codePage); }

  static PropertyItem item(Cursor& cursor, const std::vector<std::string>& names) {
    const std::size_t length = cursor.u16();
    PropertyItem result;
    result.flag = cursor.u8();
    result.type = static_cast<ColumnType>(cursor.u8());
    const std::size_t number = cursor.u16();
    const std::size_t size = cursor.u16();
    if (length != ItemHead + size || number >= names.size()) throw damagedFile("proprietà errata");
    result.name = names[number];
    result.data = copy(cursor.take(size));
    return result;
  }
};

class Writer {
 public:
  void number(std::size_t value, int size) {
    for (int i = 0; i < size; ++i) bytes_.push_back(static_cast<std::byte>(value >> (8 * i) & 0xFF));
  }
  void raw(BytesView bytes) { bytes_.insert(bytes_.end(), bytes.begin(), bytes.end()); }
  void name(const std::string& utf8) {
    const std::u16string text = toUtf16(utf8);
    number(2 * text.size(), 2);
    for (const char16_t unit : text) number(unit, 2);
  }
  void chunk(std::uint16_t kind, const Writer& body) {
    number(ChunkHead + body.bytes_.size(), 4);
    number(kind, 2);
    raw(body.bytes_);
  }
  std::size_t size() const { return bytes_.size(); }
  std::vector<std::byte> take() { return std::move(bytes_); }

 private:
  std::vector<std::byte> bytes_;
};

void writeItem(const PropertyItem& item, std::size_t number, Writer& out) {
  const std::size_t length = ItemHead + item.data.size();
  if (length > UINT16_MAX)
    throw jetError(InvalidArgument, "La proprietà \"" + item.name + "\" è troppo lunga");
  out.number(length, 2);
  out.number(item.flag, 1);
  out.number(static_cast<std::uint8_t>(item.type), 1);
  out.number(number, 2);
  out.number(item.data.size(), 2);
  out.raw(item.data);
}

/// Number of a name in the list, to which it is added when it isn't there.
std::size_t numberOf(const std::string& name, std::vector<std::string>& names) {
  const auto found = std::ranges::find(names, name);
  if (found != names.end()) return static_cast<std::size_t>(found - names.begin());
  names.push_back(name);
  return names.size() - 1;
}

Writer groupBody(const PropertyGroup& group, std::vector<std::string>& names) {
  Writer body;
  if (group.kind > PropertyGroup::OfColumn) {
    body.raw(group.rest);
    return body;
  }
  Writer owner;
  owner.name(group.owner);
  owner.raw(group.rest);
  body.number(4 + owner.size(), 4);
  body.raw(owner.take());
  for (const PropertyItem& item : group.items) writeItem(item, numberOf(item.name, names), body);
  return body;
}

bool owns(const PropertyGroup& group, std::string_view owner) {
  if (owner.empty()) return group.kind == PropertyGroup::Object;
  return group.kind == PropertyGroup::OfColumn && sameName(group.owner, owner);
}

}  // namespace

PropertyBlock::PropertyBlock(const Format& format, BytesView block, std::uint16_t codePage) {
  Cursor cursor(block);
  if (std::memcmp(cursor.take(MarkSize).data(), format.propertyMark, MarkSize) != 0)
    throw damagedFile("proprietà senza intestazione");
  const Parser parser{format, codePage};
  while (!cursor.atEnd()) {
    const std::uint32_t length = cursor.u32();
    const std::uint16_t kind = cursor.u16();
    const BytesView body = cursor.part(length, ChunkHead);
    if (kind == NamesChunk)
      names_ = parser.names(body);
    else
      groups_.push_back(parser.group(kind, body, names_));
  }
}

std::vector<std::byte> PropertyBlock::encode() const {
  std::vector<std::string> names = names_;
  Writer groups;
  for (const PropertyGroup& group : groups_) groups.chunk(group.kind, groupBody(group, names));
  Writer namesBody;
  for (const std::string& name : names) namesBody.name(name);
  Writer out;
  out.raw(std::as_bytes(std::span(Jet4.propertyMark, MarkSize)));
  out.chunk(NamesChunk, namesBody);
  out.raw(groups.take());
  return out.take();
}

const PropertyItem* PropertyBlock::find(std::string_view owner, std::string_view name) const {
  for (const PropertyGroup& group : groups_) {
    if (!owns(group, owner)) continue;
    for (const PropertyItem& item : group.items)
      if (sameName(item.name, name)) return &item;
  }
  return nullptr;
}

void PropertyBlock::set(std::string_view owner, PropertyItem item) {
  for (PropertyGroup& group : groups_) {
    if (!owns(group, owner)) continue;
    for (PropertyItem& old : group.items) {
      if (!sameName(old.name, item.name)) continue;
      item.name = old.name;
      old = std::move(item);
      return;
    }
  }
  auto group = std::ranges::find_if(groups_, [&](const PropertyGroup& g) { return owns(g, owner); });
  if (group == groups_.end()) {
    PropertyGroup added;
    added.kind = owner.empty() ? PropertyGroup::Object : PropertyGroup::OfColumn;
    added.owner = owner;
    group = groups_.insert(groups_.end(), std::move(added));
  }
  group->items.push_back(std::move(item));
}

void PropertyBlock::remove(std::string_view owner, std::string_view name) {
  for (PropertyGroup& group : groups_)
    if (owns(group, owner))
      std::erase_if(group.items, [&](const PropertyItem& i) { return sameName(i.name, name); });
  std::erase_if(groups_,
                [&](const PropertyGroup& g) { return owns(g, owner) && g.items.empty() && g.rest.empty(); });
}

void PropertyBlock::renameOwner(std::string_view owner, std::string_view newName) {
  for (PropertyGroup& group : groups_)
    if (owns(group, owner)) group.owner = newName;
}

void PropertyBlock::removeOwner(std::string_view owner) {
  std::erase_if(groups_, [&](const PropertyGroup& group) { return owns(group, owner); });
}

}  // namespace jet::file
