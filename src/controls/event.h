#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace controls {

/// Keeps a handler connected for as long as it lives; may outlive the event, and be dropped from inside the
/// handler.
class Subscription {
 public:
  Subscription() = default;
  explicit Subscription(std::shared_ptr<bool> connected) : connected_(std::move(connected)) {}
  Subscription(Subscription&& other) noexcept : connected_(std::move(other.connected_)) {}
  Subscription& operator=(Subscription&& other) noexcept {
    release();
    connected_ = std::move(other.connected_);
    return *this;
  }
  ~Subscription() { release(); }

  void release() {
    if (connected_) *connected_ = false;
    connected_.reset();
  }

 private:
  std::shared_ptr<bool> connected_;
};

/// A list of handlers that are called one after the other, in the order of their connection, by whoever
/// raises the event. An exception of a handler ends the raising and reaches the raiser.
template <typename... Args>
class Event {
 public:
  using Handler = std::function<void(Args...)>;

  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  /// Connects for the life of the event: for handlers that live at least as long as the control.
  void connect(Handler handler) { add(std::move(handler)); }
  /// Connects until the result is dropped.
  [[nodiscard]] Subscription subscribe(Handler handler) {
    return Subscription(add(std::move(handler))->connected);
  }

  /// Calls the handlers connected now; one dropped meanwhile is not called, one added meanwhile waits for the
  /// next.
  void raise(Args... args) {
    std::erase_if(slots_, [](const auto& slot) { return !*slot->connected; });
    const auto now = slots_;
    for (const auto& slot : now)
      if (*slot->connected) slot->handler(args...);
  }

 private:
  struct Slot {
    Handler handler;
    std::shared_ptr<bool> connected = std::make_shared<bool>(true);
  };

  std::shared_ptr<Slot> add(Handler handler) {
    slots_.push_back(std::make_shared<Slot>(Slot{std::move(handler)}));
    return slots_.back();
  }

  std::vector<std::shared_ptr<Slot>> slots_;
};

}  // namespace controls
