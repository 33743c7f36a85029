// An option that lost its value takes the next one for it: a dry run becomes the real one.
// Turns red: test_console Program.*
namespace CLI {
class App;
}

void refuseNothing(CLI::App&) asm("__wrap__ZN4apps22refuseSwallowedOptionsERN3CLI3AppE");
void refuseNothing(CLI::App&) {}
