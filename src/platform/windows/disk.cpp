// Files and folders by Win32 calls: sharing, locks, flushes.
#include <windows.h>

#include "platform/disk_system.h"
#include "platform/local_time.h"
#include "platform/windows/file_times.h"
#include "platform/windows/handle.h"
#include "platform/windows/wide.h"

namespace platform::system {

namespace {

using windows::fail;
using windows::failLastCall;
using windows::Handle;
using windows::native;

/// What every opener of this product grants the others: whom to keep out is the lock's business.
constexpr DWORD Sharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

HANDLE handleOf(NativeFile file) {
  return reinterpret_cast<HANDLE>(file);
}

NativeFile fileOf(HANDLE handle) {
  return reinterpret_cast<NativeFile>(handle);
}

std::uint64_t joined(DWORD high, DWORD low) {
  return static_cast<std::uint64_t>(high) << 32 | low;
}

OVERLAPPED at(std::uint64_t offset) {
  OVERLAPPED place{};
  place.Offset = static_cast<DWORD>(offset);
  place.OffsetHigh = static_cast<DWORD>(offset >> 32);
  return place;
}

/// The lock lies on one byte that no file reaches: what is in the file stays readable, as it is to a backup.
OVERLAPPED lockPlace() {
  return at(0x7fff'ffff'ffff'fffe);
}

void refuseUnlessRegular(HANDLE file, const std::string& path) {
  if (::GetFileType(file) != FILE_TYPE_DISK) throw DiskError(DiskFault::AccessDenied, path);
  BY_HANDLE_FILE_INFORMATION info;
  if (!::GetFileInformationByHandle(file, &info)) failLastCall(path);
  if (info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) throw DiskError(DiskFault::IsFolder, path);
}

HANDLE openFile(const std::string& path, DWORD access, DWORD disposition) {
  Handle file(::CreateFileW(native(path).c_str(), access, Sharing, nullptr, disposition,
                            FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file) failLastCall(path);
  refuseUnlessRegular(file.get(), path);
  return file.release();
}

/// Files and folders, for what needs no right to their content. Nothing if there is none.
HANDLE openForInspection(const std::string& path, DWORD access = 0) {
  const HANDLE file = ::CreateFileW(native(path).c_str(), access, Sharing, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (file != INVALID_HANDLE_VALUE) return file;
  const DWORD error = ::GetLastError();
  if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND) return INVALID_HANDLE_VALUE;
  fail(error, path);
}

/// A program that isn't of this product lets no one delete what it has open. The right to do so is asked for
/// and given back.
bool isHeldByOthers(const std::string& path) {
  const Handle probe(::CreateFileW(native(path).c_str(), DELETE, Sharing, nullptr, OPEN_EXISTING,
                                   FILE_ATTRIBUTE_NORMAL, nullptr));
  return !probe && ::GetLastError() == ERROR_SHARING_VIOLATION;
}

}  // namespace

NativeFile open(const std::string& path, OpenMode mode) {
  if (mode == OpenMode::Read) return fileOf(openFile(path, GENERIC_READ, OPEN_EXISTING));
  if (mode == OpenMode::Update) return fileOf(openFile(path, GENERIC_READ | GENERIC_WRITE, OPEN_EXISTING));
  for (;;) {
    Handle file(openFile(path, GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS));
    if (!lock(fileOf(file.get()), path, LockMode::Exclusive)) throw DiskError(DiskFault::Sharing, path);
    if (!isAt(fileOf(file.get()), path)) continue;
    resize(fileOf(file.get()), path, 0);
    return fileOf(file.release());
  }
}

/// A new file has the rights that its folder hands down; the replacement itself hands on those of the old
/// one.
NativeFile create(const std::string& path, NewFile, const std::string&) {
  Handle file(openFile(path, GENERIC_READ | GENERIC_WRITE, CREATE_NEW));
  if (!lock(fileOf(file.get()), path, LockMode::Exclusive)) throw DiskError(DiskFault::Sharing, path);
  return fileOf(file.release());
}

void close(NativeFile file) noexcept {
  if (handleOf(file) != INVALID_HANDLE_VALUE) ::CloseHandle(handleOf(file));
}

std::size_t read(NativeFile file, const std::string& path, std::uint64_t offset, std::span<std::byte> out) {
  constexpr std::size_t most = 1 << 30;
  std::size_t done = 0;
  while (done < out.size()) {
    OVERLAPPED place = at(offset + done);
    const auto wanted = static_cast<DWORD>(std::min(out.size() - done, most));
    DWORD count = 0;
    if (!::ReadFile(handleOf(file), out.data() + done, wanted, &count, &place)) {
      if (::GetLastError() == ERROR_HANDLE_EOF) break;
      failLastCall(path);
    }
    if (count == 0) break;
    done += count;
  }
  return done;
}

void write(NativeFile file, const std::string& path, std::uint64_t offset, std::span<const std::byte> data) {
  constexpr std::size_t most = 1 << 30;
  std::size_t done = 0;
  while (done < data.size()) {
    OVERLAPPED place = at(offset + done);
    const auto wanted = static_cast<DWORD>(std::min(data.size() - done, most));
    DWORD count = 0;
    if (!::WriteFile(handleOf(file), data.data() + done, wanted, &count, &place)) failLastCall(path);
    if (count == 0) throw DiskError(DiskFault::Io, path);
    done += count;
  }
}

std::uint64_t size(NativeFile file, const std::string& path) {
  LARGE_INTEGER length;
  if (!::GetFileSizeEx(handleOf(file), &length)) failLastCall(path);
  return static_cast<std::uint64_t>(length.QuadPart);
}

void resize(NativeFile file, const std::string& path, std::uint64_t size) {
  FILE_END_OF_FILE_INFO end;
  end.EndOfFile.QuadPart = static_cast<LONGLONG>(size);
  if (!::SetFileInformationByHandle(handleOf(file), FileEndOfFileInfo, &end, sizeof end)) failLastCall(path);
}

void flush(NativeFile file, const std::string& path) {
  if (!::FlushFileBuffers(handleOf(file))) failLastCall(path);
}

bool lock(NativeFile file, const std::string& path, LockMode mode) {
  OVERLAPPED place = lockPlace();
  ::UnlockFileEx(handleOf(file), 0, 1, 0, &place);  // the one held before, if any; two would add up
  const DWORD flags = LOCKFILE_FAIL_IMMEDIATELY | (mode == LockMode::Exclusive ? LOCKFILE_EXCLUSIVE_LOCK : 0);
  if (!::LockFileEx(handleOf(file), flags, 0, 1, 0, &place)) {
    const DWORD error = ::GetLastError();
    if (error == ERROR_LOCK_VIOLATION || error == ERROR_IO_PENDING) return false;
    fail(error, path);
  }
  if (mode == LockMode::Shared || !isHeldByOthers(path)) return true;
  ::UnlockFileEx(handleOf(file), 0, 1, 0, &place);
  return false;
}

bool isAt(NativeFile file, const std::string& path) {
  const Handle named(openForInspection(path));
  if (!named) return false;
  BY_HANDLE_FILE_INFORMATION a, b;
  if (!::GetFileInformationByHandle(handleOf(file), &a) || !::GetFileInformationByHandle(named.get(), &b))
    failLastCall(path);
  return a.dwVolumeSerialNumber == b.dwVolumeSerialNumber && a.nFileIndexHigh == b.nFileIndexHigh &&
         a.nFileIndexLow == b.nFileIndexLow;
}

/// The time of the entry counts not: the system sets it by itself.
FileState state(NativeFile file, const std::string& path) {
  BY_HANDLE_FILE_INFORMATION info;
  if (!::GetFileInformationByHandle(handleOf(file), &info)) failLastCall(path);
  FileState result;
  result.volume = info.dwVolumeSerialNumber;
  result.number = joined(info.nFileIndexHigh, info.nFileIndexLow);
  result.size = joined(info.nFileSizeHigh, info.nFileSizeLow);
  result.modified = windows::unixNanoseconds(info.ftLastWriteTime);
  result.names = info.nNumberOfLinks;
  return result;
}

void remove(const std::string& path) {
  if (!::DeleteFileW(native(path).c_str())) failLastCall(path);
}

void flushFolder(const std::string& folder) {
  const Handle open(::CreateFileW(native(folder).c_str(), GENERIC_READ | GENERIC_WRITE, Sharing, nullptr,
                                  OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  const bool done = open && ::FlushFileBuffers(open.get());
  const DWORD error = done ? ERROR_SUCCESS : ::GetLastError();
  switch (error) {
    case ERROR_SUCCESS:
    case ERROR_ACCESS_DENIED:  // file systems and servers without such a call, which keep their names by
                               // themselves
    case ERROR_INVALID_FUNCTION:
    case ERROR_INVALID_HANDLE:
    case ERROR_INVALID_PARAMETER:
    case ERROR_NOT_SUPPORTED:
      return;
    default:
      // A folder that isn't there is a folder missing, not a file.
      fail(error == ERROR_FILE_NOT_FOUND ? ERROR_PATH_NOT_FOUND : error, folder);
  }
}

std::optional<FileInfo> inspect(const std::string& path) {
  const Handle file(openForInspection(path));
  if (!file) return std::nullopt;
  BY_HANDLE_FILE_INFORMATION info;
  if (!::GetFileInformationByHandle(file.get(), &info)) failLastCall(path);
  FileInfo result;
  result.size = joined(info.nFileSizeHigh, info.nFileSizeLow);
  result.folder = (info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  result.modifiedUnixNanoseconds = windows::unixNanoseconds(info.ftLastWriteTime);
  result.modified = localDate(result.modifiedUnixNanoseconds).days;
  return result;
}

void setModified(NativeFile file, const std::string& path, std::int64_t unixNanoseconds) {
  const FILETIME time = windows::fileTime(unixNanoseconds);
  if (!::SetFileTime(handleOf(file), nullptr, nullptr, &time)) failLastCall(path);
}

void setModified(const std::string& path, std::int64_t unixNanoseconds) {
  const Handle file(openForInspection(path, FILE_WRITE_ATTRIBUTES));
  if (!file) fail(ERROR_FILE_NOT_FOUND, path);
  setModified(fileOf(file.get()), path, unixNanoseconds);
}

std::string followLinks(const std::string& path) {
  const DWORD attributes = ::GetFileAttributesW(native(path).c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_REPARSE_POINT)) return path;
  const Handle file(openForInspection(path));
  if (!file) fail(ERROR_FILE_NOT_FOUND, path);
  const std::string found = windows::finalPath(file.get());
  if (found.empty()) failLastCall(path);
  return found;
}

}  // namespace platform::system
