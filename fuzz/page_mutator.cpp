// Changes a database where its structures are, since most of a file is content or empty.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <random>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed);

namespace {

/// Of a file's format, as its version byte tells.
std::size_t pageSizeOf(const std::uint8_t* data, std::size_t size) {
  return size > 0x14 && data[0x14] == 0 ? 2048 : 4096;
}

class Mutation {
 public:
  Mutation(std::uint8_t* data, std::size_t size, unsigned seed)
      : data_(data), pageSize_(pageSizeOf(data, size)), pages_(size / pageSize_), random_(seed) {}

  void run() {
    std::uint8_t* page = data_ + below(pages_) * pageSize_;
    switch (below(8)) {
      case 0:
        std::memmove(page, data_ + below(pages_) * pageSize_, pageSize_);
        break;
      case 1: {  // something of one page in another
        const std::size_t length = 1 + below(64);
        std::memmove(page + below(pageSize_ - length), data_ + below(pages_ * pageSize_ - length), length);
        break;
      }
      case 2:  // a page number
        put(page + place(4), below(pages_ + 2), 4);
        break;
      case 3:
        put(page + place(2), below(2) ? below(pageSize_) : below(16), 2);
        break;
      case 4: {
        const std::size_t at = place(8), length = 1 + below(8);
        LLVMFuzzerMutate(page + at, length, length);
        break;
      }
      default:
        page[place(1)] = static_cast<std::uint8_t>(below(2) ? below(256) : interesting());
    }
  }

 private:
  std::size_t below(std::size_t limit) { return random_() % limit; }
  std::size_t interesting() {
    constexpr std::uint8_t values[] = {0, 1, 2, 3, 4, 5, 9, 12, 16, 0x7F, 0x80, 0xD0, 0xFE, 0xFF};
    return values[below(sizeof values)];
  }
  /// Offset in a page at which `length` bytes fit: at its beginning, at its end or anywhere.
  std::size_t place(std::size_t length) {
    switch (below(3)) {
      case 0:
        return below(128);
      case 1:
        return pageSize_ - length - below(256);
      default:
        return below(pageSize_ - length);
    }
  }
  static void put(std::uint8_t* at, std::size_t value, std::size_t length) {
    for (std::size_t i = 0; i < length; ++i) at[i] = static_cast<std::uint8_t>(value >> 8 * i);
  }

  std::uint8_t* data_;
  std::size_t pageSize_, pages_;
  std::minstd_rand random_;
};

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed) {
  const std::size_t pageSize = pageSizeOf(data, size);
  if (size < pageSize || seed % 64 == 0) return LLVMFuzzerMutate(data, size, maxSize);
  size -= size % pageSize;  // any other length is refused at once
  Mutation mutation(data, size, seed);
  for (unsigned count = 1 + seed / 64 % 4; count > 0; --count) mutation.run();
  return size;
}
