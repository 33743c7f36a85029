// What the administrator's file tells of the computer.
#include "platform/computer.h"

#include <unistd.h>

#include <string_view>

#include "platform/paths.h"
#include "platform/posix/computer_file.h"
#include "runtime/text.h"

namespace platform {

namespace {

constexpr const char* UsualFile = "\\etc\\aggnorvo.ini";
std::string fileInForce = UsualFile;

std::string ofComputer(std::string_view key) {
  return computerFile().value("Computer", key).value_or("");
}

}  // namespace

void useComputerFile(const std::string& path) {
  fileInForce = path.empty() ? UsualFile : path;
}

IniFile computerFile() {
  return IniFile(fileInForce);
}

std::string administratorsPath(const std::string& text) {
  return text.find('/') == std::string::npos ? text : fromSystemPath(text);
}

std::string windowsFolder() {
  return administratorsPath(ofComputer("Windows"));
}

std::string systemFolder() {
  return administratorsPath(ofComputer("System"));
}

std::string computerName() {
  constexpr std::size_t longest = 15;  // as everywhere that names are shared with computers of the other kind
  std::string name = ofComputer("Nome");
  if (name.empty()) {
    char buffer[256] = {};
    if (::gethostname(buffer, sizeof buffer - 1) == 0) name = buffer;
    name.resize(std::min(name.find('.'), name.size()));
  }
  return std::string(runtime::left(name, longest));
}

std::string environmentVariable(const std::string& name) {
  for (char** entry = environ; *entry; ++entry) {
    const std::string_view text = *entry;
    const std::size_t end = text.find('=');
    if (end != std::string_view::npos &&
        runtime::strComp(text.substr(0, end), name, runtime::Compare::Text) == 0)
      return std::string(text.substr(end + 1));
  }
  return "";
}

}  // namespace platform
