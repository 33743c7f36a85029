#pragma once

#include <string>
#include <vector>

/// The databases that real engines wrote, which live outside the repository: in the folder that the
/// environment variable AGGNORVO_JET_DATA names.
namespace corpus {

/// True where the folder is known; a test that isn't given it skips itself.
bool available();
/// Path of a file of the corpus in the product's form ("jet4\\testV2000.mdb" below the folder).
std::string file(const std::string& name);
/// Names of all files as file() takes them, sorted.
std::vector<std::string> names();
/// The same for the system ("/").
std::string systemPath(const std::string& productPath);
/// A file for a test to write, in a folder of its own that the process removes at its end.
std::string scratch(const std::string& name);
/// Whole content of a file, and its opposite.
std::vector<std::byte> load(const std::string& productPath);
void store(const std::string& productPath, const std::vector<std::byte>& content);

}  // namespace corpus

#define REQUIRE_CORPUS() \
  if (!corpus::available()) GTEST_SKIP() << "AGGNORVO_JET_DATA is not set"
