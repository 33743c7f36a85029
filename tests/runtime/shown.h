#pragma once

#include <string>
#include <utility>

#include "runtime/error.h"

namespace runtime {

/// What `work` returns, or "error <number>".
template <class Work>
std::string shown(Work work) {
  try {
    return std::string(work());
  } catch (const Error& error) {
    return "error " + std::to_string(error.number());
  }
}

}  // namespace runtime
