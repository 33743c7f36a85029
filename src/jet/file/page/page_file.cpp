// An open file read page by page; every access within a page is checked.
#include "jet/file/page/page_file.h"

#include <list>
#include <unordered_map>

#include "jet/file/errors.h"

namespace jet::file {

namespace {

constexpr std::size_t ChunkPages = 64;
constexpr std::size_t CacheBytes = 16 << 20;
// A file has at least its header, its global map and the definitions of four tables.
constexpr std::uint64_t FewestPages = 6;
constexpr int OpenAttempts = 5;

platform::File openLocked(const std::string& path, Sharing sharing, bool readOnly) {
  const auto openMode = readOnly ? platform::OpenMode::Read : platform::OpenMode::Update;
  const auto lockMode =
      sharing == Sharing::Shared ? platform::LockMode::Shared : platform::LockMode::Exclusive;
  // Someone's save may put a new file in this one's place between opening and locking.
  for (int attempt = 0; attempt < OpenAttempts; ++attempt) {
    platform::File file = platform::openFile(path, openMode);
    if (!file.tryLock(lockMode)) break;
    if (file.isStillAt(path)) return file;
  }
  throw heldElsewhere(path);
}

}  // namespace

void Page::damaged(const std::string& what) const {
  throw damagedFile("pagina " + std::to_string(number_) + ": " + what);
}

void Page::outside(std::size_t offset) const {
  damaged("riferimento " + std::to_string(offset) + " fuori dalla pagina");
}

/// Runs of pages, the one used last in front.
struct PageFile::Cache {
  using Chunk = std::shared_ptr<const std::vector<std::byte>>;
  struct Entry {
    std::uint32_t number;
    Chunk chunk;
  };
  std::list<Entry> recent;
  std::unordered_map<std::uint32_t, std::list<Entry>::iterator> index;
};

PageFile::PageFile(const std::string& path, Sharing sharing, bool readOnly)
    : path_(path), sharing_(sharing), readOnly_(readOnly), cache_(std::make_unique<Cache>()) {
  try {
    file_ = openLocked(path, sharing, readOnly);
  } catch (const platform::DiskError& error) {
    throw fromDisk(error);
  }
  checkHeader();
}

PageFile::PageFile(platform::File file, Sharing sharing, bool readOnly)
    : path_(file.path()),
      file_(std::move(file)),
      sharing_(sharing),
      readOnly_(readOnly),
      cache_(std::make_unique<Cache>()) {
  checkHeader();
}

PageFile::~PageFile() = default;

void PageFile::checkHeader() {
  std::uint64_t size = 0;
  std::vector<std::byte> start(Jet3.pageSize);
  try {
    state_ = file_.state();
    size = state_.size;
    start.resize(file_.readAt(0, start));
  } catch (const platform::DiskError& error) {
    throw fromDisk(error);
  }
  header_ = readHeader(start, path_);
  const std::uint64_t pages = size / format().pageSize;
  if (size % format().pageSize != 0 || pages < FewestPages || pages > UINT32_MAX)
    throw damagedFile("\"" + path_ + "\" è lungo " + std::to_string(size) + " byte, forse è troncato");
  pageCount_ = static_cast<std::uint32_t>(pages);
  if (header_.cipherKey != 0)
    throw damagedFile("\"" + path_ + "\" è codificato, e i file codificati non sono gestiti");
  if (header_.password)
    throw jetError(WrongPassword, "Il database \"" + path_ + "\" è protetto da una password");
  if (&format() == &Jet3 && !readOnly_)
    throw jetError(OldFormat,
                   "Il database \"" + path_ + "\" è di una versione precedente e si apre in sola lettura");
}

void PageFile::requireUnchanged() const try {
  if (!file_.isStillAt(path_) || file_.state() != state_)
    throw jetError(ChangedElsewhere, "Il database è stato modificato da un altro utente: " + path_);
} catch (const platform::DiskError& error) {
  throw fromDisk(error);
}

void PageFile::requireReplaceable() const {
  requireUnchanged();
  if (state_.names > 1)
    throw jetError(CannotOpen,
                   "Il file \"" + path_ +
                       "\" ha altri nomi (collegamenti fisici), che resterebbero al contenuto di prima");
}

void PageFile::read(std::uint32_t first, std::span<std::byte> out) const {
  std::size_t got = 0;
  try {
    got = file_.readAt(static_cast<std::uint64_t>(first) * format().pageSize, out);
  } catch (const platform::DiskError& error) {
    throw fromDisk(error);
  }
  if (got < out.size())
    throw damagedFile("\"" + path_ + "\" finisce prima della pagina " +
                      std::to_string(first + out.size() / format().pageSize - 1));
}

Page PageFile::page(std::uint32_t number) const {
  if (number >= pageCount_) throw damagedFile("la pagina " + std::to_string(number) + " è fuori dal file");
  const auto wanted = static_cast<std::uint32_t>(number / ChunkPages);
  auto& recent = cache_->recent;
  if (recent.empty() || recent.front().number != wanted) {
    const auto found = cache_->index.find(wanted);
    if (found != cache_->index.end()) {
      recent.splice(recent.begin(), recent, found->second);
    } else {
      const std::uint32_t first = wanted * ChunkPages;
      const std::size_t pages = std::min<std::size_t>(ChunkPages, pageCount_ - first);
      auto chunk = std::make_shared<std::vector<std::byte>>(pages * format().pageSize);
      read(first, *chunk);
      recent.push_front({wanted, std::move(chunk)});
      cache_->index[wanted] = recent.begin();
      if (recent.size() * ChunkPages * format().pageSize > CacheBytes) {
        cache_->index.erase(recent.back().number);
        recent.pop_back();
      }
    }
  }
  const Cache::Chunk& chunk = recent.front().chunk;
  const std::size_t offset = number % ChunkPages * format().pageSize;
  return Page(chunk, std::span(*chunk).subspan(offset, format().pageSize), number);
}

}  // namespace jet::file
