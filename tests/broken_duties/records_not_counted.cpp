// A compacted file takes the target's place, without a count of the records.
// Turns red: test_console Run.*
#include <cstdint>
#include <optional>
#include <string>

namespace schema {
struct Ambiente;
}

std::optional<std::string> noCount(const schema::Ambiente&, const std::string&, std::int32_t) asm(
    "__wrap__ZN7console16ControllaRecordsERKN6schema8AmbienteERKNSt7__cxx1112"
    "basic_stringIcSt11char_traitsIcESaIcEEEi");
std::optional<std::string> noCount(const schema::Ambiente&, const std::string&, std::int32_t) {
  return std::nullopt;
}
