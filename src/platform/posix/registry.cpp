// The registry that the administrator's file stands for.
#include "platform/registry.h"

#include <charconv>
#include <vector>

#include "platform/code_page.h"
#include "platform/posix/computer_file.h"
#include "runtime/text.h"

namespace platform {

namespace {

constexpr std::string_view AppPaths = "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";

std::string_view nameOf(RegistryRoot root) {
  switch (root) {
    case RegistryRoot::ClassesRoot:
      return "HKEY_CLASSES_ROOT";
    case RegistryRoot::CurrentUser:
      return "HKEY_CURRENT_USER";
    case RegistryRoot::LocalMachine:
      return "HKEY_LOCAL_MACHINE";
  }
  return "";
}

/// The whole of `digits` as a hexadecimal number.
template <class Number>
bool readHexadecimal(std::string_view digits, Number& number) {
  const auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
  return failure == std::errc() && end == digits.data() + digits.size();
}

/// "01,ff,20"; nothing if it is anything else.
std::optional<std::string> readBytes(std::string_view list) {
  std::string bytes;
  while (!list.empty()) {
    const std::size_t end = std::min(list.find(','), list.size());
    std::uint8_t byte = 0;
    if (!readHexadecimal(runtime::trimmed(list.substr(0, end)), byte)) return std::nullopt;
    bytes += static_cast<char>(byte);
    list.remove_prefix(std::min(end + 1, list.size()));
  }
  return bytes;
}

RegistryValue textValue(std::string_view text) {
  return {RegistryText, std::string(text) + '\0'};
}

/// "hex:01,02" or "hex(7):41,00,00"; the bytes of texts are in the code page 1252.
std::optional<RegistryValue> readHexValue(std::string_view written) {
  RegistryValue value{RegistryBinary, {}};
  const std::size_t colon = written.find(':');
  if (!written.starts_with("hex") || colon == std::string_view::npos) return std::nullopt;
  const std::string_view type = written.substr(3, colon - 3);
  if (!type.empty() && !(type.starts_with('(') && type.ends_with(')') &&
                         readHexadecimal(type.substr(1, type.size() - 2), value.type)))
    return std::nullopt;
  const auto bytes = readBytes(written.substr(colon + 1));
  if (!bytes) return std::nullopt;
  const bool text =
      value.type == RegistryText || value.type == RegistryExpandText || value.type == RegistryMultiText;
  value.data = text ? fromCodePage1252(*bytes) : *bytes;
  return value;
}

std::optional<RegistryValue> readNumber(std::string_view written) {
  constexpr std::string_view prefix = "dword:";
  std::uint32_t number = 0;
  if (!written.starts_with(prefix) || !readHexadecimal(written.substr(prefix.size()), number))
    return std::nullopt;
  RegistryValue value{RegistryDWord, {}};
  for (int byte = 0; byte < 4; ++byte) value.data += static_cast<char>(number >> (8 * byte));
  return value;
}

/// A value as the file writes it; what has no form of its own is a text.
RegistryValue read(std::string_view written) {
  if (const auto number = readNumber(written)) return *number;
  if (const auto bytes = readHexValue(written)) return *bytes;
  const bool quoted = written.size() >= 2 && written.starts_with('"') && written.ends_with('"');
  return textValue(quoted ? written.substr(1, written.size() - 2) : written);
}

/// The name of the program whose path is asked for; empty for any other key.
std::string_view programOf(RegistryRoot root, std::string_view key) {
  const bool program =
      root == RegistryRoot::LocalMachine && key.size() > AppPaths.size() &&
      runtime::strComp(key.substr(0, AppPaths.size()), AppPaths, runtime::Compare::Text) == 0;
  return program ? key.substr(AppPaths.size()) : std::string_view();
}

}  // namespace

std::optional<RegistryValue> readRegistry(RegistryRoot root, std::string_view key, std::string_view name) {
  const IniFile file = computerFile();
  const std::string section = std::string(nameOf(root)) + "\\" + std::string(key);
  if (file.has(section)) {
    const auto written = file.value(section, name.empty() ? "@" : name);
    return written ? read(*written) : RegistryValue();
  }
  const std::string_view program = programOf(root, key);
  if (program.empty()) return std::nullopt;
  const auto path = file.value("App Paths", program);
  if (!path) return std::nullopt;
  return name.empty() ? textValue(administratorsPath(*path)) : RegistryValue();
}

}  // namespace platform
