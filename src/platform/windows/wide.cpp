// UTF-8 to UTF-16 and back.
#include "platform/windows/wide.h"

#include <windows.h>

#include "platform/disk.h"
#include "platform/paths.h"

namespace platform::windows {

namespace {

std::wstring convert(std::string_view utf8, DWORD flags) {
  const int size = static_cast<int>(utf8.size());
  std::wstring result(utf8.size(), L'\0');
  const int length = ::MultiByteToWideChar(CP_UTF8, flags, utf8.data(), size, result.data(),
                                           static_cast<int>(result.size()));
  result.resize(static_cast<std::size_t>(length));
  return result;
}

bool isFolder(const std::string& path) {
  const DWORD attributes = ::GetFileAttributesW(native(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

constexpr DWORD DiskQuotaExceeded = 1295;  // the headers don't name it

DiskFault faultOf(DWORD error, const std::string& path) {
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
      return DiskFault::NotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_INVALID_DRIVE:
    case ERROR_DIRECTORY:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
      return DiskFault::PathNotFound;
    case ERROR_ACCESS_DENIED:
      return isFolder(path) ? DiskFault::IsFolder : DiskFault::AccessDenied;
    case ERROR_WRITE_PROTECT:
    case ERROR_NETWORK_ACCESS_DENIED:
    case ERROR_PRIVILEGE_NOT_HELD:
      return DiskFault::AccessDenied;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_DELETE_PENDING:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_UNABLE_TO_REMOVE_REPLACED:
      return DiskFault::Sharing;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_FILE_TOO_LARGE:
    case DiskQuotaExceeded:
      return DiskFault::NoSpace;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
      return DiskFault::Exists;
    default:
      return DiskFault::Io;
  }
}

}  // namespace

std::wstring wide(std::string_view utf8) {
  return utf8.empty() ? std::wstring() : convert(utf8, 0);
}

std::string narrow(std::wstring_view utf16) {
  if (utf16.empty()) return "";
  const int size = static_cast<int>(utf16.size());
  std::string result(3 * utf16.size(), '\0');  // the most that one unit takes
  const int length = ::WideCharToMultiByte(CP_UTF8, 0, utf16.data(), size, result.data(),
                                           static_cast<int>(result.size()), nullptr, nullptr);
  result.resize(static_cast<std::size_t>(length));
  return result;
}

std::wstring native(const std::string& path) {
  constexpr std::size_t longest = 247;  // a folder's; a file may have some letters more
  if (path.find('\0') != std::string::npos) throw DiskError(DiskFault::PathNotFound, path.c_str());
  std::wstring result = path.empty() ? std::wstring() : convert(path, MB_ERR_INVALID_CHARS);
  if (result.empty()) throw DiskError(DiskFault::PathNotFound, path);
  if (result.size() == 2 && result[1] == L':') result += L'\\';
  if (result.size() <= longest || result.starts_with(L"\\\\?\\")) return result;
  if (result.starts_with(L"\\\\")) return L"\\\\?\\UNC\\" + result.substr(2);
  return result[1] == L':' ? L"\\\\?\\" + result : result;
}

void failLastCall(const std::string& path) {
  fail(::GetLastError(), path);
}

void fail(unsigned long error, const std::string& path) {
  throw DiskError(faultOf(error, path), path);
}

std::string finalPath(void* file) {
  std::wstring name(32768, L'\0');
  const DWORD length =
      ::GetFinalPathNameByHandleW(file, name.data(), static_cast<DWORD>(name.size()), FILE_NAME_NORMALIZED);
  if (length == 0 || length >= name.size()) return "";
  name.resize(length);
  constexpr std::wstring_view share = L"\\\\?\\UNC\\", local = L"\\\\?\\";
  if (name.starts_with(share)) return narrow(L"\\\\" + name.substr(share.size()));
  return narrow(name.starts_with(local) ? name.substr(local.size()) : name);
}

}  // namespace platform::windows
