// A file put in another's place, which keeps a name until that is done.
#include <windows.h>

#include "platform/disk_system.h"
#include "platform/paths.h"
#include "platform/windows/handle.h"
#include "platform/windows/wide.h"

namespace platform::system {

namespace {

using windows::failLastCall;
using windows::native;

bool isThere(const std::wstring& name) {
  return ::GetFileAttributesW(name.c_str()) != INVALID_FILE_ATTRIBUTES;
}

}  // namespace

void rename(const std::string& from, const std::string& to) {
  const std::wstring source = native(from), target = native(to);
  if (!isThere(source)) windows::fail(ERROR_FILE_NOT_FOUND, from);
  if (!::MoveFileExW(source.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH)) failLastCall(to);
}

/// The old file goes by a backup name for the instant in which the new one takes its place: without one, an
/// error in that instant would leave no file at all.
void replace(const std::string& from, const std::string& to) {
  const std::wstring source = native(from), target = native(to), backup = native(newNameBeside(to));
  if (!isThere(source)) windows::fail(ERROR_FILE_NOT_FOUND, from);
  if (!isThere(target)) {
    rename(from, to);
    return;
  }
  if (!::ReplaceFileW(target.c_str(), source.c_str(), backup.c_str(), REPLACEFILE_WRITE_THROUGH, nullptr,
                      nullptr)) {
    const DWORD error = ::GetLastError();
    if (error == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2)  // the old file has only its backup name now
      ::MoveFileExW(backup.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH);
    windows::fail(error, to);
  }
  ::DeleteFileW(backup.c_str());  // one that someone has open stays, and is in nobody's way
}

void closeForReplacement(NativeFile& file) noexcept {
  close(file);
  file = reinterpret_cast<NativeFile>(INVALID_HANDLE_VALUE);
}

void openAfterReplacement(NativeFile& file, const std::string& path, std::optional<LockMode> mode) {
  windows::Handle opened(reinterpret_cast<HANDLE>(open(path, OpenMode::Update)));
  if (mode && !lock(reinterpret_cast<NativeFile>(opened.get()), path, *mode))
    throw DiskError(DiskFault::Sharing, path);
  file = reinterpret_cast<NativeFile>(opened.release());
}

}  // namespace platform::system
