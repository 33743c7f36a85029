#include "corpus.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>

namespace corpus {

namespace fs = std::filesystem;

namespace {

std::string productPath(const fs::path& path) {
  std::string text = path.string();
  std::ranges::replace(text, '/', '\\');
  return text;
}

fs::path folder() {
  return fs::path(std::getenv("AGGNORVO_JET_DATA")) / "corpus";
}

/// A fresh folder that goes with the process.
struct ScratchFolder {
  fs::path path;
  ScratchFolder() {
    path = fs::temp_directory_path() / ("jet_file_" + std::to_string(std::random_device{}()));
    fs::create_directories(path);
  }
  ~ScratchFolder() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
  }
};

}  // namespace

bool available() {
  return std::getenv("AGGNORVO_JET_DATA") != nullptr;
}

std::string file(const std::string& name) {
  return productPath(folder()) + "\\" + name;
}

std::vector<std::string> names() {
  std::vector<std::string> found;
  for (const auto& entry : fs::recursive_directory_iterator(folder()))
    if (entry.path().extension() == ".mdb")
      found.push_back(productPath(fs::relative(entry.path(), folder())));
  std::ranges::sort(found);
  return found;
}

std::string systemPath(const std::string& productPath) {
  std::string path = productPath;
  std::ranges::replace(path, '\\', '/');
  return path;
}

std::string scratch(const std::string& name) {
  static const ScratchFolder folder;
  return productPath(folder.path) + "\\" + name;
}

std::vector<std::byte> load(const std::string& productPath) {
  std::ifstream in(systemPath(productPath), std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + productPath);
  const std::string text{std::istreambuf_iterator<char>(in), {}};
  const auto* bytes = reinterpret_cast<const std::byte*>(text.data());
  return {bytes, bytes + text.size()};
}

void store(const std::string& productPath, const std::vector<std::byte>& content) {
  std::ofstream out(systemPath(productPath), std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(content.data()), static_cast<std::streamsize>(content.size()));
  if (!out) throw std::runtime_error("cannot write " + productPath);
}

}  // namespace corpus
