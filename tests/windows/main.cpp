#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <fstream>

/// The tests; or, with --figlio as first argument, a child of theirs: writes its other arguments into the
/// file that the first of them names, a line each, and ends.
int main(int argc, char** argv) {
  if (argc > 2 && std::strcmp(argv[1], "--figlio") == 0) {
    std::ofstream file(argv[2], std::ios::binary);
    for (int word = 3; word < argc; ++word) file << argv[word] << '\n';
    return 7;
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
