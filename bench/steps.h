#pragma once

#include <span>
#include <string>

namespace bench {

/// A piece of work on the office's file that runs in a process of its own.
struct Step {
  const char* name;
  void (*run)(const std::string& path, long rows);  // backslash path; rows of the large table
};

std::span<const Step> steps();

}  // namespace bench
