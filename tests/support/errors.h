#pragma once

#include <string>

#include "runtime/error.h"

namespace support {

/// Number of the error that `work` ends in; 0 if it ends in none.
template <typename Work>
int errorOf(Work work) {
  try {
    work();
  } catch (const runtime::Error& error) {
    return error.number();
  }
  return 0;
}

/// The text that `work` gives, or "error <number>".
template <typename Work>
std::string shown(Work work) {
  std::string text;
  const int number = errorOf([&] { text = work(); });
  return number ? "error " + std::to_string(number) : text;
}

}  // namespace support
