#pragma once

#include <csignal>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/disk.h"

/// Observers of the disk for tests: put one in force with `ObservedDisk scope(observer);`.
namespace support {

/// Puts an observer in force, numbers from 1, and brings back the one before at the end.
class ObservedDisk {
 public:
  explicit ObservedDisk(platform::DiskObserver& observer) : before_(platform::observeDisk(&observer)) {}
  ~ObservedDisk() { platform::observeDisk(before_); }
  ObservedDisk(const ObservedDisk&) = delete;
  ObservedDisk& operator=(const ObservedDisk&) = delete;

 private:
  platform::DiskObserver* before_;
};

/// A call that an observer has seen, with the bytes of a write.
struct RecordedCall {
  explicit RecordedCall(const platform::DiskCall& call)
      : number(call.number),
        operation(call.operation),
        path(call.path),
        otherPath(call.otherPath),
        offset(call.offset),
        data(call.data.begin(), call.data.end()) {}

  std::uint64_t number;
  platform::DiskOperation operation;
  std::string path;
  std::string otherPath;
  std::uint64_t offset;
  std::vector<std::byte> data;
};

class RecordCalls : public platform::DiskObserver {
 public:
  void before(const platform::DiskCall& call) override { calls.emplace_back(call); }
  std::vector<RecordedCall> calls;
};

enum class Faulty { Once, FromThenOn };

/// Fails call `nth`, or it and all after it.
class FailNth : public platform::DiskObserver {
 public:
  FailNth(std::uint64_t nth, platform::DiskFault fault, Faulty duration = Faulty::Once)
      : nth_(nth), fault_(fault), duration_(duration) {}

  void before(const platform::DiskCall& call) override {
    if (call.number < nth_ || (call.number > nth_ && duration_ == Faulty::Once)) return;
    if (!hit_) hit_.emplace(call);
    throw platform::DiskError(fault_, call.path);
  }
  bool wasHit() const { return hit_.has_value(); }
  /// The first call that was failed.
  const std::optional<RecordedCall>& hit() const { return hit_; }

 private:
  std::uint64_t nth_;
  platform::DiskFault fault_;
  Faulty duration_;
  std::optional<RecordedCall> hit_;
};

/// Does something behind the work's back, before the first call of a kind is carried out.
class AtFirst : public platform::DiskObserver {
 public:
  AtFirst(platform::DiskOperation operation, std::function<void()> work)
      : operation_(operation), work_(std::move(work)) {}
  void before(const platform::DiskCall& call) override {
    if (call.operation != operation_) return;
    if (const auto work = std::exchange(work_, nullptr)) work();
  }

 private:
  platform::DiskOperation operation_;
  std::function<void()> work_;
};

/// Ends the process, as a power cut or a kill would, before call `nth` is carried out.
class DieAtNth : public platform::DiskObserver {
 public:
  explicit DieAtNth(std::uint64_t nth) : nth_(nth) {}
  void before(const platform::DiskCall& call) override {
    if (call.number == nth_) std::raise(SIGKILL);
  }

 private:
  std::uint64_t nth_;
};

}  // namespace support
