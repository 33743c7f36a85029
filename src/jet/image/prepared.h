#pragma once

#include <cstdint>
#include <optional>
#include <utility>
#include <variant>

/// What was prepared for an image (texts compiled, tables made ready) and holds until a design changes.
namespace jet::image {

/// Tells the designs that an image has had apart: another one after each change of a design, and whenever
/// t<page> of a table may have gone.
enum class Generation : std::uint64_t {};

/// A value and the generation that it was prepared for. Without a value of its own: a mere mark.
template <typename Value = std::monostate>
class Prepared {
 public:
  /// The value if it was prepared for the generation `now`, else nullptr.
  Value* get(Generation now) { return generation_ == now ? last() : nullptr; }
  /// The same; one that is stale or missing is begun anew.
  Value& getOrBegin(Generation now) {
    if (Value* known = get(now)) return *known;
    return set(now);
  }
  Value& set(Generation now, Value value = {}) {
    generation_ = now;
    return value_.emplace(std::move(value));
  }
  /// The value, stale or not; nullptr if there is none.
  Value* last() { return value_ ? &*value_ : nullptr; }
  /// The value holds for `now` as well: what has changed since was of its own doing.
  void renew(Generation now) { generation_ = now; }
  void reset() { value_.reset(); }

 private:
  std::optional<Value> value_;
  Generation generation_{};
};

}  // namespace jet::image
