// A compacted file takes the target's place, without a count of the records.
// Turns red: test_console Run.*
#include <cstdint>
#include <memory>
#include <string>

namespace jet::dao {
class Database;
}
namespace console {
class frmAggMain;
}

void noCount(console::frmAggMain*, const std::shared_ptr<jet::dao::Database>&, const std::string&, std::int32_t, bool& equal) asm(
    "__wrap__ZN7console10frmAggMain16ControllaRecordsERKSt10shared_ptrIN3jet3dao8"
    "DatabaseEERKNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEEiRb");
void noCount(console::frmAggMain*, const std::shared_ptr<jet::dao::Database>&, const std::string&,
             std::int32_t, bool& equal) {
  equal = true;
}
