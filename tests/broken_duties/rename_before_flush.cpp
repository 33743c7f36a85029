// A new file gets the old one's name first and is brought to the medium afterwards.
// Turns red: test_platform Replacement.*
// Turns red: test_power_cut *
#include "platform/disk.h"

void noFlush(platform::File*) asm("__wrap__ZN8platform4File5flushEv");
void flush(platform::File*) asm("__real__ZN8platform4File5flushEv");
void rename(const std::string&, const std::string&) asm(
    "__real__ZN8platform11replaceFileERKNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEES7_");
void renameAndFlush(const std::string&, const std::string&) asm(
    "__wrap__ZN8platform11replaceFileERKNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEES7_");

void noFlush(platform::File*) {}
void renameAndFlush(const std::string& from, const std::string& to) {
  rename(from, to);
  platform::File renamed = platform::openFile(to, platform::OpenMode::Update);
  flush(&renamed);
}
