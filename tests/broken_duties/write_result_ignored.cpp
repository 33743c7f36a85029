// Bytes that could not be written count as written.
// Turns red: test_platform CopyFile.*
// Turns red: test_jet_file ChangedTable.*
// Turns red: test_console Faults.*
#include "platform/disk.h"

using Bytes = std::span<const std::byte>;

void write(platform::File*, std::uint64_t,
           Bytes) asm("__real__ZN8platform4File7writeAtEmSt4spanIKSt4byteLm18446744073709551615EE");
void writeUnheard(platform::File*, std::uint64_t,
                  Bytes) asm("__wrap__ZN8platform4File7writeAtEmSt4spanIKSt4byteLm18446744073709551615EE");

void writeUnheard(platform::File* file, std::uint64_t offset, Bytes data) try {
  write(file, offset, data);
} catch (const platform::DiskError&) {
}
