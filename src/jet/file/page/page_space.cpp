// Which pages of a file are in use, and the lowest that is not.
#include "jet/file/page/page_space.h"

#include <algorithm>

#include "jet/file/errors.h"
#include "jet/file/page/format.h"

namespace jet::file {

namespace {

constexpr std::uint64_t LargestFile = std::uint64_t{1} << 31;

}  // namespace

void PageSpace::use(std::uint32_t page) {
  if (page >= used_.size()) used_.resize(page + 1);
  used_[page] = true;
}

void PageSpace::release(std::uint32_t page) {
  if (page >= used_.size()) return;
  used_[page] = false;
  next_ = std::min(next_, page);
}

std::uint32_t PageSpace::take() {
  while (used(next_)) ++next_;
  if (next_ >= LargestFile / Jet4.pageSize)
    throw jetError(NotEnoughSpace, "Il database supererebbe la dimensione massima di 2 GB");
  use(next_);
  return next_++;
}

std::uint32_t PageSpace::pageCount() const {
  std::size_t count = used_.size();
  while (count > 0 && !used_[count - 1]) --count;
  return static_cast<std::uint32_t>(count);
}

}  // namespace jet::file
