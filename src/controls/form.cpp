// How a window loads, works, refuses to leave and unloads.
#include "controls/form.h"

#include <algorithm>
#include <map>

#include "controls/desktop.h"

namespace controls {
namespace {

std::map<std::int32_t, Form*>& handles() {
  static std::map<std::int32_t, Form*> all;
  return all;
}

}  // namespace

std::int32_t Form::newHandle(Form& form) {
  static std::int32_t last = 0;
  handles()[++last] = &form;
  return last;
}

Form* Form::withHandle(std::int32_t hwnd) {
  const auto found = handles().find(hwnd);
  return found == handles().end() ? nullptr : found->second;
}

Form::~Form() {
  handles().erase(hwnd_);
  if (loaded_ && hasDesktop()) desktop().unloadForm(*this);
}

Control* Form::find(std::string_view name) const {
  const auto found =
      std::ranges::find_if(controlList_, [&](Control* control) { return control->name() == name; });
  return found == controlList_.end() ? nullptr : *found;
}

runtime::Error Form::missing(std::string_view controlName) const {
  return {runtime::InvalidCall, name(), "Controllo mancante: " + std::string(controlName)};
}

void Form::load() {
  if (loaded_) return;
  loaded_ = true;
  desktop().loadForm(*this);
  loading.raise();
}

void Form::show(bool modal) {
  load();
  if (loaded_) desktop().showForm(*this, modal);
}

bool Form::unload() {
  if (!loaded_) return true;
  if (busy()) {
    unloadWaits_ = true;
    unloadDelayed.raise();
    return false;
  }
  bool refused = false;
  queryUnload.raise(refused);
  if (refused) return false;
  loaded_ = false;
  unloading.raise();
  desktop().unloadForm(*this);
  return true;
}

void Form::whileBusy(const std::function<void()>& work) {
  struct Count {
    int& busy;
    explicit Count(int& count) : busy(count) { ++busy; }
    ~Count() { --busy; }
  };
  {
    Count count(busy_);
    work();
  }
  if (unloadWaits_ && !busy()) {
    unloadWaits_ = false;
    unload();
  }
}

}  // namespace controls
