// A file copied block by block into a replacement, and refused where it changes meanwhile.
#include <vector>

#include "platform/files.h"

namespace platform {

namespace {

void lockOrRefuse(File& file, LockMode mode) {
  if (!file.tryLock(mode)) throw DiskError(DiskFault::Sharing, file.path());
}

/// The file that is to be replaced, held against everyone else; none if the name is free. When it is the
/// source itself, the source's own lock stands in the way.
File holdTarget(const std::string& path) {
  File target;
  if (inspectFile(path)) {
    target = openFile(path, OpenMode::Update);
    lockOrRefuse(target, LockMode::Exclusive);
    if (!target.isStillAt(path)) throw DiskError(DiskFault::Sharing, path);
  }
  return target;
}

void copyContent(const File& source, File& target) {
  std::vector<std::byte> block(BlockSize);
  for (std::uint64_t offset = 0;; offset += BlockSize) {
    const std::size_t count = source.readAt(offset, block);
    if (count > 0) target.writeAt(offset, std::span(block).first(count));
    if (count < BlockSize) return;
  }
}

void copy(const std::string& from, const std::string& to, Replacement::Name name) {
  const bool isNew = name == Replacement::Name::New;
  if (isNew && inspectFile(to)) throw DiskError(DiskFault::Exists, to);
  File source = openFile(from, OpenMode::Read);
  lockOrRefuse(source, LockMode::Shared);
  const std::optional<FileInfo> info = inspectFile(from);
  if (!info || !source.isStillAt(from)) throw DiskError(DiskFault::Sharing, from);
  const FileState before = source.state();
  const File oldTarget = isNew ? File() : holdTarget(to);
  Replacement copy(to, from, name);
  copyContent(source, copy.file());
  // A program that knows nothing of our lock may have written: the copy would be a mixture.
  if (source.state() != before) throw DiskError(DiskFault::Sharing, from);
  copy.file().setModified(info->modifiedUnixNanoseconds);
  copy.publish();
}

}  // namespace

void copyFile(const std::string& from, const std::string& to) {
  copy(from, to, Replacement::Name::NewOrTaken);
}

void copyToNewFile(const std::string& from, const std::string& to) {
  copy(from, to, Replacement::Name::New);
}

}  // namespace platform
