// Page 0 read, and its mask taken off and put on.
#include "jet/file/page/header.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <vector>

#include "jet/file/errors.h"
#include "jet/file/page/bytes.h"

namespace jet::file {

namespace {

constexpr std::size_t NameAt = 4, VersionAt = 0x14, MaskAt = 0x18;
constexpr std::string_view FormatName("Standard Jet DB\0", 16);

constexpr std::array<std::uint8_t, 128> Mask = {
    0xB5, 0x6F, 0x03, 0x62, 0x61, 0x08, 0xC2, 0x55, 0xEB, 0xA9, 0x67, 0x72, 0x43, 0x3F, 0x00, 0x9C,
    0x7A, 0x9F, 0x90, 0xFF, 0x80, 0x9A, 0x31, 0xC5, 0x79, 0xBA, 0xED, 0x30, 0xBC, 0xDF, 0xCC, 0x9D,
    0x63, 0xD9, 0xE4, 0xC3, 0x7B, 0x42, 0xFB, 0x8A, 0xBC, 0x4E, 0x86, 0xFB, 0xEC, 0x37, 0x5D, 0x44,
    0x9C, 0xFA, 0xC6, 0x5E, 0x28, 0xE6, 0x13, 0xB6, 0x8A, 0x60, 0x54, 0x94, 0x7B, 0x36, 0xF5, 0x72,
    0xDF, 0xB1, 0x77, 0xF4, 0x13, 0x43, 0xCF, 0xAF, 0xB1, 0x33, 0x34, 0x61, 0x79, 0x5B, 0x92, 0xB5,
    0x7C, 0x2A, 0x05, 0xF1, 0x7C, 0x99, 0x01, 0x1B, 0x98, 0xFD, 0x12, 0x4F, 0x4A, 0x94, 0x6C, 0x3E,
    0x60, 0x26, 0x5F, 0x95, 0xF8, 0xD0, 0x89, 0x24, 0x85, 0x67, 0xC6, 0x1F, 0x27, 0x44, 0xD2, 0xEE,
    0xCF, 0x65, 0xED, 0xFF, 0x07, 0xC7, 0x46, 0xA1, 0x78, 0x16, 0x0C, 0xED, 0xE9, 0x2D, 0x62, 0xD4};

const Format* formatOf(std::span<const std::byte> page) {
  if (page.size() < MaskAt + Mask.size() ||
      std::memcmp(page.data() + NameAt, FormatName.data(), FormatName.size()) != 0)
    return nullptr;
  switch (std::to_integer<int>(page[VersionAt])) {
    case 0:
      return &Jet3;
    case 1:
      return &Jet4;
    default:
      return nullptr;
  }
}

}  // namespace

Header readHeader(std::span<const std::byte> page, const std::string& path) {
  Header header;
  header.format = formatOf(page);
  if (header.format == nullptr) throw damagedFile("\"" + path + "\"");
  const Format& format = *header.format;
  std::vector<std::byte> plain(page.begin(), page.begin() + MaskAt + Mask.size());
  maskHeader(format, plain);
  header.codePage = readU16(&plain[format.codePageAt]);
  header.sortOrder = readU16(&plain[format.sortOrderAt]);
  header.cipherKey = readU32(&plain[format.cipherKeyAt]);
  if (format.sortVersionAt != 0)
    header.sortVersion = std::to_integer<std::uint8_t>(plain[format.sortVersionAt]);
  if (format.creationDateAt != 0) header.created = readDouble(&plain[format.creationDateAt]);
  maskPassword(format, plain);
  const auto password = std::span(plain).subspan(format.passwordAt, format.passwordLength);
  header.password = std::ranges::any_of(password, [](std::byte byte) { return byte != std::byte{0}; });
  return header;
}

void maskHeader(const Format& format, std::span<std::byte> page) {
  for (std::size_t i = 0; i < format.headerMaskLength; ++i) page[MaskAt + i] ^= std::byte{Mask[i]};
}

void maskPassword(const Format& format, std::span<std::byte> page) {
  if (format.creationDateAt == 0) return;
  const double created = readDouble(&page[format.creationDateAt]);
  // A date that is none (damage) masks with zero; the comparison is false for NaN as well.
  const bool valid = std::abs(created) < 2147483648.0;
  const auto days = static_cast<std::uint32_t>(valid ? static_cast<std::int32_t>(created) : 0);
  for (std::size_t i = 0; i < format.passwordLength; ++i)
    page[format.passwordAt + i] ^= static_cast<std::byte>(days >> (8 * (i % 4)) & 0xFF);
}

}  // namespace jet::file
