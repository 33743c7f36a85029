// Where calls to the disk are numbered, and may be made to fail, before the system gets them.
#include "platform/disk.h"

#include <atomic>

#include "platform/disk_system.h"

namespace platform {

namespace {

struct FaultText {
  int number;
  const char* text;
};

/// In the order of DiskFault.
constexpr FaultText FaultTexts[] = {
    {runtime::FileNotFound, "File inesistente"},
    {runtime::PathNotFound, "Cartella inesistente"},
    {runtime::PathFileAccess, "Accesso negato"},
    {runtime::PermissionDenied, "File in uso"},
    {runtime::DiskFull, "Spazio su disco esaurito"},
    {runtime::FileAlreadyExists, "File già esistente"},
    {runtime::PathFileAccess, "È una cartella, non un file"},
    {runtime::DeviceIoError, "Errore di lettura o scrittura"},
    {runtime::PathFileAccess, "Proprietario, permessi o attributi non si possono conservare"},
};

const FaultText& faultText(DiskFault fault) {
  return FaultTexts[static_cast<std::size_t>(fault)];
}

std::atomic<DiskObserver*> observerInForce = nullptr;
std::atomic<std::uint64_t> callsSoFar = 0;

/// Numbers a call and shows it to the observer, which may throw in its place.
void announce(DiskOperation operation, const std::string& path, const std::string& otherPath = {},
              std::uint64_t offset = 0, std::span<const std::byte> data = {}) {
  const std::uint64_t number = ++callsSoFar;
  if (DiskObserver* observer = observerInForce)
    observer->before({number, operation, path, otherPath, offset, data});
}

}  // namespace

DiskError::DiskError(DiskFault fault, const std::string& path)
    : runtime::Error(faultText(fault).number, "AggNorvo", std::string(faultText(fault).text) + ": " + path),
      fault_(fault),
      path_(path) {}

DiskObserver* observeDisk(DiskObserver* observer) {
  callsSoFar = 0;
  return observerInForce.exchange(observer);
}

struct File::Handle {
  std::string path;
  system::NativeFile native;
  std::optional<LockMode> held;

  ~Handle() { system::close(native); }
};

File::File() = default;
File::File(File&&) noexcept = default;
File& File::operator=(File&&) noexcept = default;
File::~File() = default;

File openFile(const std::string& path, OpenMode mode) {
  announce(mode == OpenMode::Create ? DiskOperation::Create : DiskOperation::Open, path);
  File file;
  file.handle_.reset(new File::Handle{path, system::open(path, mode), {}});
  if (mode == OpenMode::Create) file.handle_->held = LockMode::Exclusive;
  return file;
}

File createFile(const std::string& path, NewFile kind, const std::string& model) {
  announce(DiskOperation::Create, path);
  File file;
  file.handle_.reset(new File::Handle{path, system::create(path, kind, model), LockMode::Exclusive});
  return file;
}

std::size_t File::readAt(std::uint64_t offset, std::span<std::byte> out) const {
  announce(DiskOperation::Read, handle_->path, {}, offset);
  return system::read(handle_->native, handle_->path, offset, out);
}

void File::writeAt(std::uint64_t offset, std::span<const std::byte> data) {
  announce(DiskOperation::Write, handle_->path, {}, offset, data);
  system::write(handle_->native, handle_->path, offset, data);
}

std::uint64_t File::size() const {
  announce(DiskOperation::Inspect, handle_->path);
  return system::size(handle_->native, handle_->path);
}

void File::resize(std::uint64_t size) {
  announce(DiskOperation::Resize, handle_->path, {}, size);
  system::resize(handle_->native, handle_->path, size);
}

void File::flush() {
  announce(DiskOperation::Flush, handle_->path);
  system::flush(handle_->native, handle_->path);
}

bool File::tryLock(LockMode mode) {
  announce(DiskOperation::Lock, handle_->path);
  std::optional<LockMode>& held = handle_->held;
  if (system::lock(handle_->native, handle_->path, mode)) {
    held = mode;
    return true;
  }
  if (held && !system::lock(handle_->native, handle_->path, *held)) {  // the refused conversion let go of it
    held.reset();
    throw DiskError(DiskFault::Sharing, handle_->path);
  }
  return false;
}

void File::setModified(std::int64_t unixNanoseconds) {
  announce(DiskOperation::Dates, handle_->path);
  system::setModified(handle_->native, handle_->path, unixNanoseconds);
}

bool File::isStillAt(const std::string& path) const {
  announce(DiskOperation::Inspect, path);
  return system::isAt(handle_->native, path);
}

FileState File::state() const {
  announce(DiskOperation::Inspect, handle_->path);
  return system::state(handle_->native, handle_->path);
}

const std::string& File::path() const {
  return handle_->path;
}

void File::close() {
  handle_.reset();
}

void File::beforeReplacement() {
  system::closeForReplacement(handle_->native);
}

void File::afterReplacement(const std::string& path) {
  handle_->path = path;
  system::openAfterReplacement(handle_->native, path, handle_->held);
}

void replaceFile(const std::string& from, const std::string& to) {
  announce(DiskOperation::Replace, from, to);
  system::replace(from, to);
}

void renameFile(const std::string& from, const std::string& to) {
  announce(DiskOperation::Replace, from, to);
  system::rename(from, to);
}

void removeFile(const std::string& path) {
  announce(DiskOperation::Remove, path);
  system::remove(path);
}

void flushFolder(const std::string& folder) {
  announce(DiskOperation::FlushFolder, folder);
  system::flushFolder(folder);
}

std::optional<FileInfo> inspectFile(const std::string& path) {
  announce(DiskOperation::Inspect, path);
  return system::inspect(path);
}

void setModified(const std::string& path, std::int64_t unixNanoseconds) {
  announce(DiskOperation::Dates, path);
  system::setModified(path, unixNanoseconds);
}

std::string followLinks(const std::string& path) {
  announce(DiskOperation::Inspect, path);
  return system::followLinks(path);
}

}  // namespace platform
