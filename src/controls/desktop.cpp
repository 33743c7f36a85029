// The desktop in force, and boxes asked of it with the suite's styles.
#include "controls/desktop.h"

#include "runtime/error.h"

namespace controls {
namespace {

Desktop* currentDesktop = nullptr;

}  // namespace

MessageAnswer Desktop::msgBox(const std::string& text, int style, const std::string& title) {
  return showBox(text, style, title.empty() ? DefaultTitle : title);
}

std::string Desktop::inputBox(const std::string& prompt, const std::string& title, const std::string& text) {
  return showInput(prompt, title.empty() ? DefaultTitle : title, text);
}

bool hasDesktop() {
  return currentDesktop != nullptr;
}

Desktop& desktop() {
  if (!currentDesktop) throw runtime::Error(runtime::InvalidCall, "controls", "Nessun desktop impostato");
  return *currentDesktop;
}

DesktopScope::DesktopScope(Desktop& current) : before_(currentDesktop) {
  currentDesktop = &current;
}

DesktopScope::~DesktopScope() {
  currentDesktop = before_;
}

}  // namespace controls
