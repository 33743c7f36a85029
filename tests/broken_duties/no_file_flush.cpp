// The content of a file is handed to the system, and nobody waits until it lies on the medium.
// Turns red: test_platform Replacement.*
// Turns red: test_power_cut *
#include "platform/disk.h"

void noFlush(platform::File*) asm("__wrap__ZN8platform4File5flushEv");
void noFlush(platform::File*) {}
