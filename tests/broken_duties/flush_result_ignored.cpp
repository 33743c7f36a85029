// A file that could not be brought to the medium counts as flushed.
// Turns red: test_platform CopyFile.*
// Turns red: test_console Faults.*
#include "platform/disk.h"

void flush(platform::File*) asm("__real__ZN8platform4File5flushEv");
void flushUnheard(platform::File*) asm("__wrap__ZN8platform4File5flushEv");

void flushUnheard(platform::File* file) try { flush(file); } catch (const platform::DiskError&) {
}
