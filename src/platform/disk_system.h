#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "platform/disk.h"

/// What each kind of system implements behind the door of disk.h: the calls themselves, without numbering.
/// Every failure is a DiskError that names `path`.
namespace platform::system {

/// Descriptor or handle of an open file.
using NativeFile = std::intptr_t;

/// With OpenMode::Create the file is locked Exclusive before it is emptied.
NativeFile open(const std::string& path, OpenMode mode);
/// As createFile(). Nobody gets in before the rights are what they must be.
NativeFile create(const std::string& path, NewFile kind, const std::string& model);
void close(NativeFile file) noexcept;
std::size_t read(NativeFile file, const std::string& path, std::uint64_t offset, std::span<std::byte> out);
void write(NativeFile file, const std::string& path, std::uint64_t offset, std::span<const std::byte> data);
std::uint64_t size(NativeFile file, const std::string& path);
void resize(NativeFile file, const std::string& path, std::uint64_t size);
void flush(NativeFile file, const std::string& path);
/// False if another opener stands in the way; a lock held before may then be lost.
bool lock(NativeFile file, const std::string& path, LockMode mode);
bool isAt(NativeFile file, const std::string& path);
FileState state(NativeFile file, const std::string& path);
void setModified(NativeFile file, const std::string& path, std::int64_t unixNanoseconds);

void replace(const std::string& from, const std::string& to);
void rename(const std::string& from, const std::string& to);
/// A system that can't rename a file which is open closes it before replace() and opens it after it, with the
/// lock that it had; a Sharing error if another has taken that. Others do nothing.
void closeForReplacement(NativeFile& file) noexcept;
void openAfterReplacement(NativeFile& file, const std::string& path, std::optional<LockMode> lock);

void remove(const std::string& path);
void flushFolder(const std::string& folder);
std::optional<FileInfo> inspect(const std::string& path);
void setModified(const std::string& path, std::int64_t unixNanoseconds);
std::string followLinks(const std::string& path);

}  // namespace platform::system
