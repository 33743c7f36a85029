#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The registry of the computer. Where the system has none, the computer's file (platform/computer.h) stands
/// for it.
namespace platform {

/// The roots, by the numbers that the system gives them.
enum class RegistryRoot : std::uint32_t {
  ClassesRoot = 0x80000000,
  CurrentUser = 0x80000001,
  LocalMachine = 0x80000002,
};

/// Types that have a meaning here; a value can have any other number.
enum RegistryType : std::uint32_t {
  RegistryNone = 0,
  RegistryText = 1,
  RegistryExpandText = 2,
  RegistryBinary = 3,
  RegistryDWord = 4,
  RegistryMultiText = 7,
};

/// A value as it is stored. The data of the three text types are UTF-8 with the closing NULs.
struct RegistryValue {
  std::uint32_t type = RegistryNone;
  std::string data;
};

/// Value `name` ("": the default one) of `key`, names without regard to case. Nothing if the key can't be
/// opened; a value of type RegistryNone without data if the key has no such value.
std::optional<RegistryValue> readRegistry(RegistryRoot root, std::string_view key, std::string_view name);

}  // namespace platform
