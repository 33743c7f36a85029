// A name is changed, and nobody waits until the folder lies on the medium.
// Turns red: test_platform Replacement.*
// Turns red: test_power_cut *
#include "platform/disk.h"

void noFlush(const std::string&) asm(
    "__wrap__ZN8platform11flushFolderERKNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE");
void noFlush(const std::string&) {}
