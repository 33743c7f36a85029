// The new content is written under a name that everybody can foresee, and over what is there.
// Turns red: test_platform CopyFile.*
#include "platform/disk.h"

std::string nameOf(const std::string&) asm(
    "__wrap__ZN8platform13newNameBesideERKNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE");
std::string nameOf(const std::string& path) {
  return path + ".tmp";
}

platform::File overwrite(const std::string&, platform::NewFile, const std::string&) asm(
    "__wrap__ZN8platform10createFileERKNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEENS_7NewFileES7_");
platform::File overwrite(const std::string& path, platform::NewFile, const std::string&) {
  return platform::openFile(path, platform::OpenMode::Create);
}
