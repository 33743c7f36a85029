#include "disk_model.h"

#include <algorithm>
#include <filesystem>

#include "platform/files.h"
#include "platform/paths.h"

namespace power_cut {

namespace {

constexpr std::uint64_t Sector = 512;

}  // namespace

/// What becomes of the things that nobody flushed.
struct DiskModel::Chance {
  enum Fate { Kept, Lost, Torn };

  explicit Chance(unsigned seed) : seed_(seed), random_(seed), percent_(5 + random_() % 91) {}

  bool keepsName() { return seed_ < 4 ? seed_ % 2 == 0 : likely(); }
  Fate ofData() {
    if (seed_ < 4) return seed_ == 0 || seed_ == 3 ? Kept : Lost;
    return random_() % 3 == 0 ? Torn : likely() ? Kept : Lost;
  }
  bool keepsSector() { return random_() % 2 == 0; }

 private:
  bool likely() { return random_() % 100 < percent_; }

  unsigned seed_;
  std::minstd_rand random_;
  unsigned long percent_;
};

DiskModel::DiskModel(const Files& files) {
  for (const auto& [path, content] : files) {
    names_[path] = contents_.size();
    contents_.push_back({content, content, {}});
  }
  flushedNames_ = names_;
}

bool DiskModel::carryOut(const support::RecordedCall& call) {
  using enum platform::DiskOperation;
  switch (call.operation) {
    case Create:
      if (!names_.contains(call.path)) {
        contents_.emplace_back();
        name({"", call.path, contents_.size() - 1});
      }
      change(call.path, {true, 0, {}});
      return true;
    case Write:
      change(call.path,
             {false, call.offset, {reinterpret_cast<const char*>(call.data.data()), call.data.size()}});
      return true;
    case Resize:
      change(call.path, {true, call.offset, {}});
      return true;
    case Flush: {
      Content& content = contents_.at(names_.at(call.path));
      content.flushed = content.now;
      content.unflushed.clear();
      return true;
    }
    case Replace:
      name({call.path, call.otherPath, names_.at(call.path)});
      return true;
    case Remove:
      name({call.path, "", 0});
      return true;
    case FlushFolder:
      flushFolder(call.path);
      return true;
    default:
      return false;
  }
}

void DiskModel::change(const std::string& path, Change change) {
  Content& content = contents_.at(names_.at(path));
  apply(change, content.now);
  content.unflushed.push_back(std::move(change));
}

void DiskModel::name(Naming naming) {
  apply(naming, names_);
  unflushedNames_.push_back(std::move(naming));
}

void DiskModel::flushFolder(const std::string& folder) {
  std::erase_if(unflushedNames_, [&](const Naming& naming) {
    const bool here = platform::containingFolder(naming.come.empty() ? naming.gone : naming.come) == folder;
    if (here) apply(naming, flushedNames_);
    return here;
  });
}

void DiskModel::apply(const Naming& naming, Names& names) {
  names.erase(naming.gone);
  if (!naming.come.empty()) names[naming.come] = naming.content;
}

void DiskModel::apply(const Change& change, std::string& content) {
  if (change.resize) {
    content.resize(change.offset);
    return;
  }
  content.resize(std::max(content.size(), change.offset + change.data.size()));
  content.replace(change.offset, change.data.size(), change.data);
}

Files DiskModel::files() const {
  Files files;
  for (const auto& [path, content] : names_) files[path] = contents_[content].now;
  return files;
}

Files DiskModel::afterCut(unsigned seed) const {
  Chance chance(seed);
  Names names = flushedNames_;
  for (const Naming& naming : unflushedNames_)
    if (chance.keepsName()) apply(naming, names);
  Files files;
  for (const auto& [path, number] : names) {
    std::string& content = files[path] = contents_[number].flushed;
    for (const Change& change : contents_[number].unflushed) {
      const Chance::Fate fate = chance.ofData();
      if (fate == Chance::Kept || (fate == Chance::Torn && change.resize)) apply(change, content);
      if (fate != Chance::Torn) continue;
      const std::uint64_t end = change.offset + change.data.size();
      for (std::uint64_t at = change.offset, next; at < end; at = next) {
        next = std::min(end, (at / Sector + 1) * Sector);
        if (chance.keepsSector())
          apply({false, at, change.data.substr(at - change.offset, next - at)}, content);
      }
    }
  }
  return files;
}

Files filesIn(const std::vector<std::string>& folders) {
  Files files;
  for (const std::string& folder : folders)
    for (const auto& entry : std::filesystem::directory_iterator(platform::toSystemPath(folder)))
      if (entry.is_regular_file()) {
        const std::string path = folder + "\\" + entry.path().filename().string();
        files[path] = platform::readWholeFile(path);
      }
  return files;
}

void putFiles(const Files& files, const std::vector<std::string>& folders) {
  for (const auto& [path, content] : filesIn(folders))
    if (!files.contains(path)) platform::removeFile(path);
  for (const auto& [path, content] : files) platform::writeWholeFile(path, content);
}

}  // namespace power_cut
