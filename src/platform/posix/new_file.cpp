// How a new file comes to be, and whom it lets in.
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <algorithm>
#include <map>
#include <string_view>

#include "platform/posix/calls.h"

namespace platform::system {

namespace {

constexpr mode_t EveryRight = 0777, OwnersUse = S_IRUSR | S_IWUSR;

using Attributes = std::map<std::string, std::string>;
/// The name under which the system keeps an access list.
constexpr std::string_view AccessList = "system.posix_acl_access";
/// These vouch for the content, not for the file: new content must not be taken for what they stand for.
constexpr std::string_view Seals[] = {"security.capability", "security.evm", "security.ima"};

/// A text whose length the system tells first; 0 bytes where it gives an error that is no failure.
template <class Call>
std::string asked(Call call, int harmless, const std::string& path) {
  std::string text;
  ssize_t length = call(nullptr, 0);
  if (length > 0) {
    text.resize(static_cast<std::size_t>(length));
    length = call(text.data(), text.size());
  }
  if (length < 0 && errno != harmless) throw DiskError(DiskFault::Rights, path);
  text.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
  return text;
}

/// The extended attributes, the access list among them.
Attributes attributesOf(int file, const std::string& path) {
  const std::string names =
      asked([&](char* out, std::size_t size) { return ::flistxattr(file, out, size); }, ENOTSUP, path);
  Attributes attributes;
  for (std::size_t at = 0; at < names.size(); at = names.find('\0', at) + 1) {
    const std::string name = names.c_str() + at;
    if (std::ranges::find(Seals, name) != std::end(Seals)) continue;
    attributes[name] = asked(
        [&](char* out, std::size_t size) { return ::fgetxattr(file, name.c_str(), out, size); }, 0, path);
  }
  return attributes;
}

struct stat entryOf(int file, const std::string& path) {
  struct stat entry;
  if (::fstat(file, &entry) != 0) fail(errno, path);
  return entry;
}

bool sameEntry(const struct stat& a, const struct stat& b) {
  return a.st_uid == b.st_uid && a.st_gid == b.st_gid && (a.st_mode & EveryRight) == (b.st_mode & EveryRight);
}

/// Gives `file` these attributes and no others, as far as the system lets it.
void setAttributes(int file, const Attributes& now, const Attributes& wanted) {
  for (const auto& [name, value] : wanted) {
    const auto found = now.find(name);
    if (found == now.end() || found->second != value)
      ::fsetxattr(file, name.c_str(), value.data(), value.size(), 0);
  }
  for (const auto& [name, value] : now)
    if (!wanted.contains(name)) ::fremovexattr(file, name.c_str());
}

/// What comes of it counts, not what the calls say: some systems grant them and do nothing.
void takePlaceOf(int file, const std::string& path, const std::string& model) {
  const Descriptor held(openDescriptor(model, O_RDONLY));
  const struct stat old = entryOf(held.number(), model), fresh = entryOf(file, path);
  const Attributes wanted = attributesOf(held.number(), model);
  bool owned = old.st_uid == fresh.st_uid && old.st_gid == fresh.st_gid;
  if (!owned) owned = ::fchown(file, old.st_uid, old.st_gid) == 0;
  if (owned) {
    setAttributes(file, attributesOf(file, path), wanted);
    if (!sameEntry(entryOf(file, path), old)) ::fchmod(file, old.st_mode & EveryRight);
  }
  if (!owned || !sameEntry(entryOf(file, path), old) || attributesOf(file, path) != wanted)
    throw DiskError(DiskFault::Rights, model);
}

/// Only the access list of a file, or none.
Attributes listIn(const Attributes& attributes) {
  Attributes list;
  const auto found = attributes.find(std::string(AccessList));
  if (found != attributes.end()) list.insert(*found);
  return list;
}

/// Takes from a new file, whose rights are the model's or fewer, what they would grant to others here: the
/// group is another, an access list meant less than the rights show, the folder has handed one down.
void keepOutLike(int file, const std::string& path, const std::string& model) {
  const Descriptor held(openDescriptor(model, O_RDONLY));
  const struct stat old = entryOf(held.number(), model), fresh = entryOf(file, path);
  const Attributes now = listIn(attributesOf(file, path)),
                   wanted = listIn(attributesOf(held.number(), model));
  const bool sameGroup = old.st_gid == fresh.st_gid;
  mode_t rights = fresh.st_mode & EveryRight;
  if (now.empty() && wanted.empty()) {
    if (!sameGroup) rights &= ~static_cast<mode_t>(S_IRWXG) | (rights & S_IRWXO) << 3;
  } else {
    if (sameGroup) setAttributes(file, now, wanted);
    const bool alike = sameGroup && listIn(attributesOf(file, path)) == wanted;
    rights = alike ? (old.st_mode & EveryRight) | OwnersUse : OwnersUse;
  }
  if (rights != (entryOf(file, path).st_mode & EveryRight)) ::fchmod(file, rights);
}

/// The rights that the file is made with, before the user's mask: with the widest that it may come to have,
/// somebody could open it too early.
mode_t firstRights(NewFile kind, const std::string& model) {
  if (kind == NewFile::Usual) return 0666;
  struct stat old;
  if (kind == NewFile::InPlaceOf || ::stat(native(model).c_str(), &old) != 0) return OwnersUse;
  return (old.st_mode & EveryRight) | OwnersUse;
}

}  // namespace

NativeFile create(const std::string& path, NewFile kind, const std::string& model) {
  ignoreFileSizeSignal();
  Descriptor file(openDescriptor(path, O_RDWR | O_CREAT | O_EXCL, firstRights(kind, model)));
  try {
    if (!lock(file.number(), path, LockMode::Exclusive)) throw DiskError(DiskFault::Sharing, path);
    if (kind == NewFile::InPlaceOf) takePlaceOf(file.number(), path, model);
    if (kind == NewFile::Like) keepOutLike(file.number(), path, model);
  } catch (const DiskError&) {
    ::unlink(native(path).c_str());
    throw;
  }
  return file.release();
}

}  // namespace platform::system
