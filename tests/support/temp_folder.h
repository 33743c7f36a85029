#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "platform/paths.h"

namespace support {

/// An empty folder of its own under the tests' temporary folder, removed with all it holds at the end.
class TempFolder {
 public:
  TempFolder() {
    std::random_device random;
    do {
      system_ = testing::TempDir() + "aggnorvo-" + std::to_string(random());
    } while (!std::filesystem::create_directory(system_));
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(system_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  /// With backslashes, as the product takes paths; without a closing one.
  std::string path() const { return platform::fromSystemPath(system_); }
  std::string path(const std::string& name) const { return path() + "\\" + name; }
  /// As the system takes it.
  std::string systemPath() const { return system_; }
  std::string systemPath(const std::string& name) const { return platform::toSystemPath(path(name)); }
  /// What lies in it, in order.
  std::vector<std::string> names() const {
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(system_))
      found.push_back(entry.path().filename().string());
    std::sort(found.begin(), found.end());
    return found;
  }

 private:
  std::string system_;
};

}  // namespace support
