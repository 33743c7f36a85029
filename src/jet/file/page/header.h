#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "jet/file/page/format.h"

/// Page 0: marks in the clear, then a part under a fixed mask, password included.
namespace jet::file {

/// What page 0 says of the file.
struct Header {
  const Format* format = nullptr;
  std::uint16_t codePage = 0;   // of the text of Jet 3
  std::uint16_t sortOrder = 0;  // of new columns
  std::uint8_t sortVersion = 0;
  std::uint32_t cipherKey = 0;  // 0: pages are in the clear
  double created = 0;           // days since 1899-12-30; Jet 3 keeps none
  bool password = false;
};

/// Reads page 0, or as much of it as there is. Error 3343 where it isn't that of a Jet 3 or Jet 4 database.
Header readHeader(std::span<const std::byte> page, const std::string& path);

/// Puts the mask on page 0, or takes it off.
void maskHeader(const Format& format, std::span<std::byte> page);

/// Puts the second mask of Jet 4, which depends on the creation date, on the password field of an unmasked
/// page 0, or takes it off. No effect on Jet 3. An empty password is all zero under it.
void maskPassword(const Format& format, std::span<std::byte> page);

}  // namespace jet::file
