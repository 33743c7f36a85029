#pragma once

#include <cstdint>
#include <vector>

namespace jet::file {

/// Which pages of a file are in use.
class PageSpace {
 public:
  bool used(std::uint32_t page) const { return page < used_.size() && used_[page]; }
  void use(std::uint32_t page);
  void release(std::uint32_t page);
  /// Lowest page not in use, which then is. Error 3026 beyond the largest file there can be, 2 GiB.
  std::uint32_t take();
  /// Pages up to the last one in use.
  std::uint32_t pageCount() const;

 private:
  std::vector<bool> used_;
  std::uint32_t next_ = 0;  // no page below is unused
};

}  // namespace jet::file
