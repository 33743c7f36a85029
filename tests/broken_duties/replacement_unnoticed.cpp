// Whoever saves does not look whether another has put a file of his own there meanwhile.
// Turns red: test_platform DiskLock.*
// Turns red: test_jet_dao Locks.*
#include "platform/disk.h"

bool alwaysThere(const platform::File*, const std::string&) asm(
    "__wrap__ZNK8platform4File9isStillAtERKNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE");
bool alwaysThere(const platform::File*, const std::string&) {
  return true;
}
