// A program that is started without a standard stream gives its place to the first file that it opens.
// Turns red: test_apps Streams.*
#include "platform/program.h"

void holdNothing() asm("__wrap__ZN8platform19holdStandardStreamsEv");
void holdNothing() {}
