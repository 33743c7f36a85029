#pragma once

#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "support/disk_faults.h"

namespace power_cut {

/// Files by path with their content.
using Files = std::map<std::string, std::string>;

/// A disk on which recorded calls are carried out. It tells what lies there while the power is on, and what
/// may lie there once it was cut: content up to the last flush of its file and names up to the last flush of
/// their folder for sure, what came later kept, lost or, a write, torn between sectors of 512 bytes, each for
/// itself.
class DiskModel {
 public:
  explicit DiskModel(const Files& files);

  /// False for a call that changes nothing on a disk.
  bool carryOut(const support::RecordedCall& call);
  Files files() const;
  /// One of the disks that a cut may leave. The first seeds are the extreme ones: everything kept, everything
  /// lost, names without content, content without names.
  Files afterCut(unsigned seed) const;

 private:
  struct Change {
    bool resize;
    std::uint64_t offset;  // resize: the new size
    std::string data;
  };
  struct Content {
    std::string flushed, now;
    std::vector<Change> unflushed;
  };
  /// A new, renamed or removed name.
  struct Naming {
    std::string gone, come;  // empty: none
    std::size_t content;
  };
  using Names = std::map<std::string, std::size_t>;
  struct Chance;

  void change(const std::string& path, Change change);
  void name(Naming naming);
  void flushFolder(const std::string& folder);
  static void apply(const Naming& naming, Names& names);
  static void apply(const Change& change, std::string& content);

  std::vector<Content> contents_;
  Names names_, flushedNames_;
  std::vector<Naming> unflushedNames_;
};

/// The files directly in these folders.
Files filesIn(const std::vector<std::string>& folders);
/// Makes these the only files of the folders.
void putFiles(const Files& files, const std::vector<std::string>& folders);

}  // namespace power_cut
