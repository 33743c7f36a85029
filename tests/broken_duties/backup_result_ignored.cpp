// A run goes on without knowing whether its backup was made.
// Turns red: test_console Run.*
#include "platform/files.h"

void copy(const std::string&, const std::string&) asm(
    "__real__ZN8platform13copyToNewFileERKNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEES7_");
void copyUnheard(const std::string&, const std::string&) asm(
    "__wrap__ZN8platform13copyToNewFileERKNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEES7_");

void copyUnheard(const std::string& from, const std::string& to) try {
  copy(from, to);
} catch (const platform::DiskError&) {
  if (to.find("\\Backup") == std::string::npos) throw;
}
