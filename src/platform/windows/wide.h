#pragma once

#include <string>
#include <string_view>

/// Text and paths as the system's calls take them.
namespace platform::windows {

/// What isn't UTF-8 becomes U+FFFD.
std::wstring wide(std::string_view utf8);
/// Half a pair becomes U+FFFD.
std::string narrow(std::wstring_view utf16);

/// A path of the product: long ones in the form that has no limit, a drive's name alone as its root folder.
/// DiskError PathNotFound for a path that isn't UTF-8 or holds a NUL.
std::wstring native(const std::string& path);

/// The path of an open file or folder, without links; empty if the system doesn't tell it.
std::string finalPath(void* file);

/// Name and number of the error that the last call left.
[[noreturn]] void failLastCall(const std::string& path);
[[noreturn]] void fail(unsigned long error, const std::string& path);

}  // namespace platform::windows
