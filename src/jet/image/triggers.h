#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Text of the triggers that watch the rows of the image.
namespace jet::image {

/// "SELECT RAISE(...)" that ends the statement in this error.
std::string raise(int number, std::string_view description);
/// Its RAISE alone, to stand in an expression.
std::string raiseCall(int number, std::string_view description);
/// CREATE TRIGGER on t<page>, where `event` is INSERT, DELETE, or UPDATE OF columns; `body` is one or more
/// statements, the last without its semicolon.
std::string afterTrigger(const std::string& name, const std::string& event, std::uint32_t page,
                         const std::string& condition, const std::string& body);
std::string beforeTrigger(const std::string& name, const std::string& event, std::uint32_t page,
                          const std::string& condition, const std::string& body);

}  // namespace jet::image
