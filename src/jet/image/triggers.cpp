// The text of triggers that refuse a row.
#include "jet/image/triggers.h"

#include "jet/image/row_codec.h"

namespace jet::image {

namespace {

std::string quoted(std::string_view text) {
  std::string result = "'";
  for (const char c : text) result += c == '\'' ? std::string("''") : std::string(1, c);
  return result + "'";
}

std::string trigger(const std::string& name, const std::string& moment, std::uint32_t page,
                    const std::string& condition, const std::string& body) {
  return "CREATE TRIGGER IF NOT EXISTS " + name + " " + moment + " ON " + tableName(page) +
         (condition.empty() ? "" : " WHEN " + condition) + " BEGIN " + body + "; END";
}

}  // namespace

std::string raiseCall(int number, std::string_view description) {
  return "RAISE(ABORT, " + quoted(std::to_string(number) + "|" + std::string(description)) + ")";
}

std::string raise(int number, std::string_view description) {
  return "SELECT " + raiseCall(number, description);
}

std::string afterTrigger(const std::string& name, const std::string& event, std::uint32_t page,
                         const std::string& condition, const std::string& body) {
  return trigger(name, "AFTER " + event, page, condition, body);
}

std::string beforeTrigger(const std::string& name, const std::string& event, std::uint32_t page,
                          const std::string& condition, const std::string& body) {
  return trigger(name, "BEFORE " + event, page, condition, body);
}

}  // namespace jet::image
