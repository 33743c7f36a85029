#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/settings.h"

namespace platform {

/// Where the values of a Settings come from.
struct Settings::Store {
  virtual ~Store() = default;
  virtual std::optional<std::string> value(std::string_view application, std::string_view section,
                                           std::string_view key) const = 0;
};

}  // namespace platform
