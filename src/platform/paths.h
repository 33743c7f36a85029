#pragma once

#include <string>
#include <string_view>

/// Paths inside the product: UTF-8 with backslashes. Only the system's edge sees the other form.
namespace platform {

/// `path` as the system wants it ("\srv\db\a.mdb" -> "/srv/db/a.mdb" on POSIX).
std::string toSystemPath(std::string_view path);
/// A path of the system (absolute or relative to the current folder) as the product keeps it: absolute,
/// without "." and "..", without a closing backslash. It names the very file that the system finds there:
/// ".." behind a symbolic link leads out of the folder that the link names, and behind what is no folder it
/// stays, for the system to refuse. A POSIX name that holds a backslash can't be expressed.
std::string fromSystemPath(std::string_view path);
/// Part before the last backslash, without it; empty if there is none.
std::string folderOf(std::string_view path);
/// Folder that holds the file: folderOf, or the root, or "." for a bare name.
std::string containingFolder(std::string_view path);
/// A name beside the file that nobody has and nobody can foresee: the file's own, ".tmp." and random digits.
std::string newNameBeside(const std::string& path);
/// The path without any symbolic link in it, as the system finds it; what isn't there stays as it is written.
std::string realPath(const std::string& path);
/// Folder in which the user's programs keep their settings.
std::string userSettingsFolder();
/// Folder in which they keep what outlives a session but is no setting.
std::string userStateFolder();
/// Folder of the running executable, without a closing backslash.
std::string executableFolder();
/// Name of the running executable without folder and ending.
std::string executableName();
/// Its whole path. All three are those of the program's start, however the file is renamed later.
std::string executablePath();

}  // namespace platform
